#pragma once
// Numbers to and from their ASCII text, decimal and hexadecimal, with no sign, blank or prefix
// accepted on reading other than one leading "-" or "+" for the signed forms.
//
// The Try... forms return a status: 0 success, 1 not a numeral, 2 too large, and never throw;
// the result may be changed even on failure. The Read... forms throw NotANumeral for status 1
// and NumeralTooLarge for status 2. The ...WithDefault forms give the default on any failure.
// The forms without 64 in their name keep to 32 bits whatever the size of long.

#include "text/bytes/ConstData.h"
#include "text/bytes/FixedCapacityText.h"

int TryReadAsciiDecimalNumeral(ConstData text, unsigned long long& result);
// The 32-bit form: status 2 for a value above 0xFFFFFFFF.
int TryReadAsciiDecimalNumeral(ConstData text, unsigned long& result);
int TryReadAsciiDecimalNumeral(ConstData text, long long& result);
// The 32-bit form: status 2 for a value outside the 32-bit signed range.
int TryReadAsciiDecimalNumeral(ConstData text, long& result);
int TryReadAsciiHexNumeral(ConstData text, unsigned long long& result);
// The 32-bit form: status 2 for a value above 0xFFFFFFFF.
int TryReadAsciiHexNumeral(ConstData text, unsigned long& result);

unsigned long ReadAsciiDecimalNumeral(ConstData text);
unsigned long long ReadAsciiDecimalNumeral64(ConstData text);
long ReadAsciiSignedDecimalNumeral(ConstData text);
long long ReadAsciiSignedDecimalNumeral64(ConstData text);
unsigned long ReadAsciiHexNumeral(ConstData text);
unsigned long long ReadAsciiHexNumeral64(ConstData text);

unsigned long ReadAsciiDecimalNumeral32WithDefault(ConstData text, unsigned long defaultValue);
unsigned long long ReadAsciiDecimalNumeral64WithDefault(ConstData text,
                                                        unsigned long long defaultValue);
long ReadAsciiSignedDecimalNumeral32WithDefault(ConstData text, long defaultValue);
long long ReadAsciiSignedDecimalNumeral64WithDefault(ConstData text, long long defaultValue);

// Returns the digits of value, at least minimumDigits of them with leading zeros; value 0 with
// a minimum of 0 gives the empty text, so a caller that wants "0" asks for at least 1.
// Throws ConstDataCapacityExceeded when the digits, with the sign, pass the capacity.
// Hexadecimal digits are lower case. Nothing here uses the heap.
FixedCapacityText<10> MakeAsciiDecimalNumeral(unsigned long value, unsigned long minimumDigits);
FixedCapacityText<20> MakeAsciiDecimalNumeral64(unsigned long long value,
                                                unsigned long minimumDigits);
FixedCapacityText<11> MakeAsciiSignedDecimalNumeral(long value, unsigned long minimumDigits);
FixedCapacityText<21> MakeAsciiSignedDecimalNumeral64(long long value, unsigned long minimumDigits);
FixedCapacityText<8> MakeAsciiHexNumeral(unsigned long value, unsigned long minimumDigits);
FixedCapacityText<16> MakeAsciiHexNumeral64(unsigned long long value, unsigned long minimumDigits);
