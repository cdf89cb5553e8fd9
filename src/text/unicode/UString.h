#pragma once
// Text values typed by encoding: an unowned view (UStringRef), the sole owner of a buffer
// (AutoUString) and a value copy (CopiedUString), with the functions that make and compare them.
// Owned buffers always hold one unit more than the text, and that unit is zero.

#include <algorithm>
#include <cstddef>

#include "text/bytes/ArrayOf.h"
#include "text/unicode/Encodings.h"

// An unowned view of text in encoding E; it never frees anything. nullTerminated says that a
// zero unit stands at end.
template <class E>
struct UStringRef {
    typedef typename E::Unit Unit;

    Unit const* begin;
    Unit const* end;
    bool nullTerminated;

    UStringRef() : begin(nullptr), end(nullptr), nullTerminated(false) {}
    UStringRef(Unit const* b, Unit const* e, bool zeroAtEnd = false)
        : begin(b), end(e), nullTerminated(zeroAtEnd) {}

    // Returns the length in units.
    std::size_t Length() const { return static_cast<std::size_t>(end - begin); }
    bool Empty() const { return begin == end; }

    operator ConstArrayOf<Unit>() const { return ConstArrayOf<Unit>(begin, end); }
};

// The sole owner of a heap buffer of text (allocated with new[]), zero-terminated. The empty
// string is two null pointers; a non-null begin equal to end means the same. It moves and never
// copies: a move takes the buffer and leaves the source null.
template <class E>
struct AutoUString {
    typedef typename E::Unit Unit;

    Unit* begin;
    Unit* end;

    AutoUString() : begin(nullptr), end(nullptr) {}
    // Takes over a buffer from new[] that holds end - begin + 1 units, the last of them zero.
    AutoUString(Unit* b, Unit* e) : begin(b), end(e) {}
    AutoUString(AutoUString&& other) noexcept : begin(other.begin), end(other.end) {
        other.begin = other.end = nullptr;
    }
    // Takes the other's buffer, leaves it null and frees what this one held before.
    AutoUString& operator=(AutoUString&& other) noexcept {
        if (this != &other) {
            delete[] begin;
            begin = other.begin;
            end = other.end;
            other.begin = other.end = nullptr;
        }
        return *this;
    }
    AutoUString(AutoUString const&) = delete;
    AutoUString& operator=(AutoUString const&) = delete;
    ~AutoUString() { delete[] begin; }

    std::size_t Length() const { return static_cast<std::size_t>(end - begin); }
    bool Empty() const { return begin == end; }

    // Returns a view that is zero-terminated exactly when begin isn't null.
    operator UStringRef<E>() const { return UStringRef<E>(begin, end, begin != nullptr); }
};

// Returns a new zero-terminated copy of the units from begin to end; an empty range gives two
// null pointers.
template <class E>
AutoUString<E> MakeUString(typename E::Unit const* begin, typename E::Unit const* end, E const&) {
    typedef typename E::Unit Unit;
    if (begin == end) return AutoUString<E>();
    std::size_t length = static_cast<std::size_t>(end - begin);
    Unit* buffer = new Unit[length + 1];
    std::copy(begin, end, buffer);
    buffer[length] = Unit(0);
    return AutoUString<E>(buffer, buffer + length);
}

// Returns a new copy of the text, null when it is empty.
template <class E>
AutoUString<E> MakeUString(UStringRef<E> text) {
    return MakeUString(text.begin, text.end, E());
}

// Returns a new copy of the text, null when it is empty.
template <class E>
AutoUString<E> MakeUString(AutoUString<E> const& text) {
    return MakeUString<E>(text.begin, text.end, E());
}

// Text with value semantics: a copy duplicates the buffer. Empty text is two null pointers.
template <class E>
struct CopiedUString {
    typedef typename E::Unit Unit;

    Unit* begin;
    Unit* end;

    CopiedUString() : begin(nullptr), end(nullptr) {}
    explicit CopiedUString(UStringRef<E> text) : begin(nullptr), end(nullptr) { Assign(text); }
    CopiedUString(CopiedUString const& other) : begin(nullptr), end(nullptr) {
        Assign(UStringRef<E>(other));
    }
    CopiedUString(CopiedUString&& other) noexcept : begin(other.begin), end(other.end) {
        other.begin = other.end = nullptr;
    }
    CopiedUString& operator=(CopiedUString const& other) {
        if (this != &other) Assign(UStringRef<E>(other));
        return *this;
    }
    CopiedUString& operator=(CopiedUString&& other) noexcept {
        if (this != &other) {
            delete[] begin;
            begin = other.begin;
            end = other.end;
            other.begin = other.end = nullptr;
        }
        return *this;
    }
    ~CopiedUString() { delete[] begin; }

    std::size_t Length() const { return static_cast<std::size_t>(end - begin); }
    bool Empty() const { return begin == end; }

    operator UStringRef<E>() const { return UStringRef<E>(begin, end, begin != nullptr); }

  private:
    void Assign(UStringRef<E> text) {
        AutoUString<E> copy = MakeUString(text);
        delete[] begin;
        begin = copy.begin;
        end = copy.end;
        copy.begin = copy.end = nullptr;
    }
};

// The one unchecked road from a C string to a typed view. Only the specialisation below exists.
template <class To, class From>
To EncodingCast(From const* text);

// Returns the C string up to its zero as a zero-terminated view; a null pointer gives a null view
// that isn't zero-terminated. Nothing is validated.
template <>
UStringRef<UTF8> EncodingCast<UStringRef<UTF8>, char>(char const* text);

// Returns whether both have the same length and the same bytes; two empty strings are equal
// whatever their pointers.
bool operator==(UStringRef<UTF8> a, UStringRef<UTF8> b);
inline bool operator!=(UStringRef<UTF8> a, UStringRef<UTF8> b) {
    return !(a == b);
}

// Returns whether a orders before b: unsigned bytes compared over the shorter length, and on a
// tie the shorter first. No collation, normalisation or case folding.
bool operator<(UStringRef<UTF8> a, UStringRef<UTF8> b);
