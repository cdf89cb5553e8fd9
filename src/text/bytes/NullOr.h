#pragma once
// An optional value held as a pointer to a heap copy; null when absent.

#include <utility>

template <class T>
class NullOr {
  public:
    NullOr() : m_value(nullptr) {}
    NullOr(T const& value) : m_value(new T(value)) {}  // NOLINT: implicit by design
    NullOr(NullOr const& other) : m_value(other.m_value ? new T(*other.m_value) : nullptr) {}
    NullOr(NullOr&& other) noexcept : m_value(other.m_value) { other.m_value = nullptr; }
    ~NullOr() { delete m_value; }

    // Copies the value, not the pointer.
    NullOr& operator=(NullOr const& other) {
        NullOr copy(other);
        std::swap(m_value, copy.m_value);
        return *this;
    }
    NullOr& operator=(NullOr&& other) noexcept {
        std::swap(m_value, other.m_value);
        return *this;
    }
    NullOr& operator=(T const& value) { return *this = NullOr(value); }

    // Returns the shared absent value.
    static NullOr const& Null() {
        static NullOr const absent;
        return absent;
    }

    bool IsNull() const { return m_value == nullptr; }
    explicit operator bool() const { return m_value != nullptr; }
    // The value; the caller checks IsNull() first.
    T const& operator*() const { return *m_value; }
    T& operator*() { return *m_value; }
    T const* operator->() const { return m_value; }
    T* operator->() { return m_value; }
    // Returns a pointer to the value, or null.
    T const* Pointer() const { return m_value; }
    void SetNull() {
        delete m_value;
        m_value = nullptr;
    }

  private:
    T* m_value;
};
