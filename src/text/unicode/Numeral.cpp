#include "text/unicode/Numeral.h"

#include "text/bytes/Ascii.h"
#include "text/bytes/AsciiNumerals.h"

void Numeral::Make(unsigned long long magnitude, unsigned base) {
    m_cursor = digitsEnd;
    m_buffer[digitsEnd] = 0;
    do {
        m_buffer[--m_cursor] = Ascii::HexDigit(static_cast<unsigned>(magnitude % base));
        magnitude /= base;
    } while (magnitude != 0);
    PlacePrefix();
}

void Numeral::PlacePrefix() {
    std::size_t begin = m_cursor;
    if (m_showSign) m_buffer[--begin] = static_cast<unsigned char>(m_signCharacter);
    m_buffer[begin - 1] = static_cast<unsigned char>(digitsEnd - begin);
}

void Numeral::PadTo(unsigned long count) {
    // Room must stay for the sign and the length byte.
    if (count > digitsEnd - 2) throw ConstDataCapacityExceeded();
    while (DigitCount() < count) m_buffer[--m_cursor] = '0';
    PlacePrefix();
}

std::size_t Numeral::DigitCount() const {
    return digitsEnd - m_cursor;
}

Numeral::operator ConstData() const {
    return ConstData(TextBegin(), m_buffer + digitsEnd);
}

Numeral::operator UStringRef<USAscii>() const {
    return UStringRef<USAscii>(TextBegin(), m_buffer + digitsEnd, true);
}

Numeral::operator unsigned char const*() const {
    return TextBegin() - 1;
}

unsigned long ReadUTF8DecimalNumeral(UStringRef<UTF8> text) {
    return ReadAsciiDecimalNumeral(ConstData(text.begin, text.end));
}

unsigned long long ReadUTF8DecimalNumeral64(UStringRef<UTF8> text) {
    return ReadAsciiDecimalNumeral64(ConstData(text.begin, text.end));
}
