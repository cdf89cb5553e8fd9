#include <gtest/gtest.h>

#include <climits>
#include <random>
#include <string>
#include <vector>

#include "text/bytes/CompareIgnoreCase.h"
#include "text/bytes/Stringy.h"

namespace {

std::vector<std::string> Texts(std::vector<Stringy> const& pieces) {
    std::vector<std::string> result;
    for (Stringy const& piece : pieces) result.push_back(piece.CString());
    return result;
}

}  // namespace

TEST(Stringy, InlineUpTo127BytesAndHeapFrom128) {
    std::string text127(127, 'x');
    std::string text128(128, 'y');
    Stringy small(text127.c_str());
    Stringy large(text128.c_str());
    EXPECT_TRUE(small.Inline());
    EXPECT_FALSE(large.Inline());
    EXPECT_EQ(text127, small.CString());
    EXPECT_EQ(text128, large.CString());
    // Assignment shrinks back into the inline storage.
    large = small;
    EXPECT_TRUE(large.Inline());
    EXPECT_EQ(text127, large.CString());
    EXPECT_THROW(Stringy("x", ULONG_MAX), StringyLengthTooLong);
}

TEST(Stringy, AppendingMatchesStdStringAcrossTheBoundary) {
    std::mt19937 random(3);
    for (int round = 0; round < 200; ++round) {
        Stringy stringy;
        std::string model;
        for (int step = 0; step < 30; ++step) {
            std::string piece(random() % 40, char('a' + random() % 26));
            switch (random() % 4) {
                case 0:
                    stringy += piece.c_str();
                    break;
                case 1:
                    stringy += ConstData(piece);
                    break;
                case 2:
                    stringy += Stringy(piece.c_str());
                    break;
                default:
                    piece = piece.substr(0, 1);
                    stringy += piece.empty() ? '\0' : piece[0];
            }
            model += piece;
            // Appending a string to itself reads from the storage being replaced.
            if (random() % 10 == 0) {
                stringy += stringy;
                model += model;
            }
            ASSERT_EQ(model, stringy.CString());
            ASSERT_EQ(model.size(), stringy.Length());
            ASSERT_EQ(model.size() <= 127, stringy.Inline());
        }
    }
}

TEST(Stringy, PartsAreClamped) {
    Stringy text("abcdef");
    struct Case {
        Stringy actual;
        char const* expected;
    } const cases[] = {
        {text.Left(2), "ab"},   {text.Left(-1), ""},     {text.Left(99), "abcdef"},
        {text.Right(2), "ef"},  {text.Right(-5), ""},    {text.Right(99), "abcdef"},
        {text.Mid(2, 2), "cd"}, {text.Mid(-3, 2), "ab"}, {text.Mid(4, 99), "ef"},
        {text.Mid(9, 1), ""},   {text.Mid(3), "def"},    {text.Mid(2, -1), ""},
    };
    for (Case const& c : cases) EXPECT_STREQ(c.expected, c.actual.CString());
    EXPECT_EQ(0, text[6]);
    EXPECT_EQ('f', text[5]);
}

TEST(Stringy, SearchReplaceAndCase) {
    Stringy text("a.b.c");
    EXPECT_EQ(1, text.Find('.'));
    EXPECT_EQ(3, text.FindFromRight('.'));
    EXPECT_EQ(-1, text.Find('x'));
    EXPECT_EQ(2u, text.Replace('.', '/'));
    EXPECT_STREQ("a/b/c", text.CString());
    EXPECT_FALSE(text.Contains("c/"));
    EXPECT_TRUE(text.StartsWith(nullptr));
    EXPECT_FALSE(text.StartsWith("a/b/c/"));
    EXPECT_TRUE(Stringy("HeLLo").StartsWithIgnoringCase("hEl"));
    EXPECT_FALSE(Stringy("He").StartsWithIgnoringCase("hel"));

    Stringy mixed("MiXeD 1");
    mixed.MakeUpper();
    EXPECT_STREQ("MIXED 1", mixed.CString());
    // Through the upper-case table "_" (0x5F) sorts after the letters.
    EXPECT_LT(0, Stringy("_").CompareNoCase("a"));
    EXPECT_EQ(0, CompareIgnoreCaseN("MiXa", "mixb", 3));
    EXPECT_TRUE(Stringy("b") > Stringy("abc"));
    // An embedded zero ends the text for the operations built on C strings.
    EXPECT_TRUE(Stringy(ConstData("ab\0cd", 5)) == "ab");
    EXPECT_EQ(5u, Stringy(ConstData("ab\0cd", 5)).Length());
}

TEST(Stringy, NumbersAndWhiteSpace) {
    EXPECT_STREQ("-12", Stringy(-12).CString());
    EXPECT_STREQ("18446744073709551615", Stringy(ULLONG_MAX).CString());
    Stringy white(" \t\r\n a b \n");
    white.StripLeadingAndTrailingWhite();
    EXPECT_STREQ("a b", white.CString());
    Stringy onlyWhite(" \t \r\n");
    onlyWhite.StripLeadingAndTrailingWhite();
    EXPECT_TRUE(onlyWhite.Empty());
    EXPECT_STREQ("c d", Stringy("a/b/ c d ").SubstringAfterLastSeparator('/').CString());
    EXPECT_STREQ("", Stringy("abc/").SubstringAfterLastSeparator('/').CString());
}

TEST(Stringy, SplitSeparatedStrings) {
    using V = std::vector<std::string>;
    struct Case {
        char const* text;
        unsigned long maximum;
        bool strip;
        V expected;
    } const cases[] = {
        {"a, b ,c", 10, true, V{"a", "b", "c"}},
        {"a, b ,c", 10, false, V{"a", " b ", "c"}},
        {"a,b,c", 2, false, V{"a", "b,c"}},
        {"a,,", 10, false, V{"a", "", ""}},
        {"abc", 10, false, V{"abc"}},
        {"", 10, false, V{}},
        {nullptr, 10, false, V{}},
        {"a,b", 0, false, V{}},
    };
    for (Case const& c : cases) {
        std::vector<Stringy> out{Stringy("kept")};
        unsigned long count = SplitSeparatedStringsIntoArray(c.text, ',', out, c.maximum, c.strip);
        EXPECT_EQ(c.expected.size(), count);
        V expected{"kept"};
        expected.insert(expected.end(), c.expected.begin(), c.expected.end());
        EXPECT_EQ(expected, Texts(out));
    }
}
