#pragma once
// An unowned pointer to a value that belongs to someone else, or null.

template <class T>
class NullOrConstRef {
  public:
    NullOrConstRef() : m_pointer(nullptr) {}
    NullOrConstRef(T const& value) : m_pointer(&value) {}     // NOLINT: implicit by design
    NullOrConstRef(T const* pointer) : m_pointer(pointer) {}  // NOLINT: implicit by design

    bool IsNull() const { return m_pointer == nullptr; }
    explicit operator bool() const { return m_pointer != nullptr; }
    // The value; the caller checks IsNull() first.
    T const& operator*() const { return *m_pointer; }
    T const* operator->() const { return m_pointer; }
    T const* Pointer() const { return m_pointer; }

  private:
    T const* m_pointer;
};
