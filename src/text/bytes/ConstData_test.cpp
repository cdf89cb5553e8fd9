#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>
#include <vector>

#include "testing/TestText.h"
#include "text/bytes/BytesErrors.h"
#include "text/bytes/ConstData.h"

namespace {

std::vector<std::string> Strings(std::vector<ConstData> const& pieces) {
    std::vector<std::string> result;
    for (ConstData piece : pieces) result.push_back(MakeString(piece));
    return result;
}

// Short random texts over a small alphabet, so that hits and ties are common.
std::string RandomText(std::mt19937& random, char const* alphabet = "ab\x80\xff") {
    std::size_t letters = std::char_traits<char>::length(alphabet);
    std::string text(random() % 7, ' ');
    for (char& c : text) c = alphabet[random() % letters];
    return text;
}

}  // namespace

TEST(ConstData, SplitCases) {
    using V = std::vector<std::string>;
    struct Case {
        char const* text;
        char const* separator;
        bool trim;
        bool keepEmpty;
        V expected;
    } const cases[] = {
        {"a,,b", ",", false, true, V{"a", "", "b"}},
        {"a,,b", ",", false, false, V{"a", "b"}},
        {"", ",", false, false, V{""}},
        {"abc", "", false, false, V{"abc"}},
        {"  ", "", true, false, V{""}},
        {"ab", "abc", false, false, V{"ab"}},
        {" a , b ,", ",", true, true, V{"a", "b", ""}},
        {" a , b ,", ",", true, false, V{"a", "b"}},
        {",", ",", false, true, V{"", ""}},
        {"a::b:::c", "::", false, true, V{"a", "b", ":c"}},
        {"aaaa", "aa", false, true, V{"", "", ""}},
    };
    for (Case const& c : cases) {
        EXPECT_EQ(c.expected, Strings(ConstData(c.text).Split(c.separator, c.trim, c.keepEmpty)))
            << '"' << c.text << "\" by \"" << c.separator << '"';
    }
}

TEST(ConstData, PositionsOfAreLeftToRightWithoutOverlap) {
    using P = std::vector<std::size_t>;
    EXPECT_EQ((P{0, 2}), ConstData("aaaa").PositionsOf("aa"));
    EXPECT_EQ((P{0, 2}), ConstData("aaaaa").PositionsOf("aa"));
    EXPECT_EQ((P{1, 4}), ConstData("xabxab").PositionsOf("ab"));
    EXPECT_EQ(P{}, ConstData("aaaa").PositionsOf(""));
    EXPECT_EQ(3, ConstData("xyab").PositionOf('b'));
    EXPECT_FALSE(ConstData("xyab").Contains(ConstData("")));
}

TEST(ConstData, ComparisonsAgreeWithStringOnRandomBytes) {
    std::mt19937 random(7);
    for (int i = 0; i < 20000; ++i) {
        std::string a = RandomText(random);
        std::string b = RandomText(random);
        std::string ra(a.rbegin(), a.rend());
        std::string rb(b.rbegin(), b.rend());
        ConstData x(a), y(b);
        // std::string compares chars as unsigned char through char_traits<char>.
        ASSERT_EQ(Sign(a.compare(b)), Sign(Compare(x, y)));
        ASSERT_EQ(Sign(ra.compare(rb)), Sign(CompareReversed(x, y)));
        ASSERT_EQ(a == b, x == y);
        ASSERT_EQ(a < b, x < y);
        ASSERT_EQ(b.size() <= a.size() && a.compare(0, b.size(), b) == 0, x.StartsWith(y));
        ASSERT_EQ(b.size() <= a.size() && a.compare(a.size() - b.size(), b.size(), b) == 0,
                  x.EndsWith(y));
        std::size_t hit = a.find(b);
        ASSERT_EQ(b.empty() || hit == std::string::npos ? -1L : long(hit), x.PositionOf(y));
    }
    // The result is the difference of the first unequal bytes, or -1 / 1 for a prefix.
    EXPECT_EQ(0xFF - 'a', Compare("\xff", "a"));
    EXPECT_EQ(-1, Compare("ab", "abc"));
    EXPECT_EQ('b' - 'c', CompareReversed("xab", "ac"));
}

TEST(ConstData, TrimmingStopsAtHighBytesAndIgnoresOtherControls) {
    EXPECT_EQ("a b", MakeString(TrimAsciiWhitespace(" \t\r\na b \n")));
    EXPECT_EQ("a b \n", MakeString(TrimLeadingAsciiWhitespace(" \t\r\na b \n")));
    EXPECT_EQ("\va\f", MakeString(TrimAsciiWhitespace(" \va\f ")));
    EXPECT_EQ("\x80 a", MakeString(TrimAsciiWhitespace("\x80 a ")));
    EXPECT_EQ("", MakeString(TrimAsciiWhitespace(" \t ")));
}

TEST(ConstData, CopyingIntoTooSmallTargetsTruncates) {
    unsigned char target[4] = {};
    ConstData rest = ConstData("abcdef") >> Data(target);
    EXPECT_EQ("ef", MakeString(rest));
    EXPECT_EQ("abcd", MakeString(ConstData(target, 4)));

    Buffer buffer{Data(target)};
    buffer.Append(ConstData("ab"));
    EXPECT_THROW(buffer.Append(ConstData("xyz")), DataOverflow);
    buffer.Append('c');
    buffer.Append('d');
    EXPECT_THROW(buffer.Append('e'), DataOverflow);
    EXPECT_EQ("abcd", MakeString(ConstData(target, 4)));
}

TEST(ConstData, RopeWritesKeepOrderAndDropWhatDoesNotFit) {
    std::mt19937 random(11);
    for (int i = 0; i < 2000; ++i) {
        std::vector<std::string> texts(random() % 5);
        std::vector<ConstData> parts;
        std::string whole;
        for (std::string& text : texts) {
            text = RandomText(random, "xyz");
            whole += text;
        }
        for (std::string const& text : texts) parts.push_back(text);
        ConstDataRopeReference rope(parts);
        ASSERT_EQ(whole.size(), TotalLength(rope));
        ASSERT_EQ(whole, MakeString(rope));

        std::vector<unsigned char> space(random() % 12);
        Buffer buffer(Data(space.data(), space.size()));
        buffer << rope;
        std::size_t written = std::min(space.size(), whole.size());
        ASSERT_EQ(space.data() + written, buffer.cursor);
        ASSERT_EQ(whole.substr(0, written), MakeString(ConstData(space.data(), written)));

        Data left = Data(space.data(), space.size()) << rope;
        ASSERT_EQ(space.size() - written, left.Size());
    }
}

TEST(ExceptionPL, KeepsItsOwnCopyOfTheMessage) {
    std::string message = "disk full";
    ExceptionPL failure{ConstData(message)};
    message.assign("overwritten");
    EXPECT_STREQ("disk full", failure.what());
    EXPECT_STREQ("", ExceptionPL(static_cast<char const*>(nullptr)).what());
}
