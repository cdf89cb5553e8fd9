#pragma once
// Text shared by its copies: one zero-terminated buffer and a SharingLink that counts the
// holders. The last holder frees the buffer. This is the string of long-lived records and of the
// attribute maps of XML elements, which order it with operator< of UStringRef<UTF8>.

#include <cstddef>
#include <utility>

#include "text/bytes/SharingLink.h"
#include "text/unicode/UString.h"

// Copies may live and die in different threads; the text itself is never changed in place.
template <class E>
struct SharedUString {
    typedef typename E::Unit Unit;

    Unit* begin;
    Unit* end;
    SharingLink link;

    // The empty string: two null pointers. Throws UnixPlatform::MutexError if the link's lock
    // can't be made.
    SharedUString() : begin(nullptr), end(nullptr) {}
    // Takes over the buffer of source and leaves source null.
    SharedUString(AutoUString<E>&& source)  // NOLINT: implicit by design
        : begin(source.begin), end(source.end) {
        source.begin = source.end = nullptr;
    }
    // Shares the other's buffer.
    SharedUString(SharedUString const& other)
        : begin(other.begin), end(other.end), link(other.link) {}
    // Takes over the other's buffer and share without touching the count; the other is left
    // null, with an empty link.
    SharedUString(SharedUString&& other) noexcept
        : begin(other.begin), end(other.end), link(std::move(other.link)) {
        other.begin = other.end = nullptr;
    }
    // Shares the other's buffer; the old one is freed if this was its last holder.
    SharedUString& operator=(SharedUString const& other) {
        SharedUString copy(other);
        swap(copy);
        return *this;
    }
    // Takes over the other's buffer and share, leaving it null; the old buffer is freed if this
    // was its last holder.
    SharedUString& operator=(SharedUString&& other) noexcept {
        SharedUString taken(std::move(other));
        swap(taken);
        return *this;
    }
    // Takes over the buffer of source, leaving it null; the old buffer is freed if this was its
    // last holder.
    SharedUString& operator=(AutoUString<E>&& source) {
        SharedUString fresh(std::move(source));
        swap(fresh);
        return *this;
    }
    ~SharedUString() {
        if (link.Release()) delete[] begin;
    }

    void swap(SharedUString& other) noexcept {
        Unit* b = begin;
        Unit* e = end;
        begin = other.begin;
        end = other.end;
        other.begin = b;
        other.end = e;
        link.swap(other.link);
    }

    std::size_t Length() const { return static_cast<std::size_t>(end - begin); }
    bool Empty() const { return begin == end; }

    // Returns a view that is zero-terminated exactly when begin isn't null.
    operator UStringRef<E>() const { return UStringRef<E>(begin, end, begin != nullptr); }
};

// Returns a new owned copy of the shared text, null when it is empty.
template <class E>
AutoUString<E> MakeUString(SharedUString<E> const& text) {
    return MakeUString<E>(text.begin, text.end, E());
}
