#include <gtest/gtest.h>

#include <cctype>
#include <random>
#include <string>

#include "testing/TestText.h"
#include "text/bytes/Ascii.h"
#include "text/bytes/Bits.h"

// The C library's classes in the "C" locale are an independent statement of the same sets.
TEST(Ascii, SetsMatchTheCLocaleClasses) {
    struct Case {
        char const* name;
        Ascii::CharacterSet const& set;
        bool (*member)(int);
    } const cases[] = {
        {"UppercaseAlphabet", Ascii::UppercaseAlphabet(), [](int b) { return isupper(b) != 0; }},
        {"LowercaseAlphabet", Ascii::LowercaseAlphabet(), [](int b) { return islower(b) != 0; }},
        {"Alphabetic", Ascii::Alphabetic(), [](int b) { return isalpha(b) != 0; }},
        {"Alphabetic_", Ascii::Alphabetic_(), [](int b) { return isalpha(b) || b == '_'; }},
        {"Numeric", Ascii::Numeric(), [](int b) { return isdigit(b) != 0; }},
        {"Alphanumeric", Ascii::Alphanumeric(), [](int b) { return isalnum(b) != 0; }},
        {"Alphanumeric_", Ascii::Alphanumeric_(), [](int b) { return isalnum(b) || b == '_'; }},
        {"HexDigits", Ascii::HexDigits(), [](int b) { return isxdigit(b) != 0; }},
        {"Punctuation", Ascii::Punctuation(), [](int b) { return ispunct(b) != 0; }},
        {"LinearWhiteSpace", Ascii::LinearWhiteSpace(), [](int b) { return isblank(b) != 0; }},
        {"WhiteSpace", Ascii::WhiteSpace(),
         [](int b) { return isspace(b) && b != '\v' && b != '\f'; }},
        {"Low", Ascii::Low(), [](int b) { return b < 0x80; }},
        {"High", Ascii::High(), [](int b) { return b >= 0x80; }},
        {"Control", Ascii::Control(), [](int b) { return iscntrl(b) != 0; }},
        {"PlainText", Ascii::PlainText(), [](int b) { return isprint(b) != 0; }},
        {"Printable", Ascii::Printable(), [](int b) { return isgraph(b) != 0; }},
        {"Unprintable", Ascii::Unprintable(), [](int b) { return !isgraph(b); }},
    };
    for (Case const& c : cases) {
        for (int b = 0; b < 256; ++b) {
            bool inWord = (c.set.words[b >> 5] >> (b & 31)) & 1;
            ASSERT_EQ(c.member(b), inWord) << c.name << " " << b;
            ASSERT_EQ(inWord, c.set.Contains(static_cast<unsigned char>(b)));
        }
    }
}

TEST(Ascii, CaseTablesChangeOnlyLetters) {
    EXPECT_TRUE(Ascii::CaseTablesAreCorrect());
    for (int b = 0; b < 256; ++b) {
        int upper = b < 0x80 ? toupper(b) : b;
        int lower = b < 0x80 ? tolower(b) : b;
        ASSERT_EQ(upper, Ascii::uppercaseTable[static_cast<unsigned char>(b)]);
        ASSERT_EQ(lower, Ascii::lowercaseTable[static_cast<unsigned char>(b)]);
    }
    for (unsigned v = 0; v < 16; ++v) {
        ASSERT_EQ(v, Ascii::HexDigitValue(Ascii::HexDigit(v)));
        ASSERT_EQ(v, Ascii::HexDigitValue(static_cast<unsigned char>(toupper(Ascii::HexDigit(v)))));
    }
}

TEST(Ascii, FoldedComparisonsAgreeWithFoldedStrings) {
    EXPECT_FALSE(Ascii::EqualIgnoringCase("\xc4", "\xe4"));  // only ASCII letters fold
    EXPECT_EQ(-1, Ascii::CompareUppercase("ab", "ABC"));
    EXPECT_TRUE(Ascii::IsLowercase("abc 1\xc4"));
    EXPECT_FALSE(Ascii::IsLowercase("aBc"));
    EXPECT_TRUE(Ascii::IsUppercase("ABC 1"));
    EXPECT_FALSE(Ascii::IsUppercase("ABc"));
    EXPECT_EQ("HELLO, WORLD\xe4", Ascii::RaiseCase(ConstData("Hello, world\xe4")));
    EXPECT_EQ("hello, world", Ascii::LowerCase(ConstData("HELLO, World")));

    // "_" lies between the upper and the lower case letters, so the two foldings order it apart.
    std::mt19937 random(9);
    for (int i = 0; i < 5000; ++i) {
        std::string a(random() % 5, ' '), b(random() % 5, ' ');
        for (char& c : a) c = "aAbB_"[random() % 5];
        for (char& c : b) c = "aAbB_"[random() % 5];
        std::string la = Ascii::LowerCase(ConstData(a)), lb = Ascii::LowerCase(ConstData(b));
        std::string ua = Ascii::RaiseCase(ConstData(a)), ub = Ascii::RaiseCase(ConstData(b));
        ASSERT_EQ(Sign(la.compare(lb)), Sign(Ascii::CompareLowercase(a, b)));
        ASSERT_EQ(Sign(ua.compare(ub)), Sign(Ascii::CompareUppercase(a, b)));
        ASSERT_EQ(la == lb, Ascii::EqualIgnoringCase(a, b));
    }
}

// The builtins state the same facts about bits independently of the tables.
TEST(Bits, TablesAgreeWithTheBitBuiltins) {
    for (unsigned b = 0; b < 256; ++b) {
        unsigned char byte = static_cast<unsigned char>(b);
        unsigned complement = ~b & 0xFF;
        ASSERT_EQ(__builtin_popcount(b), Bits::count[byte]);
        ASSERT_EQ(complement ? __builtin_ctz(complement) : 8, Bits::firstZero[byte]);
        ASSERT_EQ(complement ? 31 - __builtin_clz(complement) : 8, Bits::lastZero[byte]);
        unsigned reversed = Bits::reverse[byte];
        ASSERT_EQ(b, Bits::reverse[static_cast<unsigned char>(reversed)]);
        for (int i = 0; i < 8; ++i) ASSERT_EQ((b >> i) & 1, (reversed >> (7 - i)) & 1);
    }
}
