#pragma once
// The buffer under both path types: a zero-terminated text that stays in an inline array of N
// bytes while it fits (length + 1 <= N) and moves to an allocated array otherwise.

#include <cstddef>
#include <cstring>
#include <functional>
#include <string>

template <std::size_t N>
class PathStorage {
  public:
    PathStorage() : m_text(m_inline), m_length(0) { m_inline[0] = 0; }
    PathStorage(PathStorage const& other) : PathStorage() { Assign(other.Text(), other.m_length); }
    // Leaves other with a null text, which every reader takes as the empty string.
    PathStorage(PathStorage&& other) noexcept : PathStorage() { Take(other); }
    PathStorage& operator=(PathStorage const& other) {
        if (this != &other) {
            Assign(other.Text(), other.m_length);
        }
        return *this;
    }
    PathStorage& operator=(PathStorage&& other) noexcept {
        if (this != &other) {
            Release();
            Take(other);
        }
        return *this;
    }
    ~PathStorage() { Release(); }

    // Returns the text; never null.
    char const* Text() const { return m_text ? m_text : ""; }
    // Returns the stored length; see the callers for the one case where it exceeds the text.
    std::size_t Length() const { return m_text ? m_length : 0; }
    // Returns the length of the text up to its terminator.
    std::size_t TextLength() const { return std::strlen(Text()); }
    bool Empty() const { return Text()[0] == 0; }
    // Returns whether the text lives in an allocated array rather than the inline one.
    bool IsAllocated() const { return m_text && m_text != m_inline; }

  protected:
    // Stores a copy of length bytes of text with a terminator; an allocated array held before
    // is freed first. The text may point into this storage.
    void Assign(char const* text, std::size_t length) {
        std::less<char const*> const before;
        if (m_text && !before(text, m_text) && before(text, m_text + Length() + 1)) {
            std::string const copy(text, length);
            Assign(copy.data(), length);
            return;
        }
        Reserve(length);
        if (length) {
            std::memcpy(m_text, text, length);
        }
        m_text[length] = 0;
    }
    // Makes room for length + 1 bytes, drops the old text, and sets the stored length. Returns
    // the writable text, which the caller fills and terminates.
    char* Reserve(std::size_t length) {
        Release();
        m_text = length + 1 <= N ? m_inline : new char[length + 1];
        m_text[0] = 0;
        m_length = length;
        return m_text;
    }

  private:
    void Release() {
        if (IsAllocated()) {
            delete[] m_text;
        }
        m_text = m_inline;
        m_inline[0] = 0;
        m_length = 0;
    }
    void Take(PathStorage& other) {
        if (other.IsAllocated()) {
            m_text = other.m_text;
        } else {
            std::memcpy(m_inline, other.Text(), other.Length() + 1 <= N ? other.Length() + 1 : N);
            m_inline[N - 1] = 0;
            m_text = m_inline;
        }
        m_length = other.Length();
        other.m_text = nullptr;
        other.m_length = 0;
    }

    char* m_text;
    char m_inline[N];
    std::size_t m_length;
};
