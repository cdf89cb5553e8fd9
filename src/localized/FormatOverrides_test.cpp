#include "localized/FormatOverrides.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include "localized/LocalizedErrors.h"
#include "localized/UFormat.h"
#include "testing/TestText.h"

namespace {

// Returns the entries as "key=value;" in their order.
std::string Entries(FormatOverrideSet const& set) {
    std::string out;
    for (FormatBinding const& entry : set.Entries()) {
        out += Str(entry.first) + "=" + Str(entry.second) + ";";
    }
    return out;
}

// A second reading of the file format, line by line, for comparison: lines end at CR or LF,
// the key runs to the first tab and the value from the last tab.
std::multimap<std::string, std::string> ReadLines(std::string const& text) {
    std::multimap<std::string, std::string> entries;
    std::size_t start = 0;
    while (start <= text.size()) {
        std::size_t end = text.find_first_of("\r\n", start);
        if (end == std::string::npos) end = text.size();
        std::string const line = text.substr(start, end - start);
        std::size_t const first = line.find('\t');
        if (first != std::string::npos && first != 0) {
            entries.emplace(line.substr(0, first), line.substr(line.rfind('\t') + 1));
        }
        start = end + 1;
    }
    return entries;
}

}  // namespace

TEST(FormatOverrideSet, ParsesLinesIntoSortedEntries) {
    struct Row {
        std::string text;
        std::string entries;
    };
    Row const rows[] = {
        {"", ""},
        {"a\tb\nc\td", "a=b;c=d;"},
        {"a\tb\r\nc\td\r\n", "a=b;c=d;"},
        {"a\tb\rc\td", "a=b;c=d;"},
        {"a\tx\ty", "a=y;"},
        {"a\t\ty", "a=y;"},
        {"\tb", ""},
        {"ab", ""},
        {"ab\n\n\r\r", ""},
        {"a\t", "a=;"},
        {"a\tz\na\tb", "a=b;a=z;"},
        {"b\t1\na\t2", "a=2;b=1;"},
        {" a \t b ", " a = b ;"},
        {"x\ry\tz", "y=z;"},
        {"{a} {b}\t{b}, {a}\n", "{a} {b}={b}, {a};"},
        {"&Paste{_tab}Ctrl-V\tColler", "&Paste{_tab}Ctrl-V=Coller;"},
        {"\xEF\xBB\xBFkey\tv\nkey\tw", "key=w;\xEF\xBB\xBFkey=v;"},
        {std::string("n\0ul\tv", 6), std::string("n\0ul=v;", 7)},
    };
    for (Row const& row : rows) {
        SCOPED_TRACE(row.text);
        FormatOverrideSet const set(U8(row.text));
        EXPECT_EQ(Entries(set), row.entries);
        for (FormatBinding const& entry : set.Entries()) EXPECT_FALSE(entry.second.nullTerminated);
    }
}

TEST(FormatOverrideSet, MatchesARereadingOfRandomTexts) {
    std::mt19937 random(12);
    char const alphabet[] = {'a', 'b', 'A', ' ', '\t', '\t', '\r', '\n', '{', '}'};
    std::uniform_int_distribution<int> pick(0, sizeof alphabet - 1), length(0, 40);
    for (int round = 0; round < 3000; ++round) {
        std::string text;
        for (int n = length(random); n > 0; --n) text += alphabet[pick(random)];
        SCOPED_TRACE(text);
        FormatOverrideSet const set(U8(text));
        std::multimap<std::string, std::string> const expected = ReadLines(text);
        ASSERT_EQ(set.Entries().size(), expected.size());
        for (auto const& entry : expected) {
            // Of several values of a key, the one that sorts first is found.
            std::string least = entry.second;
            auto const same = expected.equal_range(entry.first);
            for (auto other = same.first; other != same.second; ++other) {
                least = std::min(least, other->second);
            }
            ASSERT_TRUE(set.HasOverride(U8(entry.first)));
            EXPECT_EQ(Str(set.GetOverride(U8(entry.first))), least);
        }
    }
}

TEST(FormatOverrideSet, KeysMatchExactly) {
    std::string const text = "Cancel\tAnnuler\nShow  two\tx";
    FormatOverrideSet const set(U8(text));
    EXPECT_EQ(Str(set.GetOverride(U8("Cancel"))), "Annuler");
    for (char const* missing : {"cancel", "CANCEL", "Cancel ", "Cance", "Show two", ""}) {
        SCOPED_TRACE(missing);
        EXPECT_FALSE(set.HasOverride(U8(missing)));
        EXPECT_THROW(set.GetOverride(U8(missing)), FormatOverrideNotFound);
    }
}

TEST(FormatOverrideContext, TheSetAddedLastIsAskedFirst) {
    std::string const first = "x\t1\ny\t1\n", second = "x\t2\nz\t\n";
    FormatOverrideSet const older(U8(first)), newer(U8(second));
    FormatOverrideContext context;
    std::string const defaultText = "default";
    auto lookup = [&](char const* key) { return Str(context.Override(U8(key), U8(defaultText))); };
    FormatOverrideScope const olderScope(older, context);
    {
        FormatOverrideScope const newerScope(newer, context);
        EXPECT_EQ(lookup("x"), "2");
        EXPECT_EQ(lookup("y"), "1");
        EXPECT_EQ(lookup("z"), "");
        EXPECT_TRUE(context.HasOverride(U8("z")));
        EXPECT_EQ(lookup("w"), "default");
        EXPECT_FALSE(context.HasOverride(U8("w")));
        // An empty override renders as nothing.
        EXPECT_EQ(MakeUString(UFormat(U8("z"), U8("z"), context)).begin, nullptr);
    }
    // A scope that ends takes its set out again.
    EXPECT_EQ(lookup("x"), "1");
    EXPECT_FALSE(context.HasOverride(U8("z")));
}

TEST(FormatOverrideContext, ScopesOutlivingTheirContextAreLeftUnlisted) {
    std::string const text = "a\tb";
    FormatOverrideSet const set(U8(text));
    std::unique_ptr<FormatOverrideScope> scope;
    {
        FormatOverrideContext context;
        scope.reset(new FormatOverrideScope(set, context));
        EXPECT_NE(scope->Owner(), nullptr);
    }
    EXPECT_EQ(scope->Owner(), nullptr);
}
