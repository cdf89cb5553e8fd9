#pragma once
// A growable array of T whose elements never move, the first N of them inside the object.

#include <cstddef>
#include <new>
#include <type_traits>
#include <utility>

#include "text/bytes/ExtensibleArrayBase.h"

template <class T, std::size_t N>
class ExtensibleArray {
    static_assert(N > 0, "the inline piece holds at least one element");

  public:
    ExtensibleArray() : m_base(sizeof(T), Data(m_storage, sizeof m_storage)) {}
    ~ExtensibleArray() { Pop(Count()); }
    ExtensibleArray(ExtensibleArray const&) = delete;
    ExtensibleArray& operator=(ExtensibleArray const&) = delete;

    // Returns the new last element, made from the arguments. Earlier elements stay where they are.
    template <class... Args>
    T& Append(Args&&... args) {
        void* slot = m_base.Allocate();
        try {
            return *new (slot) T(std::forward<Args>(args)...);
        } catch (...) {
            m_base.Release(1);
            throw;
        }
    }
    // Destroys the last n elements.
    void Pop(std::size_t n = 1) {
        if constexpr (!std::is_trivially_destructible_v<T>) {
            for (std::size_t i = 0; i < n; ++i) (*this)[Count() - 1 - i].~T();
        }
        m_base.Release(n);
    }

    std::size_t Count() const { return m_base.Count(); }
    T& operator[](std::size_t index) { return *static_cast<T*>(m_base.Element(index)); }
    T const& operator[](std::size_t index) const {
        return *static_cast<T const*>(m_base.Element(index));
    }
    ExtensibleArrayBase const& Base() const { return m_base; }

  private:
    alignas(T) unsigned char m_storage[N * sizeof(T)];
    ExtensibleArrayBase m_base;
};
