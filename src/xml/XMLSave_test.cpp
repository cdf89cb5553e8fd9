#include "xml/XMLSave.h"

#include <gtest/gtest.h>

#include <string>

#include "files/FileLocationFunctions.h"
#include "testing/TestText.h"
#include "text/unicode/UStringBuilder.h"

namespace {

// Returns the bytes that write puts through a writer without line breaks, up to the end of the
// document.
template <class F>
std::string Written(F write) {
    UStringBuilder<UTF8> builder(64);
    XMLWriter writer(builder, XMLWriter::NoLines);
    write(writer);
    writer.EndDocument();
    return Str(builder.Content());
}

// Returns what writing the element "v" with the value gives.
template <class T>
std::string SavedValue(T const& value) {
    return Written([&](XMLWriter& writer) { XMLSerialize(writer, "v", value); });
}

}  // namespace

TEST(XMLSave, MarkupGoesAsOneCDataSectionUnlessItCannotHoldIt) {
    struct Case {
        char const* text;
        char const* written;
    } const cases[] = {
        {"x", "<t>x</t>"},
        {"", "<t></t>"},
        {"]]", "<t>]]</t>"},
        {"say \"hi\"", "<t>say \"hi\"</t>"},
        {"a < b", "<t><![CDATA[a < b]]></t>"},
        {"a & b > c", "<t><![CDATA[a & b > c]]></t>"},
        {"a ]]> b", "<t>a ]]&gt; b</t>"},
        {"<x>]]>&", "<t>&lt;x&gt;]]&gt;&amp;</t>"},
    };
    for (auto const& c : cases) {
        std::string const text = c.text;
        EXPECT_EQ(Written([&](XMLWriter& writer) { XMLSave(writer, U8("t"), U8(text)); }),
                  c.written)
            << c.text;
    }
}

// Booleans, the largest ID, a reading and a whole-minute interval are written in the exact
// documents of session/ClientSender_test.cpp.
TEST(XMLSave, ValuesTakeTheirTextForms) {
    struct Case {
        std::string written;
        char const* expected;
    } const cases[] = {
        {SavedValue(0ul), "<v>0</v>"},
        {SavedValue(TimeInterval(-1500000)), "<v>-PT1.500000S</v>"},
        {SavedValue(FileLocation(MakeFileLocation("/tmp/a&b/"))), "<v><![CDATA[/tmp/a&b]]></v>"},
        {SavedValue(FileLocation()), "<v></v>"},
        {SavedValue(FileName("x.xlat")), "<v>x.xlat</v>"},
        {SavedValue(std::string("a > b")), "<v><![CDATA[a > b]]></v>"},
        {SavedValue(SharedUString<UTF8>(MakeUString(U8("]]>")))), "<v>]]&gt;</v>"},
    };
    for (auto const& c : cases) EXPECT_EQ(c.written, c.expected);
}

TEST(XMLSave, AttributesAreEscapedNeverCData) {
    EXPECT_EQ(Written([](XMLWriter& writer) {
                  writer.BeginElement("e");
                  XMLSaveAttribute(writer, U8("t"), U8("a<b"));
                  XMLSaveAttribute(writer, U8("on"), false);
              }),
              "<e t=\"a&lt;b\" on=\"false\"></e>");
}
