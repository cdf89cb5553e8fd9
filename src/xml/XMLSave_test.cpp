#include "xml/XMLSave.h"

#include <gtest/gtest.h>

#include <string>

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
