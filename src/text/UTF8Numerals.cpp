#include "text/UTF8Numerals.h"

#include "text/AsciiNumerals.h"

unsigned long ReadUTF8DecimalNumeral(UStringRef<UTF8> text) {
    return ReadAsciiDecimalNumeral(ConstData(text.begin, text.end));
}

unsigned long long ReadUTF8DecimalNumeral64(UStringRef<UTF8> text) {
    return ReadAsciiDecimalNumeral64(ConstData(text.begin, text.end));
}
