#include "text/bytes/Stringy.h"

#include <algorithm>
#include <cctype>
#include <cstring>
#include <limits>

#include "text/bytes/Ascii.h"
#include "text/bytes/AsciiNumerals.h"

namespace {

bool IsWhite(char c) {
    return c == ' ' || c == '\t' || c == '\r' || c == '\n';
}

long Clamp(long value, long low, long high) {
    return std::max(low, std::min(value, high));
}

}  // namespace

Stringy::Stringy(char const* text) : Stringy() {
    if (text) Assign(text, std::strlen(text));
}

Stringy::Stringy(ConstData bytes) : Stringy() {
    Assign(bytes.Chars(), bytes.Size());
}

Stringy::Stringy(char const* text, unsigned long length) : Stringy() {
    if (length == std::numeric_limits<unsigned long>::max()) throw StringyLengthTooLong();
    Assign(text, length);
}

Stringy::Stringy(unsigned char const* text, unsigned long length)
    : Stringy(reinterpret_cast<char const*>(text), length) {}

Stringy::Stringy(int value) : Stringy(ConstData(MakeAsciiSignedDecimalNumeral64(value, 1))) {}

Stringy::Stringy(unsigned long value) : Stringy(ConstData(MakeAsciiDecimalNumeral64(value, 1))) {}

Stringy::Stringy(unsigned long long value)
    : Stringy(ConstData(MakeAsciiDecimalNumeral64(value, 1))) {}

Stringy::Stringy(Stringy const& other) : Stringy() {
    Assign(other.m_pointer, other.Length());
}

Stringy& Stringy::operator=(Stringy const& other) {
    if (this != &other) Assign(other.m_pointer, other.Length());
    return *this;
}

Stringy::~Stringy() {
    Release();
}

void Stringy::Release() {
    if (m_pointer != m_inline) delete[] m_pointer;
    m_pointer = nullptr;
    m_size = 0;
}

// The bytes may lie inside this string's own storage, so they are copied before it is freed.
void Stringy::Assign(char const* bytes, std::size_t length) {
    if (length == 0) {
        Release();
        return;
    }
    if (length + 1 <= inlineBytes) {
        char copy[inlineBytes];
        std::memcpy(copy, bytes, length);
        Release();
        std::memcpy(m_inline, copy, length);
        m_pointer = m_inline;
    } else {
        char* heap = new char[length + 1];
        std::memcpy(heap, bytes, length);
        Release();
        m_pointer = heap;
    }
    m_pointer[length] = 0;
    m_size = length + 1;
}

long Stringy::Find(char c) const {
    for (std::size_t i = 0; i < Length(); ++i) {
        if (m_pointer[i] == c) return static_cast<long>(i);
    }
    return -1;
}

long Stringy::FindFromRight(char c) const {
    for (std::size_t i = Length(); i > 0; --i) {
        if (m_pointer[i - 1] == c) return static_cast<long>(i - 1);
    }
    return -1;
}

unsigned long Stringy::Replace(char from, char to) {
    unsigned long count = 0;
    for (std::size_t i = 0; i < Length(); ++i) {
        if (m_pointer[i] == from) {
            m_pointer[i] = to;
            ++count;
        }
    }
    return count;
}

void Stringy::MakeLower() {
    for (std::size_t i = 0; i < Length(); ++i) {
        m_pointer[i] = static_cast<char>(std::tolower(static_cast<unsigned char>(m_pointer[i])));
    }
}

void Stringy::MakeUpper() {
    for (std::size_t i = 0; i < Length(); ++i) {
        m_pointer[i] = static_cast<char>(std::toupper(static_cast<unsigned char>(m_pointer[i])));
    }
}

bool Stringy::StartsWith(char const* prefix) const {
    if (!prefix || !*prefix) return true;
    return std::strncmp(CString(), prefix, std::strlen(prefix)) == 0;
}

