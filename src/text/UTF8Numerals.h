#pragma once
// Decimal numerals read from UTF-8 text, by the same rules as their ASCII twins: only the digits
// 0 to 9, no sign, blank or prefix.

#include "text/UString.h"

// Returns the value; throws NotANumeral or NumeralTooLarge. Keeps to 32 bits.
unsigned long ReadUTF8DecimalNumeral(UStringRef<UTF8> text);
// Returns the value; throws NotANumeral or NumeralTooLarge.
unsigned long long ReadUTF8DecimalNumeral64(UStringRef<UTF8> text);
