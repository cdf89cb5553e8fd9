#pragma once
// A stack of fixed-size elements in an array that the caller provides; it never allocates.
// Elements grow downwards from the end of the array.

#include <cstddef>

#include "text/bytes/ConstData.h"

class FiniteStackBase {
  public:
    // The array must outlive the stack; no element is constructed or destroyed here.
    FiniteStackBase(Data storage, std::size_t elementSize)
        : m_base(storage.begin), m_elementSize(elementSize), m_count(0), m_cursor(storage.end) {}

    // Returns the storage of a new top element. Throws StackFull when there is no room.
    void* Allocate() {
        if (static_cast<std::size_t>(m_cursor - m_base) < m_elementSize) throw StackFull();
        m_cursor -= m_elementSize;
        ++m_count;
        return m_cursor;
    }
    // Drops the top n elements, with no check: the caller knows there are n.
    void Pop(std::size_t n = 1) {
        m_cursor += n * m_elementSize;
        m_count -= n;
    }
    // Drops the top element.
    void Release(void*) { Pop(1); }

    // Returns the storage of the top element; null when empty.
    void* Top() const { return m_count ? m_cursor : nullptr; }
    std::size_t Count() const { return m_count; }

  private:
    unsigned char* m_base;
    std::size_t m_elementSize;
    std::size_t m_count;
    unsigned char* m_cursor;
};
