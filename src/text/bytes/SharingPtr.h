#pragma once
// A pointer shared by its copies through a SharingLink; the last holder deletes the object.

#include <functional>
#include <utility>

#include "text/bytes/SharingLink.h"

template <class T>
class SharingPtr {
  public:
    // Takes ownership of object, which may be null.
    explicit SharingPtr(T* object = nullptr) : m_pointer(object) {}
    SharingPtr(SharingPtr const& other) = default;
    SharingPtr& operator=(SharingPtr const& other) {
        SharingPtr copy(other);
        swap(copy);
        return *this;
    }
    // Deletes the object when this is its last holder.
    ~SharingPtr() {
        if (m_link.Release()) delete m_pointer;
    }

    void swap(SharingPtr& other) noexcept {
        std::swap(m_pointer, other.m_pointer);
        m_link.swap(other.m_link);
    }

    T* get() const { return m_pointer; }
    T& operator*() const { return *m_pointer; }
    T* operator->() const { return m_pointer; }
    explicit operator bool() const { return m_pointer != nullptr; }
    // Returns whether no other holder shares the object.
    bool Alone() const { return m_link.Alone(); }

  private:
    T* m_pointer;
    SharingLink m_link;
};

// Orders by the address of the shared object, so that shared pointers can be kept in ordered
// sets; the order has no other meaning.
template <class T>
bool operator<(SharingPtr<T> const& a, SharingPtr<T> const& b) {
    return std::less<T*>()(a.get(), b.get());
}
