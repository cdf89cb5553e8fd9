#include <gtest/gtest.h>

#include <climits>
#include <cstdio>
#include <cstring>
#include <random>
#include <string>

#include "testing/TestText.h"
#include "text/bytes/AsciiNumerals.h"
#include "text/unicode/Numeral.h"

namespace {

template <class T>
int Status(char const* text) {
    T value{};
    return TryReadAsciiDecimalNumeral(ConstData(text), value);
}

}  // namespace

TEST(AsciiNumerals, DecimalLimitsAndRejections) {
    // Status 0 is a value, 1 not a numeral, 2 too large; the unsigned form takes no sign.
    struct Case {
        char const* text;
        int unsignedStatus;
        unsigned long long unsignedValue;
        int signedStatus;
        long long signedValue;
    } const cases[] = {
        {"18446744073709551615", 0, ULLONG_MAX, 2, 0},
        {"018446744073709551615", 0, ULLONG_MAX, 2, 0},
        {"18446744073709551616", 2, 0, 2, 0},
        // Too many digits come before the bad byte, so the text is too large, not bad.
        {"184467440737095516150x", 2, 0, 2, 0},
        {"9223372036854775807", 0, LLONG_MAX, 0, LLONG_MAX},
        {"9223372036854775808", 0, 9223372036854775808ULL, 2, 0},
        {"+9223372036854775807", 1, 0, 0, LLONG_MAX},
        {"-9223372036854775808", 1, 0, 0, LLONG_MIN},
        {"-9223372036854775809", 1, 0, 2, 0},
        {"-18446744073709551616", 1, 0, 2, 0},
        {"00000000000000000000000000000042", 0, 42, 0, 42},
        {"0", 0, 0, 0, 0},
        {"-0", 1, 0, 0, 0},
        {"+7", 1, 0, 0, 7},
        {"-7", 1, 0, 0, -7},
        {"12a", 1, 0, 1, 0},
        {"", 1, 0, 1, 0},
        {" 7", 1, 0, 1, 0},
        {"7 ", 1, 0, 1, 0},
        {"0x7", 1, 0, 1, 0},
        {"-", 1, 0, 1, 0},
        {"+", 1, 0, 1, 0},
        {"--1", 1, 0, 1, 0},
        {"+-1", 1, 0, 1, 0},
    };
    for (Case const& c : cases) {
        unsigned long long u = 0;
        long long s = 0;
        EXPECT_EQ(c.unsignedStatus, TryReadAsciiDecimalNumeral(ConstData(c.text), u)) << c.text;
        EXPECT_EQ(c.signedStatus, TryReadAsciiDecimalNumeral(ConstData(c.text), s)) << c.text;
        // The value is only looked at when it was read.
        EXPECT_EQ(c.unsignedValue, c.unsignedStatus ? c.unsignedValue : u) << c.text;
        EXPECT_EQ(c.signedValue, c.signedStatus ? c.signedValue : s) << c.text;
    }
    // The throwing forms map the statuses to their exceptions.
    EXPECT_EQ(ULLONG_MAX, ReadAsciiDecimalNumeral64("18446744073709551615"));
    EXPECT_THROW(ReadAsciiDecimalNumeral64("18446744073709551616"), NumeralTooLarge);
    EXPECT_THROW(ReadAsciiDecimalNumeral64("0x7"), NotANumeral);
    EXPECT_EQ(0, ReadAsciiSignedDecimalNumeral64("-0"));
    EXPECT_EQ(7, ReadAsciiSignedDecimalNumeral("+7"));
    EXPECT_THROW(ReadAsciiSignedDecimalNumeral64(" 7"), NotANumeral);
    EXPECT_THROW(ReadAsciiSignedDecimalNumeral64("9223372036854775808"), NumeralTooLarge);
}

