#pragma once
// Unowned ranges of elements: a begin and an end pointer. They never free anything; the owner of
// the elements must outlive them.

#include <cstddef>

// A read-only range.
template <class T>
struct ConstArrayOf {
    T const* begin;
    T const* end;

    ConstArrayOf() : begin(nullptr), end(nullptr) {}
    ConstArrayOf(T const* b, T const* e) : begin(b), end(e) {}

    // Returns the number of elements.
    std::size_t Count() const { return static_cast<std::size_t>(end - begin); }
    bool Empty() const { return begin == end; }
};

// A writable range; it converts to the read-only one.
template <class T>
struct ArrayOf {
    T* begin;
    T* end;

    ArrayOf() : begin(nullptr), end(nullptr) {}
    ArrayOf(T* b, T* e) : begin(b), end(e) {}

    // Returns the number of elements.
    std::size_t Count() const { return static_cast<std::size_t>(end - begin); }
    bool Empty() const { return begin == end; }

    operator ConstArrayOf<T>() const { return ConstArrayOf<T>(begin, end); }
};
