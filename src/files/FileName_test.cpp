#include "files/FileName.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

#include "files/FileErrors.h"

namespace {

enum Outcome { accepted, illegalName, illegalLength };

Outcome TrySet(std::string const& text) {
    try {
        UnixPlatform::FileName name;
        name.Set(text.data(), text.size());
        EXPECT_EQ(text, name.Text());
        return accepted;
    } catch (IllegalFileName const&) {
        return illegalName;
    } catch (IllegalFileNameLength const&) {
        return illegalLength;
    }
}

}  // namespace

TEST(FileName, SetAppliesTheNameRules) {
    struct Row {
        std::string text;
        Outcome outcome;
    } const rows[] = {
        {"a", accepted},
        {"...", accepted},
        {".hidden", accepted},
        {"..x", accepted},
        {".", illegalName},
        {"..", illegalName},
        {"a/b", illegalName},
        {"/", illegalName},
        {"a/", illegalName},
        {"", illegalLength},
        {std::string(255, 'n'), accepted},
        {std::string(256, 'n'), illegalLength},
    };
    for (Row const& row : rows) {
        EXPECT_EQ(row.outcome, TrySet(row.text)) << row.text.size() << " " << row.text;
    }
}

TEST(FileName, CombinedNamesStopOneShortOfSet) {
    FileName const a(std::string(127, 'a').c_str());
    FileName const b(std::string(128, 'b').c_str());
    FileName const c(std::string(127, 'c').c_str());
    EXPECT_THROW(a + b, IllegalFileName);
    UnixPlatform::FileName const joined = a + c;
    EXPECT_EQ(std::string(127, 'a') + std::string(127, 'c'), joined.Text());
    EXPECT_TRUE(joined.IsAllocated());
    EXPECT_FALSE(FileName(std::string(23, 'x').c_str()).IsAllocated());
    EXPECT_TRUE(FileName(std::string(24, 'x').c_str()).IsAllocated());
    EXPECT_EQ("x.tar", std::string((FileName("x") + ".tar").Text()));
    EXPECT_EQ("pre-x", std::string(("pre-" + FileName("x")).Text()));
    EXPECT_EQ("xy", std::string((FileName("x") + ConstData("y")).Text()));
    EXPECT_THROW(FileName("x") + "/y", IllegalFileName);
}

TEST(FileName, ExtensionsPrefixesAndSuffixes) {
    struct Row {
        char const* name;
        char const* text;
        bool ignoreCase;
        bool extension;
    } const rows[] = {
        {"tar", "tar", false, false},  {"x.tar", "tar", false, true},
        {".tar", ".tar", false, true}, {"x.tar", ".tar", false, true},
        {"xtar", "tar", false, false}, {"x.TAR", "tar", false, false},
        {"x.TAR", "tar", true, true},  {"x.tar", "x.tar.gz", false, false},
        {"a.b.c", "b.c", false, true}, {"a.b.c", "c", false, true},
    };
    for (Row const& row : rows) {
        FileName const name(row.name);
        EXPECT_EQ(row.extension, name.HasExtension(row.text, row.ignoreCase))
            << row.name << " " << row.text;
    }
    EXPECT_TRUE(FileName("Report.XLAT").HasPrefix("rep", true));
    EXPECT_FALSE(FileName("Report.XLAT").HasPrefix("rep", false));
    EXPECT_FALSE(FileName("Report.XLAT").HasSuffix("Report.XLAT+", false));
}

TEST(FileName, PartsOfNames) {
    EXPECT_STREQ("x.", FileName("x.tar").NameBeforeExtension("tar", false).Text());
    EXPECT_STREQ("x", FileName("x.tar").NameBeforeExtension(".TAR", true).Text());
    EXPECT_THROW(FileName("x.tar").NameBeforeExtension("zip", false), ExtensionDoesNotMatch);
    EXPECT_THROW(FileName(".tar").NameBeforeExtension(".tar", false), IllegalFileName);
    EXPECT_STREQ("x.tar", FileName("pre-x.tar").NameAfterPrefix("PRE-", true).Text());
    EXPECT_THROW(FileName("x").NameAfterPrefix("y", false), PrefixDoesNotMatch);
    EXPECT_THROW(FileName("pre").NameAfterPrefix("pre", false), IllegalFileName);

    EXPECT_STREQ("a.b", FileName("a.b.c").BaseName().Text());
    EXPECT_STREQ("abc", FileName("abc").BaseName().Text());
    EXPECT_STREQ("", FileName(".x").BaseName().Text());
    EXPECT_STREQ("0042", FileName("0042-log.txt").PrefixDigits().Text());
    EXPECT_THROW(FileName("log42").PrefixDigits(), IllegalFileName);

    EXPECT_EQ(TranslationKetralFileType, FileName("de.XLAT").ExtensionType());
    EXPECT_EQ(UnknownKetralFileType, FileName("xlat").ExtensionType());
    EXPECT_EQ(UnknownKetralFileType, FileName("de.xlat.bak").ExtensionType());
}

// Matches are mostly the random test's below; this table holds the misses and the edge cases.
TEST(FileName, WildCards) {
    struct Row {
        char const* name;
        char const* pattern;
        bool matches;
    } const rows[] = {
        {"abc", "ab", false},  {"ab", "abc", false},        {"ac", "a?c", false},
        {"abc", "*d*", false}, {"a.XLAT", "*.xlat", false}, {"abc", "????", false},
        {"abc", "", false},    {"aaab", "*a*b", true},      {"abc", "a*c*", true},
        {"abc", "**c", true},  {"abc", "*?", true},
    };
    for (Row const& row : rows) {
        EXPECT_EQ(row.matches, FileName(row.name).MatchesWildCard(row.pattern))
            << row.name << " " << row.pattern;
    }
}

// Any pattern made from a name by turning characters into "?" and runs into "*" matches it,
// and the same pattern with one literal character changed does not.
TEST(FileName, WildCardPropertyOnRandomNames) {
    std::mt19937 random(7);
    for (int round = 0; round < 2000; ++round) {
        std::string name;
        int const length = 1 + random() % 12;
        for (int i = 0; i < length; ++i) {
            name += static_cast<char>('a' + random() % 3);
        }
        std::string pattern;
        std::vector<std::size_t> literals;
        for (std::size_t i = 0; i < name.size();) {
            int const kind = random() % 4;
            if (kind == 0) {
                pattern += '?';
                ++i;
            } else if (kind == 1) {
                pattern += '*';
                i += random() % (name.size() - i + 1);
            } else {
                literals.push_back(pattern.size());
                pattern += name[i++];
            }
        }
        FileName const subject(name.c_str());
        ASSERT_TRUE(subject.MatchesWildCard(pattern.c_str())) << name << " " << pattern;
        if (!literals.empty() && pattern.find('*') == std::string::npos) {
            std::string wrong = pattern;
            wrong[literals[random() % literals.size()]] = 'z';
            ASSERT_FALSE(subject.MatchesWildCard(wrong.c_str())) << name << " " << wrong;
        }
    }
}
