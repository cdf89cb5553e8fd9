#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>
#include <vector>

#include "testing/ScopedSettings.h"
#include "testing/TestText.h"
#include "text/unicode/LocaleConversion.h"
#include "text/unicode/MakeLocalString.h"
#include "text/unicode/Transcode.h"
#include "text/unicode/UnicodeErrors.h"

namespace {

UStringRef<Local8Bit> Local(std::string const& s) {
    return UStringRef<Local8Bit>(s.data(), s.data() + s.size());
}

template <class Unit>
std::string Bytes(Unit const* begin, Unit const* end) {
    return std::string(reinterpret_cast<char const*>(begin), reinterpret_cast<char const*>(end));
}

char const* const latin1 = "de_DE.ISO-8859-1";
char const* const utf8Locales[] = {"de_DE.UTF-8", "en_US.UTF-8", "fr_CA.UTF-8"};

TEST(LocaleConversion, SingleByteLocale) {
    ScopedCTypeLocale locale(latin1);
    ASSERT_TRUE(locale.Ok()) << latin1 << " must be generated on this machine";
    EXPECT_STREQ("ISO-8859-1", UnixPlatform::IANAEncodingName(Local8Bit()).CString());

    AutoNullTerminated<char> e = MakeLocalString(U8("\xc3\xa9"));  // é
    EXPECT_EQ("\xe9", std::string(e.pointer));
    EXPECT_EQ(2u, e.ownedUnits);

    EXPECT_THROW(MakeLocalString(U8("a\xe2\x82\xac")), UnixPlatform::WideToMultiByteConvertError);
    EXPECT_THROW(MakeLocalString(U8("a\xc3")), InvalidTextEncoding);  // decoded before the locale

    // Every Latin-1 character is one byte there and back.
    std::string all;
    for (int c = 1; c < 256; ++c) all += static_cast<char>(c);
    AutoUString<UTF8> utf8 = UnixPlatform::ToUTF8(Local(all));
    AutoUString<UTF32> wide = UnixPlatform::ToUTF32(Local(all));
    ASSERT_EQ(255u, wide.Length());
    for (int c = 1; c < 256; ++c) ASSERT_EQ(UTF32::Unit(c), wide.begin[c - 1]);
    AutoUString<UTF16> utf16 = UnixPlatform::ToUTF16(Local(all));
    EXPECT_TRUE(std::equal(wide.begin, wide.end, utf16.begin, utf16.end));
    AutoUString<Local8Bit> back = UnixPlatform::ToLocal8Bit(UStringRef<UTF8>(utf8));
    EXPECT_EQ(all, Bytes(back.begin, back.end));
}

TEST(LocaleConversion, UTF8Locales) {
    for (char const* name : utf8Locales) {
        ScopedCTypeLocale locale(name);
        ASSERT_TRUE(locale.Ok()) << name << " must be generated on this machine";
        EXPECT_STREQ("UTF-8", UnixPlatform::IANAEncodingName(Local8Bit()).CString());

        AutoNullTerminated<char> euro = MakeLocalString(U8("\xe2\x82\xac 5"));
        EXPECT_STREQ("\xe2\x82\xac 5", euro.pointer);
        EXPECT_THROW(UnixPlatform::ToNativeUnicode(Local("ok \xc3")),
                     UnixPlatform::MultiByteToWideConvertError);
        EXPECT_THROW(UnixPlatform::ToUTF8(Local("\xff")),
                     UnixPlatform::MultiByteToWideConvertError);

        // Property: random text goes to the locale and back unchanged.
        std::mt19937 rng(11);
        for (int i = 0; i < 50; ++i) {
            std::vector<UTF32::Unit> codes(1 + rng() % 40);
            for (auto& cp : codes) {
                do {
                    cp = 1 + rng() % 0x10FFFF;
                } while (cp >= 0xD800 && cp < 0xE000);
            }
            UStringRef<UTF32> source(codes.data(), codes.data() + codes.size());
            AutoUString<Local8Bit> local = UnixPlatform::ToLocal8Bit(source);
            AutoUString<UTF8> expected = Transcode<UTF8, UTF32>(source);
            ASSERT_EQ(Bytes(expected.begin, expected.end), Bytes(local.begin, local.end));
            AutoUString<UTF32> back = UnixPlatform::ToUTF32(local);
            ASSERT_EQ(codes, std::vector<UTF32::Unit>(back.begin, back.end));
        }
    }
}

TEST(LocaleConversion, EmbeddedZeroEndsTheTextAndEmptyIsNotNull) {
    ScopedCTypeLocale locale(latin1);
    ASSERT_TRUE(locale.Ok());
    std::vector<UTF32::Unit> wide = {'A', 0xE9, 0, 'B'};
    AutoUString<Local8Bit> local =
        UnixPlatform::FromNativeUnicode(UStringRef<UTF32>(wide.data(), wide.data() + 4));
    EXPECT_EQ("A\xe9", Bytes(local.begin, local.end));
    EXPECT_EQ(0, *local.end);

    std::string narrow("x\0y", 3);
    AutoUString<UTF32> back = UnixPlatform::ToNativeUnicode(Local(narrow));
    EXPECT_EQ(std::vector<UTF32::Unit>{'x'}, std::vector<UTF32::Unit>(back.begin, back.end));

    AutoNullTerminated<char> cut = MakeLocalString(U8(std::string("ab\0cd", 5)));
    EXPECT_STREQ("ab", cut.pointer);
    EXPECT_EQ(3u, cut.ownedUnits);

    // The locale conversions give a non-null empty string; MakeLocalString the static one.
    AutoUString<Local8Bit> empty = UnixPlatform::FromNativeUnicode(UStringRef<UTF32>());
    ASSERT_NE(nullptr, empty.begin);
    EXPECT_EQ(empty.begin, empty.end);
    EXPECT_EQ(0, *empty.end);
    AutoNullTerminated<char> none = MakeLocalString(U8(std::string("\0x", 2)));
    EXPECT_EQ(AutoNullTerminated<char>::EmptyString(), none.pointer);
    EXPECT_EQ(0u, none.ownedUnits);
}

}  // namespace