bool Stringy::StartsWithIgnoringCase(char const* prefix) const {
    if (!prefix || !*prefix) return true;
    ConstData mine(CString());
    ConstData wanted(prefix);
    return mine.Size() >= wanted.Size() &&
           Ascii::EqualIgnoringCase(ConstData(mine.begin, wanted.Size()), wanted);
}

bool Stringy::Contains(char const* text) const {
    return std::strstr(CString(), text ? text : "") != nullptr;
}

int Stringy::Compare(char const* other) const {
    return std::strcmp(CString(), other ? other : "");
}

int Stringy::CompareNoCase(char const* other) const {
    return Ascii::CompareUppercase(ConstData(CString()), ConstData(other));
}

Stringy& Stringy::operator+=(ConstData bytes) {
    if (bytes.Empty()) return *this;
    std::size_t length = Length();
    std::size_t total = length + bytes.Size();
    if (total + 1 <= inlineBytes) {
        // Inline before and after: append in place. The source may be this string's own bytes.
        if (m_pointer != m_inline) {
            std::memcpy(m_inline, CString(), length);
            m_pointer = m_inline;
        }
        std::memmove(m_inline + length, bytes.begin, bytes.Size());
    } else {
        char* heap = new char[total + 1];
        std::memcpy(heap, CString(), length);
        std::memcpy(heap + length, bytes.begin, bytes.Size());
        Release();
        m_pointer = heap;
    }
    m_pointer[total] = 0;
    m_size = total + 1;
    return *this;
}

Stringy& Stringy::operator+=(char c) {
    if (c == 0) return *this;
    return *this += ConstData(&c, 1);
}

Stringy& Stringy::operator+=(char const* text) {
    return *this += ConstData(text);
}

Stringy& Stringy::operator+=(Stringy const& other) {
    return *this += ConstData(other);
}

Stringy Stringy::Left(long count) const {
    return Mid(0, count);
}

Stringy Stringy::Right(long count) const {
    long length = static_cast<long>(Length());
    count = Clamp(count, 0, length);
    return Mid(length - count, count);
}

Stringy Stringy::Mid(long start, long count) const {
    long length = static_cast<long>(Length());
    start = Clamp(start, 0, length);
    count = Clamp(count, 0, length - start);
    return Stringy(ConstData(m_pointer + start, static_cast<std::size_t>(count)));
}

Stringy Stringy::Mid(long start) const {
    return Mid(start, static_cast<long>(Length()));
}

Stringy Stringy::SubstringAfterLastSeparator(char separator) const {
    long hit = FindFromRight(separator);
    if (hit < 0) return Stringy();
    Stringy result = Mid(hit + 1);
    result.StripLeadingAndTrailingWhite();
    return result;
}

void Stringy::StripLeadingAndTrailingWhite() {
    std::size_t begin = 0;
    std::size_t end = Length();
    while (begin < end && IsWhite(m_pointer[begin])) ++begin;
    while (end > begin && IsWhite(m_pointer[end - 1])) --end;
    if (begin != 0 || end != Length()) Assign(m_pointer + begin, end - begin);
}

void Stringy::TrimLeft() {
    std::size_t begin = 0;
    while (begin < Length() && IsWhite(m_pointer[begin])) ++begin;
    if (begin != 0) Assign(m_pointer + begin, Length() - begin);
}

unsigned long SplitSeparatedStringsIntoArray(char const* text, char separator,
                                             std::vector<Stringy>& out, unsigned long maximum,
                                             bool strip) {
    if (!text || maximum == 0 || !*text) return 0;
    unsigned long count = 0;
    char const* begin = text;
    while (true) {
        char const* hit = count + 1 < maximum ? std::strchr(begin, separator) : nullptr;
        if (separator == 0) hit = nullptr;
        std::size_t length = hit ? static_cast<std::size_t>(hit - begin) : std::strlen(begin);
        Stringy piece(ConstData(begin, length));
        if (strip) piece.StripLeadingAndTrailingWhite();
        out.push_back(piece);
        ++count;
        if (!hit) return count;
        begin = hit + 1;
    }
}
