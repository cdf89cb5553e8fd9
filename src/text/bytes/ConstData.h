#pragma once
// Unowned byte ranges and cursors over them: the currency in which text and data are passed
// around. Nothing here owns memory; the bytes must outlive every range that points at them.

#include <cstddef>
#include <string>
#include <vector>

#include "text/bytes/BytesErrors.h"

class Data;

// A read-only range of unsigned bytes from begin to end. The empty value is two null pointers.
class ConstData {
  public:
    unsigned char const* begin;
    unsigned char const* end;

    ConstData() : begin(nullptr), end(nullptr) {}
    ConstData(unsigned char const* b, unsigned char const* e) : begin(b), end(e) {}
    ConstData(unsigned char const* b, std::size_t length) : begin(b), end(b + length) {}
    ConstData(char const* b, char const* e)
        : begin(reinterpret_cast<unsigned char const*>(b)),
          end(reinterpret_cast<unsigned char const*>(e)) {}
    ConstData(char const* b, std::size_t length) : ConstData(b, b + length) {}
    // A C string without its terminating zero; null gives the empty range.
    ConstData(char const* text);  // NOLINT: implicit by design
    // The bytes of the string; valid while the string is unchanged.
    ConstData(std::string const& text)  // NOLINT: implicit by design
        : ConstData(text.data(), text.size()) {}
    ConstData(std::vector<unsigned char> const& bytes)  // NOLINT: implicit by design
        : ConstData(bytes.data(), bytes.size()) {}

    std::size_t Size() const { return static_cast<std::size_t>(end - begin); }
    bool Empty() const { return begin == end; }
    unsigned char operator[](std::size_t index) const { return begin[index]; }
    char const* Chars() const { return reinterpret_cast<char const*>(begin); }

    // Returns whether the range begins (ends) with prefix (suffix); false if that is longer.
    bool StartsWith(ConstData prefix) const;
    bool EndsWith(ConstData suffix) const;

    // Copies as much as fits into target and returns the rest of this range, not copied.
    ConstData operator>>(Data target) const;

    bool Contains(unsigned char byte) const { return PositionOf(byte) >= 0; }
    bool Contains(ConstData needle) const { return PositionOf(needle) >= 0; }
    // Returns the offset of the first hit, or -1. An empty needle or one longer than the range
    // gives -1.
    long PositionOf(unsigned char byte) const;
    long PositionOf(ConstData needle) const;
    // Returns the offsets of the needle, non-overlapping, left to right; empty for an empty needle.
    std::vector<std::size_t> PositionsOf(ConstData needle) const;

    // Returns the pieces between the separators. With trim the whole range, and then each piece,
    // loses its leading and trailing white space. An empty separator, or one longer than the
    // range, gives the one (trimmed) range even if it is empty. Empty pieces are left out unless
    // keepEmpty is set.
    std::vector<ConstData> Split(ConstData separator, bool trim, bool keepEmpty) const;
};

// A writable range of unsigned bytes.
class Data {
  public:
    unsigned char* begin;
    unsigned char* end;

    Data() : begin(nullptr), end(nullptr) {}
    Data(unsigned char* b, unsigned char* e) : begin(b), end(e) {}
    Data(unsigned char* b, std::size_t length) : begin(b), end(b + length) {}
    Data(char* b, char* e)
        : begin(reinterpret_cast<unsigned char*>(b)), end(reinterpret_cast<unsigned char*>(e)) {}
    Data(char* b, std::size_t length) : Data(b, b + length) {}
    template <std::size_t N>
    Data(unsigned char (&array)[N]) : Data(array, N) {}  // NOLINT: implicit by design
    template <std::size_t N>
    Data(char (&array)[N]) : Data(array, N) {}  // NOLINT: implicit by design

    std::size_t Size() const { return static_cast<std::size_t>(end - begin); }
    bool Empty() const { return begin == end; }
    unsigned char& operator[](std::size_t index) const { return begin[index]; }
    operator ConstData() const { return ConstData(begin, end); }
};

