#include "text/bytes/AsciiNumerals.h"

#include "text/bytes/Ascii.h"
#include "text/bytes/CheckedArithmetic.h"

namespace {

enum Status { success = 0, notANumeral = 1, tooLarge = 2 };

// Overflow is tested before the byte, so too many digits followed by a bad byte is too large.
int TryReadUnsigned64(ConstData text, unsigned long long base, unsigned long long& result) {
    if (text.Empty()) return notANumeral;
    result = 0;
    for (unsigned char const* p = text.begin; p != text.end; ++p) {
        if (!CanMultiply(result, base)) return tooLarge;
        result *= base;
        unsigned long long digit;
        if (base == 10) {
            if (*p < '0' || *p > '9') return notANumeral;
            digit = *p - '0';
        } else {
            if (!Ascii::HexDigits().Contains(*p)) return notANumeral;
            digit = Ascii::HexDigitValue(*p);
        }
        if (!CanAdd(result, digit)) return tooLarge;
        result += digit;
    }
    return success;
}

int TryReadUnsigned32(ConstData text, unsigned long long base, unsigned long& result) {
    unsigned long long wide = 0;
    int status = TryReadUnsigned64(text, base, wide);
    result = static_cast<unsigned long>(wide);
    if (status == success && (wide >> 32) != 0) return tooLarge;
    return status;
}

// Writes the digits of magnitude backwards, then the sign, and checks the capacity.
template <std::size_t Capacity>
FixedCapacityText<Capacity> MakeNumeral(unsigned long long magnitude, bool negative, unsigned base,
                                        unsigned long minimumDigits) {
    if (minimumDigits > Capacity) throw ConstDataCapacityExceeded();
    unsigned char digits[Capacity];
    unsigned char* cursor = digits + sizeof digits;
    unsigned long count = 0;
    while (magnitude != 0 || count < minimumDigits) {
        if (cursor == digits) throw ConstDataCapacityExceeded();
        *--cursor = Ascii::HexDigit(static_cast<unsigned>(magnitude % base));
        magnitude /= base;
        ++count;
    }
    if (negative) {
        if (cursor == digits) throw ConstDataCapacityExceeded();
        *--cursor = '-';
    }
    return FixedCapacityText<Capacity>(ConstData(cursor, digits + sizeof digits));
}

unsigned long long Magnitude(long long value) {
    return value < 0 ? 0ULL - static_cast<unsigned long long>(value)
                     : static_cast<unsigned long long>(value);
}

// The Read... forms over their Try... form: one throws on failure, one gives the default.
template <class T, int (*TryRead)(ConstData, T&)>
T ReadOrThrow(ConstData text) {
    T value = 0;
    int const status = TryRead(text, value);
    if (status == notANumeral) throw NotANumeral();
    if (status == tooLarge) throw NumeralTooLarge();
    return value;
}

template <class T, int (*TryRead)(ConstData, T&)>
T ReadOrDefault(ConstData text, T defaultValue) {
    T value = 0;
    return TryRead(text, value) == success ? value : defaultValue;
}

}  // namespace

int TryReadAsciiDecimalNumeral(ConstData text, unsigned long long& result) {
    return TryReadUnsigned64(text, 10, result);
}

int TryReadAsciiDecimalNumeral(ConstData text, unsigned long& result) {
    return TryReadUnsigned32(text, 10, result);
}

int TryReadAsciiDecimalNumeral(ConstData text, long long& result) {
    if (text.Empty()) return notANumeral;
    unsigned long long magnitude = 0;
    unsigned long long const limit = 0x8000000000000000ULL;
    if (text[0] == '-') {
        int status = TryReadUnsigned64(ConstData(text.begin + 1, text.end), 10, magnitude);
        if (status != success) return status;
        if (magnitude > limit) return tooLarge;
        result = static_cast<long long>(0ULL - magnitude);
        return success;
    }
    if (text[0] == '+') ++text.begin;
    int status = TryReadUnsigned64(text, 10, magnitude);
    if (status != success) return status;
    if (magnitude >= limit) return tooLarge;
    result = static_cast<long long>(magnitude);
    return success;
}

