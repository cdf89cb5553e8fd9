#include "xml/XMLSave.h"

#include <gtest/gtest.h>

#include <string>

#include "files/FileLocationFunctions.h"
#include "text/unicode/UStringBuilder.h"

namespace {

// Returns what XMLSave writes for the text inside an element "t", without line breaks.
std::string Saved(std::string const& text) {
    UStringBuilder<UTF8> builder(64);
    XMLWriter writer(builder, XMLWriter::NoLines);
    auto bytes = reinterpret_cast<unsigned char const*>(text.data());
    XMLSave(writer, EncodingCast<UStringRef<UTF8>, char>("t"),
            UStringRef<UTF8>(bytes, bytes + text.size()));
    writer.EndDocument();
    auto content = builder.Content();
    return std::string(reinterpret_cast<char const*>(content.begin), content.Length());
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
    for (auto const& c : cases) EXPECT_EQ(Saved(c.text), c.written) << c.text;
}

TEST(XMLSave, NumbersAreBareDecimalDigits) {
    UStringBuilder<UTF8> builder(64);
    XMLWriter writer(builder, XMLWriter::NoLines);
    XMLSerialize(writer, "a", 0ul);
    XMLSerialize(writer, "b", 18446744073709551615ull);
    writer.EndDocument();
    auto content = builder.Content();
    EXPECT_EQ(std::string(reinterpret_cast<char const*>(content.begin), content.Length()),
              "<a>0</a><b>18446744073709551615</b>");
}

namespace {

// Returns what writing the element "v" with the value gives, without line breaks.
template <class T>
std::string SavedValue(T const& value) {
    UStringBuilder<UTF8> builder(64);
    XMLWriter writer(builder, XMLWriter::NoLines);
    XMLSerialize(writer, "v", value);
    writer.EndDocument();
    auto content = builder.Content();
    return std::string(reinterpret_cast<char const*>(content.begin), content.Length());
}

}  // namespace

TEST(XMLSave, ValuesTakeTheirTextForms) {
    struct Case {
        std::string written;
        char const* expected;
    } const cases[] = {
        {SavedValue(true), "<v>true</v>"},
        {SavedValue(false), "<v>false</v>"},
        {SavedValue(TimeObject(Instant(952153509000000), TimeZone(-19800))),
         "<v>Sat, 04 Mar 2000 01:35:09 -0530</v>"},
        {SavedValue(TimeInterval(300000000)), "<v>PT5M</v>"},
        {SavedValue(TimeInterval(-1500000)), "<v>-PT1.500000S</v>"},
        {SavedValue(FileLocation(MakeFileLocation("/tmp/a&b/"))), "<v><![CDATA[/tmp/a&b]]></v>"},
        {SavedValue(FileLocation()), "<v></v>"},
        {SavedValue(FileName("x.xlat")), "<v>x.xlat</v>"},
        {SavedValue(std::string("a > b")), "<v><![CDATA[a > b]]></v>"},
        {SavedValue(SharedUString<UTF8>(MakeUString(EncodingCast<UStringRef<UTF8>, char>("]]>")))),
         "<v>]]&gt;</v>"},
    };
    for (auto const& c : cases) EXPECT_EQ(c.written, c.expected);
}

TEST(XMLSave, AttributesAreEscapedNeverCData) {
    UStringBuilder<UTF8> builder(64);
    XMLWriter writer(builder, XMLWriter::NoLines);
    writer.BeginElement("e");
    XMLSaveAttribute(writer, EncodingCast<UStringRef<UTF8>, char>("t"),
                     EncodingCast<UStringRef<UTF8>, char>("a<b"));
    XMLSaveAttribute(writer, EncodingCast<UStringRef<UTF8>, char>("on"), false);
    writer.EndDocument();
    auto content = builder.Content();
    EXPECT_EQ(std::string(reinterpret_cast<char const*>(content.begin), content.Length()),
              "<e t=\"a&lt;b\" on=\"false\"></e>");
}