TEST(AsciiNumerals, ThirtyTwoBitFormsStopAtThirtyTwoBits) {
    EXPECT_EQ(0, Status<unsigned long>("4294967295"));
    EXPECT_EQ(2, Status<unsigned long>("4294967296"));
    EXPECT_EQ(0, Status<long>("2147483647"));
    EXPECT_EQ(2, Status<long>("2147483648"));
    EXPECT_EQ(0, Status<long>("-2147483648"));
    EXPECT_EQ(2, Status<long>("-2147483649"));
    EXPECT_EQ(-2147483648L, ReadAsciiSignedDecimalNumeral("-2147483648"));
    EXPECT_THROW(ReadAsciiDecimalNumeral("4294967296"), NumeralTooLarge);
    EXPECT_EQ(0xFFFFFFFFUL, ReadAsciiHexNumeral("FFFFffff"));
    EXPECT_THROW(ReadAsciiHexNumeral("100000000"), NumeralTooLarge);
    EXPECT_EQ(0xFFFFFFFFFFFFFFFFULL, ReadAsciiHexNumeral64("ffffffffffffffff"));
    EXPECT_THROW(ReadAsciiHexNumeral64("10000000000000000"), NumeralTooLarge);
    EXPECT_THROW(ReadAsciiHexNumeral64("fg"), NotANumeral);
    EXPECT_THROW(ReadAsciiHexNumeral64("0x1"), NotANumeral);
}

TEST(AsciiNumerals, WithDefaultGivesDefaultOnAnyFailure) {
    EXPECT_EQ(5UL, ReadAsciiDecimalNumeral32WithDefault("4294967296", 5));
    EXPECT_EQ(12UL, ReadAsciiDecimalNumeral32WithDefault("12", 5));
    EXPECT_EQ(-5LL, ReadAsciiSignedDecimalNumeral64WithDefault("-", -5));
    EXPECT_EQ(LLONG_MIN, ReadAsciiSignedDecimalNumeral64WithDefault("-9223372036854775808", 1));
}

TEST(AsciiNumerals, MakeHonoursMinimumDigitsAndCapacity) {
    // The 64-bit unsigned form against printf is in the random test below.
    EXPECT_EQ("-9223372036854775808", Str(MakeAsciiSignedDecimalNumeral64(LLONG_MIN, 0)));
    EXPECT_EQ("-005", Str(MakeAsciiSignedDecimalNumeral64(-5, 3)));
    EXPECT_EQ("-005", Str(MakeAsciiSignedDecimalNumeral(-5, 3)));
    EXPECT_EQ("4294967295", Str(MakeAsciiDecimalNumeral(4294967295UL, 0)));
    EXPECT_EQ("-2147483648", Str(MakeAsciiSignedDecimalNumeral(-2147483647L - 1, 0)));
    EXPECT_EQ("00ff", Str(MakeAsciiHexNumeral(255, 4)));
    EXPECT_STREQ("007", MakeAsciiDecimalNumeral(7, 3).CString());

    // Exactly at each capacity works (giving length bytes); one more digit fails.
    auto const capacity = [](auto make, unsigned digits, std::size_t length) {
        EXPECT_EQ(length, make(digits).Length()) << digits;
        EXPECT_THROW(make(digits + 1), ConstDataCapacityExceeded) << digits;
    };
    capacity([](unsigned d) { return MakeAsciiDecimalNumeral64(1, d); }, 20, 20);
    capacity([](unsigned d) { return MakeAsciiSignedDecimalNumeral64(-1, d); }, 20, 21);
    capacity([](unsigned d) { return MakeAsciiSignedDecimalNumeral64(1, d); }, 21, 21);
    capacity([](unsigned d) { return MakeAsciiDecimalNumeral(1, d); }, 10, 10);
    capacity([](unsigned d) { return MakeAsciiSignedDecimalNumeral(-1, d); }, 10, 11);
    capacity([](unsigned d) { return MakeAsciiHexNumeral64(1, d); }, 16, 16);
    capacity([](unsigned d) { return MakeAsciiHexNumeral(1, d); }, 8, 8);
    EXPECT_THROW(MakeAsciiDecimalNumeral(~0UL, 0), ConstDataCapacityExceeded);
}