int TryReadAsciiDecimalNumeral(ConstData text, long& result) {
    long long wide = 0;
    int status = TryReadAsciiDecimalNumeral(text, wide);
    result = static_cast<long>(wide);
    if (status == success && (wide < -0x80000000LL || wide > 0x7FFFFFFFLL)) return tooLarge;
    return status;
}

int TryReadAsciiHexNumeral(ConstData text, unsigned long long& result) {
    return TryReadUnsigned64(text, 16, result);
}

int TryReadAsciiHexNumeral(ConstData text, unsigned long& result) {
    return TryReadUnsigned32(text, 16, result);
}

unsigned long ReadAsciiDecimalNumeral(ConstData text) {
    return ReadOrThrow<unsigned long, TryReadAsciiDecimalNumeral>(text);
}

unsigned long long ReadAsciiDecimalNumeral64(ConstData text) {
    return ReadOrThrow<unsigned long long, TryReadAsciiDecimalNumeral>(text);
}

long ReadAsciiSignedDecimalNumeral(ConstData text) {
    return ReadOrThrow<long, TryReadAsciiDecimalNumeral>(text);
}

long long ReadAsciiSignedDecimalNumeral64(ConstData text) {
    return ReadOrThrow<long long, TryReadAsciiDecimalNumeral>(text);
}

unsigned long ReadAsciiHexNumeral(ConstData text) {
    return ReadOrThrow<unsigned long, TryReadAsciiHexNumeral>(text);
}

unsigned long long ReadAsciiHexNumeral64(ConstData text) {
    return ReadOrThrow<unsigned long long, TryReadAsciiHexNumeral>(text);
}

unsigned long ReadAsciiDecimalNumeral32WithDefault(ConstData text, unsigned long defaultValue) {
    return ReadOrDefault<unsigned long, TryReadAsciiDecimalNumeral>(text, defaultValue);
}

unsigned long long ReadAsciiDecimalNumeral64WithDefault(ConstData text,
                                                        unsigned long long defaultValue) {
    return ReadOrDefault<unsigned long long, TryReadAsciiDecimalNumeral>(text, defaultValue);
}

long ReadAsciiSignedDecimalNumeral32WithDefault(ConstData text, long defaultValue) {
    return ReadOrDefault<long, TryReadAsciiDecimalNumeral>(text, defaultValue);
}

long long ReadAsciiSignedDecimalNumeral64WithDefault(ConstData text, long long defaultValue) {
    return ReadOrDefault<long long, TryReadAsciiDecimalNumeral>(text, defaultValue);
}

FixedCapacityText<10> MakeAsciiDecimalNumeral(unsigned long value, unsigned long minimumDigits) {
    return MakeNumeral<10>(value, false, 10, minimumDigits);
}

FixedCapacityText<20> MakeAsciiDecimalNumeral64(unsigned long long value,
                                                unsigned long minimumDigits) {
    return MakeNumeral<20>(value, false, 10, minimumDigits);
}

FixedCapacityText<11> MakeAsciiSignedDecimalNumeral(long value, unsigned long minimumDigits) {
    return MakeNumeral<11>(Magnitude(value), value < 0, 10, minimumDigits);
}

FixedCapacityText<21> MakeAsciiSignedDecimalNumeral64(long long value,
                                                      unsigned long minimumDigits) {
    return MakeNumeral<21>(Magnitude(value), value < 0, 10, minimumDigits);
}

FixedCapacityText<8> MakeAsciiHexNumeral(unsigned long value, unsigned long minimumDigits) {
    return MakeNumeral<8>(value, false, 16, minimumDigits);
}

FixedCapacityText<16> MakeAsciiHexNumeral64(unsigned long long value, unsigned long minimumDigits) {
    return MakeNumeral<16>(value, false, 16, minimumDigits);
}
