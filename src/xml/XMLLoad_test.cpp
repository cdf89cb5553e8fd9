#include "xml/XMLLoad.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "testing/TestText.h"
#include "text/bytes/AsciiNumerals.h"
#include "time/TimeText.h"
#include "xml/SimpleXMLParse.h"
#include "xml/XMLErrors.h"

namespace {

std::string ValueText(bool value) {
    return value ? "true" : "false";
}
std::string ValueText(unsigned long value) {
    return std::to_string(value);
}
std::string ValueText(unsigned long long value) {
    return std::to_string(value);
}
std::string ValueText(SharedUString<UTF8> const& value) {
    return "'" + Str(value) + "'";
}
std::string ValueText(std::string const& value) {
    return "'" + value + "'";
}
std::string ValueText(TimeInterval value) {
    return std::to_string(value.Microseconds()) + "us";
}
std::string ValueText(TimeObject const& value) {
    return TimeToText(value).CString();
}
std::string ValueText(FileName const& value) {
    return "'" + std::string(value.Text()) + "'";
}
std::string ValueText(FileLocation const& value) {
    return "'" + std::string(value.Text()) + "'";
}
template <class T>
std::string ValueText(NullOr<T> const& value) {
    return value.IsNull() ? "null" : ValueText(*value);
}

std::unique_ptr<XMLElement> ParseText(std::string const& text) {
    return SimpleXML::Parse(U8(text));
}

// Loads the field "v" from a record element holding the given children, starting from initial.
// Returns the value read, or the failure and the value the field was left with.
template <class T>
std::string LoadField(std::string const& children, T const& initial) {
    std::unique_ptr<XMLElement> const record = ParseText("<r>" + children + "</r>");
    T value = initial;
    try {
        XMLSerialize(*record, "v", value);
    } catch (std::exception const& failure) {
        return std::string("throws ") + failure.what() + ", left " + ValueText(value);
    }
    return ValueText(value);
}

struct Case {
    char const* children;
    char const* expected;
};

template <class T, std::size_t N>
void CheckAll(Case const (&cases)[N], T const& initial) {
    for (Case const& c : cases) EXPECT_EQ(LoadField(c.children, initial), c.expected) << c.children;
}

}  // namespace

TEST(XMLLoad, BooleanIsFalseOnlyForZeroAndLowerCaseFalse) {
    Case const fromTrue[] = {
        {"<v>0</v>", "false"},
        {"<v>false</v>", "false"},
        {"<v>FALSE</v>", "true"},
        {"<v>False</v>", "true"},
        {"<v></v>", "true"},
        {"<v>no</v>", "true"},
        {"<v> false</v>", "true"},
        {"<v>1</v>", "true"},
        {"<w>false</w>", "true"},  // absent: the field keeps what it had
        {"<v>false</v><v>true</v>", "true"},
        {"<v>true</v><v>0</v>", "false"},
    };
    CheckAll(fromTrue, true);
    Case const fromFalse[] = {
        {"", "false"},
        {"<V>true</V>", "false"},  // names compare with their case
        {"<v>yes</v>", "true"},
    };
    CheckAll(fromFalse, false);
}

TEST(XMLLoad, NumbersKeepTheirWidthAndAFailedChildLeavesTheValueBeforeIt) {
    Case const narrow[] = {
        {"<v>0</v>", "0"},
        {"<v>4294967295</v>", "4294967295"},
        {"<v>4294967296</v>", "throws NumeralTooLarge, left 7"},
        {"<v>12a</v>", "throws NotANumeral, left 7"},
        {"<v>-1</v>", "throws NotANumeral, left 7"},
        {"<v></v>", "throws NotANumeral, left 7"},
        {"<v>5</v><v>6</v>", "6"},
        {"<v>5</v><v>99999999999</v><v>6</v>", "throws NumeralTooLarge, left 5"},
        {"<x>5</x>", "7"},
    };
    CheckAll(narrow, 7ul);
    Case const wide[] = {
        {"<v>4294967296</v>", "4294967296"},
        {"<v>18446744073709551615</v>", "18446744073709551615"},
        {"<v>18446744073709551616</v>", "throws NumeralTooLarge, left 7"},
    };
    CheckAll(wide, 7ull);
}

TEST(XMLLoad, TextIsAFreshCopyAndNoTextIsTheEmptyString) {
    Case const cases[] = {
        {"<v>a &amp; b</v>", "'a & b'"},
        {"<v><![CDATA[<b>x</b>]]></v>", "'<b>x</b>'"},
        {"<v></v>", "''"},
        {"<v>first</v><v>second</v>", "'second'"},
        {"<w>other</w>", "'kept'"},
    };
    CheckAll(cases, SharedUString<UTF8>(MakeUString(U8("kept"))));
    // Local text goes through the locale; a test process runs in the C locale, which holds
    // nothing beyond ASCII.
    Case const local[] = {
        {"<v>/tmp/a b</v>", "'/tmp/a b'"},
        {"<v>caf\xc3\xa9</v>", "throws UnixPlatform::WideToMultiByteConvertError, left 'kept'"},
        {"<v>\xff</v>", "throws InvalidTextEncoding, left 'kept'"},
    };
    CheckAll(local, std::string("kept"));
}

