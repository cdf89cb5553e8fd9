#pragma once
// ASCII character sets and case tables. Unlike the C library's ctype functions these never look
// at the locale: only the 26 letters of each case change, and bytes of 0x80 and above belong to
// no letter, digit or white-space set.

#include <cstdint>
#include <string>

#include "text/bytes/ConstData.h"

namespace Ascii {

// A set of bytes: 256 bits read as eight 32-bit words, the bit for byte b being bit b & 31 of
// word b >> 5.
struct CharacterSet {
    std::uint32_t words[8];

    bool Contains(unsigned char byte) const { return (words[byte >> 5] >> (byte & 31)) & 1u; }
};

// Each returns the one shared set, made under one-time initialisation on first use.
CharacterSet const& UppercaseAlphabet();  // A to Z
CharacterSet const& LowercaseAlphabet();  // a to z
CharacterSet const& Alphabetic();         // A to Z, a to z
CharacterSet const& Alphabetic_();        // letters and underscore
CharacterSet const& Numeric();            // 0 to 9
CharacterSet const& Alphanumeric();       // letters and digits
CharacterSet const& Alphanumeric_();      // letters, digits and underscore
CharacterSet const& HexDigits();          // 0 to 9, A to F, a to f
CharacterSet const& Punctuation();        // 0x21 to 0x7E that are neither letters nor digits
CharacterSet const& LinearWhiteSpace();   // tab and space
CharacterSet const& WhiteSpace();         // tab, line feed, carriage return, space
CharacterSet const& Low();                // 0x00 to 0x7F
CharacterSet const& High();               // 0x80 to 0xFF
CharacterSet const& Control();            // 0x00 to 0x1F and 0x7F
CharacterSet const& PlainText();          // 0x20 to 0x7E
CharacterSet const& Printable();          // 0x21 to 0x7E
CharacterSet const& Unprintable();        // 0x00 to 0x20, 0x7F to 0xFF

// A byte-to-byte table of 256 entries.
struct CaseTable {
    unsigned char bytes[256];

    unsigned char operator[](unsigned char byte) const { return bytes[byte]; }
};

// Map a to z to A to Z (uppercaseTable) or back (lowercaseTable), every other byte to itself.
extern CaseTable const uppercaseTable;
extern CaseTable const lowercaseTable;

// Returns whether both tables change exactly the 26 letters of their case.
bool CaseTablesAreCorrect();

// Returns the lower-case hexadecimal digit for a value of 0 to 15.
inline unsigned char HexDigit(unsigned value) {
    return static_cast<unsigned char>(value < 10 ? '0' + value : 'a' + value - 10);
}
// Returns the value of a hexadecimal digit. A byte below 0x3A counts as a decimal digit; any
// other has its case folded and 0x57 taken off. There is no check: callers test HexDigits first.
inline unsigned HexDigitValue(unsigned char digit) {
    return digit < 0x3A ? unsigned(digit - '0') : unsigned((digit | 0x20) - 0x57);
}

// Returns a copy with the letters raised (lowered).
std::string RaiseCase(ConstData text);
std::string LowerCase(ConstData text);
// Write the bytes of text into target with the letters raised (lowered), as many as fit, and
// return the part of target that was written.
Data RaiseCase(ConstData text, Data target);
Data LowerCase(ConstData text, Data target);
// Move as many bytes as fit from source to target with the letters raised (lowered), advancing
// both cursors.
void RaiseCase(ConstBuffer& source, Buffer& target);
void LowerCase(ConstBuffer& source, Buffer& target);

// Returns whether the range is unchanged by lowercaseTable (uppercaseTable).
bool IsLowercase(ConstData text);
bool IsUppercase(ConstData text);

// Compare byte for byte through the table: the result is the difference of the first differing
// folded bytes, and after that the shorter range is less.
int CompareLowercase(ConstData a, ConstData b);
int CompareUppercase(ConstData a, ConstData b);
// Returns whether the ranges are equal after folding their case.
bool EqualIgnoringCase(ConstData a, ConstData b);

}  // namespace Ascii
