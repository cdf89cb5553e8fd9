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

// The rules that the agent's documents exercise (the other boolean forms, number widths, last
// wins, unknown and differently cased names ignored, file name checks, null optionals, text,
// times, durations and repeated records) are tested through the real records in
// session/MessageDocuments_test.cpp; these are the cases those records do not reach.
TEST(XMLLoad, BooleanIsFalseOnlyForZeroAndLowerCaseFalse) {
    Case const fromTrue[] = {
        {"<v>0</v>", "false"},
        {"<v>false</v>", "false"},
        {"<v> false</v>", "true"},
        {"<w>false</w>", "true"},  // absent: the field keeps what it had
        {"<v>false</v><v>true</v>", "true"},
        {"<v>true</v><v>0</v>", "false"},
    };
    CheckAll(fromTrue, true);
}

TEST(XMLLoad, AFailedChildLeavesTheValueBeforeIt) {
    Case const narrow[] = {
        {"<v>0</v>", "0"},
        {"<v>12a</v>", "throws NotANumeral, left 7"},
        {"<v>-1</v>", "throws NotANumeral, left 7"},
        {"<v></v>", "throws NotANumeral, left 7"},
        {"<v>5</v><v>99999999999</v><v>6</v>", "throws NumeralTooLarge, left 5"},
    };
    CheckAll(narrow, 7ul);
    Case const times[] = {
        {"<v></v>", "throws ParsingFailure, left Thu, 01 Jan 1970 00:00:00 +0000"},
    };
    CheckAll(times, TimeObject());
    Case const durations[] = {
        {"<v>-PT1.5S</v>", "-1500000us"},
        {"<v>5 minutes</v>", "throws Could not convert XMLDuration to TimeInterval, left 9us"},
    };
    CheckAll(durations, TimeInterval(9));
}

TEST(XMLLoad, EmptyTextAndNamesAreValuesAndLocalTextGoesThroughTheLocale) {
    EXPECT_EQ(LoadField("<v></v>", SharedUString<UTF8>(MakeUString(U8("kept")))), "''");
    EXPECT_EQ(LoadField("<v></v>", FileName("x")), "''");
    // A test process runs in the C locale, which holds nothing beyond ASCII.
    Case const local[] = {
        {"<v>/tmp/a b</v>", "'/tmp/a b'"},
        {"<v>caf\xc3\xa9</v>", "throws UnixPlatform::WideToMultiByteConvertError, left 'kept'"},
        {"<v>\xff</v>", "throws InvalidTextEncoding, left 'kept'"},
    };
    CheckAll(local, std::string("kept"));
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

TEST(XMLLoad, RecordsBeforeAFailingChildStay) {
    std::unique_ptr<XMLElement> const record =
        ParseText("<r><p><A>1</A><B>one</B></p><q><A>9</A></q><p><A>x</A></p></r>");
    std::vector<Pair> pairs(1);
    EXPECT_THROW(XMLSerialize(*record, "p", pairs), NotANumeral);
    ASSERT_EQ(pairs.size(), 2u);
    EXPECT_EQ(pairs[1].m_a, 1u);
    EXPECT_EQ(Str(pairs[1].m_b), "one");
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
