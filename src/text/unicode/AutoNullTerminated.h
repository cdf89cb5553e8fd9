#pragma once
// Zero-terminated strings for handing to C interfaces. The pointer is owned (and freed with
// delete[]) only when ownedUnits, the size of the allocation in units, isn't zero.

#include <cstddef>

#include "text/unicode/UString.h"

template <class Unit>
struct AutoNullTerminated {
    Unit const* pointer;
    std::size_t ownedUnits;

    // The empty string, not owned.
    AutoNullTerminated() : pointer(EmptyString()), ownedUnits(0) {}
    // Takes over pointer when owned isn't zero; otherwise the text must outlive this object.
    AutoNullTerminated(Unit const* text, std::size_t owned) : pointer(text), ownedUnits(owned) {}
    AutoNullTerminated(AutoNullTerminated&& other) noexcept
        : pointer(other.pointer), ownedUnits(other.ownedUnits) {
        other.pointer = EmptyString();
        other.ownedUnits = 0;
    }
    AutoNullTerminated& operator=(AutoNullTerminated&& other) noexcept {
        if (this != &other) {
            if (ownedUnits != 0) delete[] pointer;
            pointer = other.pointer;
            ownedUnits = other.ownedUnits;
            other.pointer = EmptyString();
            other.ownedUnits = 0;
        }
        return *this;
    }
    AutoNullTerminated(AutoNullTerminated const&) = delete;
    AutoNullTerminated& operator=(AutoNullTerminated const&) = delete;
    ~AutoNullTerminated() {
        if (ownedUnits != 0) delete[] pointer;
    }

    // Returns a pointer to a static zero unit, one for each unit type.
    static Unit const* EmptyString() {
        static Unit const zero = Unit(0);
        return &zero;
    }
};

// Returns a zero-terminated string that points at the string's own buffer without owning it, so
// the string must outlive the result; an empty null string gives EmptyString().
template <class E>
AutoNullTerminated<typename E::Unit> MakeNullTerminatedString(AutoUString<E> const& text) {
    typedef typename E::Unit Unit;
    if (text.begin == nullptr) return AutoNullTerminated<Unit>();
    return AutoNullTerminated<Unit>(text.begin, 0);
}
