#pragma once
// Owning holders of arrays: a count and a pointer, released by a disposal policy when the holder
// goes. They move and don't copy.

#include <cstddef>
#include <utility>

// Makes and frees arrays of T with new[] and delete[].
template <class T>
struct Allocator {
    static T* Allocate(std::size_t count) { return count ? new T[count] : nullptr; }
    static void Free(T* pointer) { delete[] pointer; }
};

// Frees through the allocator A.
template <class T, class A>
struct DisposeByAllocator {
    static void Dispose(T* pointer) { A::Free(pointer); }
};

template <class Pointer, class Dispose>
class Owned;

// A count of elements and a pointer to them, which the destructor releases through Dispose.
template <class T, class Dispose>
class Owned<T*, Dispose> {
  public:
    Owned() : m_count(0), m_pointer(nullptr) {}
    // Takes over pointer, which holds count elements.
    Owned(T* pointer, std::size_t count) : m_count(count), m_pointer(pointer) {}
    Owned(Owned&& other) noexcept : m_count(other.m_count), m_pointer(other.m_pointer) {
        other.m_count = 0;
        other.m_pointer = nullptr;
    }
    Owned& operator=(Owned&& other) noexcept {
        std::swap(m_count, other.m_count);
        std::swap(m_pointer, other.m_pointer);
        return *this;
    }
    Owned(Owned const&) = delete;
    Owned& operator=(Owned const&) = delete;
    ~Owned() {
        if (m_pointer) Dispose::Dispose(m_pointer);
    }

    std::size_t Count() const { return m_count; }
    T* Get() const { return m_pointer; }
    T* begin() const { return m_pointer; }
    T* end() const { return m_pointer + m_count; }
    T& operator[](std::size_t index) const { return m_pointer[index]; }

    // Returns the pointer and gives up ownership; the caller frees it.
    T* Release() {
        T* pointer = m_pointer;
        m_pointer = nullptr;
        m_count = 0;
        return pointer;
    }

  private:
    std::size_t m_count;
    T* m_pointer;
};

// Returns a holder of count new default-initialised elements. The hint is ignored.
template <class T>
Owned<T*, DisposeByAllocator<T, Allocator<T>>> Allocate(std::size_t count,
                                                        void const* hint = nullptr) {
    (void)hint;
    return Owned<T*, DisposeByAllocator<T, Allocator<T>>>(Allocator<T>::Allocate(count), count);
}
