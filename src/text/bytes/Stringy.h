#pragma once
// A byte string that keeps up to 127 bytes in the object itself and only longer texts on the
// heap. It is always zero-terminated, and an embedded zero ends it for every operation that
// rests on C strings (Compare, Contains, StartsWith, the comparison operators).

#include <cstddef>
#include <vector>

#include "text/bytes/ConstData.h"

class Stringy {
  public:
    static constexpr std::size_t inlineBytes = 128;

    Stringy() : m_pointer(nullptr), m_size(0) {}
    // Copies a C string; null gives the empty string.
    Stringy(char const* text);  // NOLINT: implicit by design
    Stringy(ConstData bytes);   // NOLINT: implicit by design
    // Copies length bytes. Throws StringyLengthTooLong if length plus one overflows.
    Stringy(char const* text, unsigned long length);
    Stringy(unsigned char const* text, unsigned long length);
    // The decimal text of the number.
    explicit Stringy(int value);
    explicit Stringy(unsigned long value);
    explicit Stringy(unsigned long long value);
    Stringy(Stringy const& other);
    Stringy& operator=(Stringy const& other);
    ~Stringy();

    // Returns the length without the terminating zero.
    std::size_t Length() const { return m_size ? m_size - 1 : 0; }
    bool Empty() const { return m_size == 0; }
    // Returns whether the text lives in the object itself (the empty string counts as inline).
    bool Inline() const { return m_pointer == nullptr || m_pointer == m_inline; }
    // Returns the zero-terminated text; "" for the empty string. Valid until the next change.
    char const* CString() const { return m_pointer ? m_pointer : ""; }
    operator ConstData() const { return ConstData(m_pointer, Length()); }

    // Returns the byte at index, or 0 beyond the end.
    char operator[](std::size_t index) const { return index < Length() ? m_pointer[index] : 0; }

    // Returns the index of the first (last) hit, or -1.
    long Find(char c) const;
    long FindFromRight(char c) const;
    // Replaces every hit and returns their number.
    unsigned long Replace(char from, char to);
    // Change case through the C library, and so through the locale.
    void MakeLower();
    void MakeUpper();

    // Returns true for a null or empty prefix.
    bool StartsWith(char const* prefix) const;
    bool StartsWithIgnoringCase(char const* prefix) const;
    bool Contains(char const* text) const;

    // Returns the order of strcmp (Ascii::CompareUppercase for CompareNoCase).
    int Compare(char const* other) const;
    int CompareNoCase(char const* other) const;

    // Append; a zero char adds nothing.
    Stringy& operator+=(ConstData bytes);
    Stringy& operator+=(char c);
    Stringy& operator+=(char const* text);
    Stringy& operator+=(Stringy const& other);

    // Returns a part. A negative count or start counts as 0; the range is clamped to the string.
    Stringy Left(long count) const;
    Stringy Right(long count) const;
    Stringy Mid(long start, long count) const;
    Stringy Mid(long start) const;

    // Returns the text behind the last separator, stripped of white space; empty with no hit.
    Stringy SubstringAfterLastSeparator(char separator) const;
    // Remove space, tab, CR and LF at both ends (at the start only); a string with nothing else
    // becomes empty.
    void StripLeadingAndTrailingWhite();
    void TrimLeft();

  private:
    void Assign(char const* bytes, std::size_t length);
    void Release();

    char* m_pointer;
    std::size_t m_size;
    char m_inline[inlineBytes];
};

// The comparisons all rest on Compare.
inline bool operator==(Stringy const& a, char const* b) {
    return a.Compare(b) == 0;
}
inline bool operator!=(Stringy const& a, char const* b) {
    return a.Compare(b) != 0;
}
inline bool operator<(Stringy const& a, char const* b) {
    return a.Compare(b) < 0;
}
inline bool operator>(Stringy const& a, char const* b) {
    return a.Compare(b) > 0;
}
inline bool operator<=(Stringy const& a, char const* b) {
    return a.Compare(b) <= 0;
}
inline bool operator>=(Stringy const& a, char const* b) {
    return a.Compare(b) >= 0;
}
inline bool operator==(Stringy const& a, Stringy const& b) {
    return a.Compare(b.CString()) == 0;
}
inline bool operator!=(Stringy const& a, Stringy const& b) {
    return a.Compare(b.CString()) != 0;
}
inline bool operator<(Stringy const& a, Stringy const& b) {
    return a.Compare(b.CString()) < 0;
}
inline bool operator>(Stringy const& a, Stringy const& b) {
    return a.Compare(b.CString()) > 0;
}
inline bool operator<=(Stringy const& a, Stringy const& b) {
    return a.Compare(b.CString()) <= 0;
}
inline bool operator>=(Stringy const& a, Stringy const& b) {
    return a.Compare(b.CString()) >= 0;
}

// Cuts text at each separator into at most maximum pieces, appends them to out (each stripped
// of white space when strip is set) and returns their number. Once maximum - 1 pieces are cut,
// the last piece holds the rest of the text, separators included. Null text, a maximum of 0 or
// an empty text give 0.
unsigned long SplitSeparatedStringsIntoArray(char const* text, char separator,
                                             std::vector<Stringy>& out, unsigned long maximum,
                                             bool strip);
