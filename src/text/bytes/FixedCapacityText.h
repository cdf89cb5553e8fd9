#pragma once
// A short text kept by value in a fixed array: a length, the characters and a terminating zero.
// Numerals made into text come back in one, so that making them needs no heap.

#include <cstddef>
#include <cstring>

#include "text/bytes/ConstData.h"

template <std::size_t Capacity>
class FixedCapacityText {
  public:
    FixedCapacityText() : m_length(0) { m_text[0] = 0; }
    // Throws ConstDataCapacityExceeded if the bytes are longer than the capacity.
    explicit FixedCapacityText(ConstData bytes) : m_length(bytes.Size()) {
        if (m_length > Capacity) throw ConstDataCapacityExceeded();
        if (m_length) std::memcpy(m_text, bytes.begin, m_length);
        m_text[m_length] = 0;
    }

    static constexpr std::size_t capacity = Capacity;

    std::size_t Length() const { return m_length; }
    bool Empty() const { return m_length == 0; }
    // Returns the text as a zero-terminated C string; valid while this object lives.
    char const* CString() const { return m_text; }
    // Returns the characters without the terminating zero; valid while this object lives.
    operator ConstData() const { return ConstData(m_text, m_length); }

  private:
    std::size_t m_length;
    char m_text[Capacity + 1];
};

template <std::size_t N>
bool operator==(FixedCapacityText<N> const& text, char const* other) {
    return ConstData(text) == ConstData(other);
}
