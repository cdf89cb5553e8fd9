#include <gtest/gtest.h>

#include <random>
#include <string>
#include <utility>

#include "testing/TestText.h"
#include "text/unicode/AutoNullTerminated.h"
#include "text/unicode/UString.h"
#include "text/unicode/UStringBuilder.h"

namespace {

TEST(UString, OwnedStringsCopyMoveAndTerminate) {
    std::string source("h\0llo", 5);
    AutoUString<UTF8> a = MakeUString(U8(source));
    EXPECT_EQ(source, Str(a));
    EXPECT_EQ(0, *a.end);
    EXPECT_TRUE(UStringRef<UTF8>(a).nullTerminated);

    AutoUString<UTF8> b = MakeUString(U8("other"));
    b = std::move(a);  // frees "other": a leak would show under the sanitizers
    EXPECT_EQ(nullptr, a.begin);
    EXPECT_EQ(source, Str(b));

    AutoUString<UTF8> empty = MakeUString(U8(""));
    EXPECT_EQ(nullptr, empty.begin);
    EXPECT_FALSE(UStringRef<UTF8>(empty).nullTerminated);
    AutoNullTerminated<UTF8::Unit> none = MakeNullTerminatedString(empty);
    EXPECT_EQ(AutoNullTerminated<UTF8::Unit>::EmptyString(), none.pointer);
    EXPECT_EQ(0, *none.pointer);
    AutoNullTerminated<UTF8::Unit> borrowed = MakeNullTerminatedString(b);
    EXPECT_EQ(b.begin, borrowed.pointer);
    EXPECT_EQ(0u, borrowed.ownedUnits);

    CopiedUString<UTF8> c(b), d(c);
    EXPECT_NE(c.begin, d.begin);
    d.begin[0] = 'H';
    EXPECT_EQ(source, Str(c));
    c = d;
    EXPECT_EQ("Hllo", Str(c).erase(1, 1));
}

TEST(UString, EncodingCastMeasuresToTheZero) {
    UStringRef<UTF8> null = EncodingCast<UStringRef<UTF8>>(static_cast<char const*>(nullptr));
    EXPECT_EQ(nullptr, null.begin);
    EXPECT_FALSE(null.nullTerminated);
    char const* text = "ab\xff\0cd";
    UStringRef<UTF8> cast = EncodingCast<UStringRef<UTF8>, char>(text);
    EXPECT_EQ(reinterpret_cast<UTF8::Unit const*>(text), cast.begin);
    EXPECT_EQ(3u, cast.Length());
    EXPECT_TRUE(cast.nullTerminated);
}

TEST(UString, EqualityAndOrderAreByUnsignedBytes) {
    // Property: the order agrees with std::string's, whose char_traits compare as unsigned.
    std::mt19937 rng(7);
    for (int i = 0; i < 2000; ++i) {
        std::string a(rng() % 4, '\0'), b(rng() % 4, '\0');
        for (auto& ch : a) ch = "\0a\x7f\x80"[rng() % 4];
        for (auto& ch : b) ch = "\0a\x7f\x80"[rng() % 4];
        ASSERT_EQ(a < b, U8(a) < U8(b));
        ASSERT_EQ(a == b, U8(a) == U8(b));
    }
    EXPECT_TRUE(UStringRef<UTF8>() == EncodingCast<UStringRef<UTF8>>(""));  // pointers don't count
}

TEST(UStringBuilder, GrowsToTheLargerOfNeedAndDoubleAndRestartsEmpty) {
    UStringBuilder<UTF8> builder(4);
    builder.Start(UTF8());
    struct Step {
        std::string chunk;
        std::size_t capacity;
    } const steps[] = {{"abc", 4}, {"d", 4}, {"e", 8}, {"", 8}, {"fghijklmnopqrstuvwxyz", 26}};
    std::string all;
    for (auto const& step : steps) {
        builder.Receive(U8(step.chunk));
        all += step.chunk;
        EXPECT_EQ(step.capacity, builder.capacity) << all;
        EXPECT_EQ(all, Str(builder.Content()));
    }
    builder.Start(UTF8());
    EXPECT_EQ(4u, builder.capacity);
    builder.Receive(U8("x"));
    EXPECT_EQ("x", Str(builder.Content()));
}

}  // namespace