TEST(XMLLoad, TimesNeedTheirZoneAndDurationsTheirForm) {
    Case const times[] = {
        {"<v>Sat, 04 Mar 2000 07:05:09 -0530</v>", "Sat, 04 Mar 2000 07:05:09 -0530"},
        {"<v>04 Mar 2000 07:05:09</v>", "throws NoTimeZone, left Thu, 01 Jan 1970 00:00:00 +0000"},
        {"<v></v>", "throws ParsingFailure, left Thu, 01 Jan 1970 00:00:00 +0000"},
    };
    CheckAll(times, TimeObject());
    Case const durations[] = {
        {"<v>PT5M</v>", "300000000us"},
        {"<v>-PT1.5S</v>", "-1500000us"},
        {"<v></v>", "throws Could not convert XMLDuration to TimeInterval, left 9us"},
        {"<v>5 minutes</v>", "throws Could not convert XMLDuration to TimeInterval, left 9us"},
    };
    CheckAll(durations, TimeInterval(9));
}

TEST(XMLLoad, NamesAreCheckedAndPathsLoseTheirTrailingSlash) {
    Case const names[] = {
        {"<v>_brand.xlat</v>", "'_brand.xlat'"},
        {"<v></v>", "''"},
        {"<v>..</v>", "throws IllegalFileName, left 'x'"},
        {"<v>a/b</v>", "throws IllegalFileName, left 'x'"},
        {"<v>.</v>", "throws IllegalFileName, left 'x'"},
    };
    CheckAll(names, FileName("x"));
    Case const locations[] = {
        {"<v>/var/tmp/ZOL/ClientUI/</v>", "'/var/tmp/ZOL/ClientUI'"},
        {"<v></v>", "''"},
    };
    CheckAll(locations, FileLocation());
}

TEST(XMLLoad, OptionalChildIsNullWhenAbsentEvenIfItHadAValue) {
    NullOr<TimeInterval> const set(TimeInterval(1));
    Case const durations[] = {
        {"", "null"},
        {"<w>PT1S</w>", "null"},
        {"<v>PT1S</v>", "1000000us"},
        {"<v>PT1S</v><v>PT2S</v>", "2000000us"},
        {"<v></v>", "throws Could not convert XMLDuration to TimeInterval, left 1us"},
    };
    CheckAll(durations, set);
    NullOr<SharedUString<UTF8>> const text(SharedUString<UTF8>(MakeUString(U8("before"))));
    Case const texts[] = {
        {"", "null"},
        {"<v></v>", "''"},  // present and empty is a value, not null
        {"<v>now</v>", "'now'"},
    };
    CheckAll(texts, text);
}

// A record read through its own field list, repeated: one entry per child, appended.
struct Pair {
    unsigned long long m_a = 0;
    SharedUString<UTF8> m_b;
};
void XMLSerialize(XMLElement const& element, Pair& pair) {
    XMLSerialize(element, "A", pair.m_a);
    XMLSerialize(element, "B", pair.m_b);
}

TEST(XMLLoad, RepeatedChildrenAppendOneRecordEach) {
    std::unique_ptr<XMLElement> const record =
        ParseText("<r><p><A>1</A><B>one</B></p><q><A>9</A></q><p><B>two</B></p><p></p></r>");
    std::vector<Pair> pairs(1);
    pairs[0].m_a = 42;
    XMLSerialize(*record, "p", pairs);
    ASSERT_EQ(pairs.size(), 4u);
    EXPECT_EQ(pairs[0].m_a, 42u) << "the vector was cleared";
    EXPECT_EQ(pairs[1].m_a, 1u);
    EXPECT_EQ(Str(pairs[1].m_b), "one");
    EXPECT_EQ(pairs[2].m_a, 0u);
    EXPECT_EQ(Str(pairs[2].m_b), "two");
    EXPECT_EQ(Str(pairs[3].m_b), "");

    std::unique_ptr<XMLElement> const bad = ParseText("<r><p><A>1</A></p><p><A>x</A></p></r>");
    std::vector<Pair> partial;
    EXPECT_THROW(XMLSerialize(*bad, "p", partial), NotANumeral);
    EXPECT_EQ(partial.size(), 1u) << "records before the failing child stay";
}

TEST(XMLLoad, AbsentBooleanAttributeIsFalseButAbsentTextAttributeFails) {
    std::unique_ptr<XMLElement> const e =
        ParseText("<r on=\"FALSE\" off=\"false\" t=\"a&amp;b\"></r>");
    struct BoolCase {
        char const* name;
        bool expected;
    } const cases[] = {{"on", true}, {"off", false}, {"missing", false}, {"ON", false}};
    for (BoolCase const& c : cases) {
        bool value = !c.expected;
        XMLLoadAttribute(*e, EncodingCast<UStringRef<UTF8>, char>(c.name), value);
        EXPECT_EQ(value, c.expected) << c.name;
    }
    SharedUString<UTF8> text;
    XMLLoadAttribute(*e, U8("t"), text);
    EXPECT_EQ(Str(text), "a&b");
    EXPECT_THROW(XMLLoadAttribute(*e, U8("missing"), text), NoSuchAttribute);
    EXPECT_EQ(Str(text), "a&b");
}
