#pragma once
// Numerals in typed text: Numeral writes the digits of an integer in a buffer of the object's
// own, for any width and a base of 2 to 36, with no heap; the UTF-8 readers take decimal
// numerals by the same rules as their ASCII twins: only the digits 0 to 9, no sign, blank or
// prefix.

#include <cstddef>
#include <type_traits>

#include "text/bytes/ConstData.h"
#include "text/unicode/UString.h"

// A minus sign is written for a negative value only.
class Numeral {
  public:
    // Writes the digits of value in base (2 to 36; letters in lower case above 10).
    template <class T, class = std::enable_if_t<std::is_integral_v<T>>>
    explicit Numeral(T value, unsigned base = 10) {
        unsigned long long magnitude = static_cast<unsigned long long>(value);
        bool negative = false;
        if constexpr (std::is_signed_v<T>) {
            negative = value < 0;
            if (negative) magnitude = 0ULL - magnitude;
        }
        m_signCharacter = Sign(value);
        m_showSign = negative;
        Make(magnitude, base);
    }

    // Returns '-' for a negative value, '+' for a positive one and ' ' for zero.
    template <class T>
    static char Sign(T value) {
        return value < 0 ? '-' : value > 0 ? '+' : ' ';
    }

    // Adds "0" in front of the digits until there are at least count of them.
    // Throws ConstDataCapacityExceeded when the buffer can't hold that many.
    void PadTo(unsigned long count);

    // Returns the number of digits, without the sign.
    std::size_t DigitCount() const;

    // Returns the sign, if shown, and the digits; valid while this object lives and is unchanged.
    operator ConstData() const;
    // Returns the same text, zero-terminated.
    operator UStringRef<USAscii>() const;
    // Returns the same text behind a byte that holds its length.
    operator unsigned char const*() const;

  private:
    static constexpr std::size_t bufferSize = 72;
    // The digits end here; the byte at this index is the terminating zero.
    static constexpr std::size_t digitsEnd = bufferSize - 1;

    void Make(unsigned long long magnitude, unsigned base);
    // Writes the sign, if shown, and the length byte in front of the digits.
    void PlacePrefix();
    unsigned char const* TextBegin() const { return m_buffer + m_cursor - (m_showSign ? 1 : 0); }

    std::size_t m_cursor;
    char m_signCharacter;
    bool m_showSign;
    unsigned char m_buffer[bufferSize];
};

// Returns the value; throws NotANumeral or NumeralTooLarge. Keeps to 32 bits.
unsigned long ReadUTF8DecimalNumeral(UStringRef<UTF8> text);
// Returns the value; throws NotANumeral or NumeralTooLarge.
unsigned long long ReadUTF8DecimalNumeral64(UStringRef<UTF8> text);