TEST(AsciiNumerals, RandomValuesRoundTripAndMatchPrintf) {
    std::mt19937_64 random(20261121);
    for (int i = 0; i < 20000; ++i) {
        // Spread the values over every magnitude, not only the large ones.
        unsigned long long u = random() >> (random() % 64);
        long long s = static_cast<long long>(random()) >> (random() % 64);
        unsigned minimum = static_cast<unsigned>(random() % 6);
        char expected[64];

        std::snprintf(expected, sizeof expected, "%0*llu", int(minimum), u);
        if (u == 0 && minimum == 0) expected[0] = 0;
        auto decimal = MakeAsciiDecimalNumeral64(u, minimum);
        ASSERT_STREQ(expected, decimal.CString());
        unsigned long long back = 0;
        if (decimal.Length()) {
            ASSERT_EQ(0, TryReadAsciiDecimalNumeral(decimal, back));
            ASSERT_EQ(u, back);
        }

        std::snprintf(expected, sizeof expected, "%llx", u);
        auto hex = MakeAsciiHexNumeral64(u, 1);
        ASSERT_STREQ(expected, hex.CString());
        ASSERT_EQ(u, ReadAsciiHexNumeral64(hex));

        std::snprintf(expected, sizeof expected, "%lld", s);
        auto signedText = MakeAsciiSignedDecimalNumeral64(s, 1);
        ASSERT_STREQ(expected, signedText.CString());
        ASSERT_EQ(s, ReadAsciiSignedDecimalNumeral64(signedText));
    }
}

TEST(Numeral, DigitsSignPaddingAndLengthPrefix) {
    struct Case {
        std::string text;
        std::string expected;
    } const cases[] = {
        {MakeString(Numeral(0)), "0"},
        {MakeString(Numeral(-42)), "-42"},
        {MakeString(Numeral(42)), "42"},
        {MakeString(Numeral(255u, 16)), "ff"},
        {MakeString(Numeral(-255L, 16)), "-ff"},
        {MakeString(Numeral(5, 2)), "101"},
        {MakeString(Numeral(LLONG_MIN)), "-9223372036854775808"},
        {MakeString(Numeral(ULLONG_MAX, 2)), std::string(64, '1')},
        {MakeString(Numeral(static_cast<signed char>(-128))), "-128"},
        {MakeString(Numeral(static_cast<unsigned short>(65535), 36)), "1ekf"},
    };
    for (auto const& c : cases) EXPECT_EQ(c.expected, c.text);

    Numeral padded(-7);
    padded.PadTo(4);
    EXPECT_EQ("-0007", MakeString(padded));
    unsigned char const* counted = padded;
    EXPECT_EQ(5, counted[0]);
    EXPECT_EQ(0, std::memcmp(counted + 1, "-0007", 5));
    EXPECT_EQ(0, *UStringRef<USAscii>(padded).end);

    Numeral wide(ULLONG_MAX, 2);
    wide.PadTo(69);
    EXPECT_EQ(69u, wide.DigitCount());
    EXPECT_THROW(wide.PadTo(70), ConstDataCapacityExceeded);
}

TEST(UTF8Numerals, ReadLikeTheAsciiForms) {
    std::string big = "18446744073709551615";
    UStringRef<UTF8> text(reinterpret_cast<std::uint8_t const*>(big.data()),
                          reinterpret_cast<std::uint8_t const*>(big.data() + big.size()));
    EXPECT_EQ(ULLONG_MAX, ReadUTF8DecimalNumeral64(text));
    EXPECT_THROW(ReadUTF8DecimalNumeral(text), NumeralTooLarge);
    EXPECT_THROW(ReadUTF8DecimalNumeral64(UStringRef<UTF8>()), NotANumeral);
}