// A read cursor and the end of its range. Reading advances the cursor.
class ConstBuffer {
  public:
    unsigned char const* cursor;
    unsigned char const* end;

    ConstBuffer() : cursor(nullptr), end(nullptr) {}
    ConstBuffer(unsigned char const* c, unsigned char const* e) : cursor(c), end(e) {}
    explicit ConstBuffer(ConstData data) : cursor(data.begin), end(data.end) {}

    // Returns the bytes not yet read.
    ConstData Remaining() const { return ConstData(cursor, end); }
    std::size_t Size() const { return static_cast<std::size_t>(end - cursor); }
    bool Empty() const { return cursor == end; }
};

// A write cursor and the end of its range. Writing advances the cursor.
class Buffer {
  public:
    unsigned char* cursor;
    unsigned char* end;

    Buffer() : cursor(nullptr), end(nullptr) {}
    Buffer(unsigned char* c, unsigned char* e) : cursor(c), end(e) {}
    explicit Buffer(Data data) : cursor(data.begin), end(data.end) {}

    // Returns the space not yet written.
    Data Remaining() const { return Data(cursor, end); }
    std::size_t Size() const { return static_cast<std::size_t>(end - cursor); }
    bool Full() const { return cursor == end; }

    // Writes all of the bytes, or throws DataOverflow and writes nothing.
    void Append(ConstData bytes);
    // Writes one byte, or throws DataOverflow.
    void Append(unsigned char byte);
};

// An array of ranges treated as one long value. The array and the bytes belong to the caller.
class ConstDataRopeReference {
  public:
    ConstData const* begin;
    ConstData const* end;

    ConstDataRopeReference() : begin(nullptr), end(nullptr) {}
    ConstDataRopeReference(ConstData const* b, ConstData const* e) : begin(b), end(e) {}
    template <std::size_t N>
    ConstDataRopeReference(ConstData const (&parts)[N])  // NOLINT: implicit by design
        : begin(parts), end(parts + N) {}
    ConstDataRopeReference(std::vector<ConstData> const& parts)  // NOLINT: implicit by design
        : begin(parts.data()), end(parts.data() + parts.size()) {}
};

// Returns whether both have the same length and bytes.
bool operator==(ConstData a, ConstData b);
inline bool operator!=(ConstData a, ConstData b) {
    return !(a == b);
}
// Returns the lexicographic order on unsigned bytes, the shorter first on a tie.
bool operator<(ConstData a, ConstData b);
inline bool operator>(ConstData a, ConstData b) {
    return b < a;
}
inline bool operator<=(ConstData a, ConstData b) {
    return !(b < a);
}
inline bool operator>=(ConstData a, ConstData b) {
    return !(a < b);
}

// Returns the difference of the first differing bytes, else -1, 0 or 1 by length.
int Compare(ConstData a, ConstData b);
// Returns the same as Compare, walking from the last byte towards the first.
int CompareReversed(ConstData a, ConstData b);

// Returns the range without leading Ascii::WhiteSpace; a byte of 0x80 or above stops it.
ConstData TrimLeadingAsciiWhitespace(ConstData data);
// Returns the range without leading and trailing Ascii::WhiteSpace; bytes of 0x80 or above
// stop the trimming.
ConstData TrimAsciiWhitespace(ConstData data);

// Returns a copy of the bytes.
std::string MakeString(ConstData data);
std::string MakeString(ConstDataRopeReference rope);

// Returns the sum of the lengths of the parts.
std::size_t TotalLength(ConstDataRopeReference rope);
// Copy as much of each part as fits, in order, and drop the rest silently. The Data form
// returns the space left unwritten.
Buffer& operator<<(Buffer& target, ConstDataRopeReference rope);
Data operator<<(Data target, ConstDataRopeReference rope);
// Copies as much as fits, advancing both cursors.
Buffer& operator<<(Buffer& target, ConstBuffer& source);
