#pragma once
// Encoding tags. Every text value is typed by one of these, so that text in one encoding can't be
// handed where another is wanted without an explicit conversion. The tags are empty; each names
// the type of its code unit.

#include <cstdint>

// UTF-8 code units.
struct UTF8 {
    typedef std::uint8_t Unit;
};

// UTF-16 code units in host byte order.
struct UTF16 {
    typedef std::uint16_t Unit;
};

// One code point a unit. The unit has the width and representation of the platform's wide
// character (32 bits here), so a UTF-32 buffer can be passed to wcstombs and filled by mbstowcs.
struct UTF32 {
    typedef std::uint32_t Unit;
};

// 7-bit text.
struct USAscii {
    typedef std::uint8_t Unit;
};

// The multibyte encoding of the current LC_CTYPE locale, in the C library's char.
struct Local8Bit {
    typedef char Unit;
};
