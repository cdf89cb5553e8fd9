#include "xml/XMLWriter.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <random>
#include <sstream>
#include <string>

#include "testing/Recorders.h"
#include "testing/XMLDump.h"
#include "text/unicode/UStringBuilder.h"
#include "xml/SimpleXMLParse.h"
#include "xml/XMLElement.h"

namespace {

// The line-end escapes exist behind a flag that no operation sets; a derived writer reaches them.
struct TestWriter : XMLWriter {
    TestWriter(UTextReceiver<UTF8>& out, bool lineEnds) : XMLWriter(out, NoLines) {
        escapeLineEnds = lineEnds;
    }
};

std::string Escaped(std::string const& input, bool inAttribute, bool lineEnds) {
    TextRecorder<UTF8> out;
    TestWriter writer(out, lineEnds);
    inAttribute ? writer.AddAttribute("n", U8(input)) : writer.WriteString(U8(input));
    return Str(out.All());
}

TEST(XMLWriter, EscapesTextAndAttributes) {
    struct Case {
        bool lineEnds;
        std::string input;
        std::string asText;
        std::string asAttribute;
    } const cases[] = {
        {false, "a<b&>&amp;", "a&lt;b&amp;&gt;&amp;amp;", "a&lt;b&amp;&gt;&amp;amp;"},
        {false, "\"it's\"", "\"it's\"", "&quot;it's&quot;"},
        {false, "\r\n\xc3\xa9\x01\x7f", "\r\n\xc3\xa9\x01\x7f", "\r\n\xc3\xa9\x01\x7f"},
        {true, "1\r\n<\"'", "1&#xd;&#xa;&lt;\"'", "1&#xd;&#xa;&lt;&quot;'"},
    };
    for (auto const& c : cases) {
        EXPECT_EQ(Escaped(c.input, false, c.lineEnds), c.asText) << c.input;
        EXPECT_EQ(Escaped(c.input, true, c.lineEnds), " n=\"" + c.asAttribute + "\"") << c.input;
    }
}

// Plays space-separated steps: "?n" begins the document with declaration n, "<a" begins element a,
// "=k=v" adds an attribute, "'t" writes text, "[t" writes CDATA, ">" ends an element and "$" the
// document. An empty name, value or text is passed as a null one.
void Play(XMLWriter& w, std::string const& script) {
    std::istringstream steps(script);
    for (std::string step; steps >> step;) {
        std::string const arg = step.substr(1);
        std::string const key = arg.substr(0, arg.find('='));
        std::string const value = key.size() < arg.size() ? arg.substr(key.size() + 1) : "";
        auto const name = [](std::string const& s) { return s.empty() ? nullptr : s.c_str(); };
        auto const text = [](std::string const& s) {
            return s.empty() ? UStringRef<UTF8>() : U8(s);
        };
        if (step[0] == '?') w.BeginDocument(XMLWriter::EncodingDeclaration(std::atoi(arg.c_str())));
        if (step[0] == '<') w.BeginElement(name(arg));
        if (step[0] == '=') w.AddAttribute(name(key), text(value));
        if (step[0] == '\'') w.WriteString(text(arg));
        if (step[0] == '[') w.WriteCData(text(arg));
        if (step[0] == '>') w.EndElement();
        if (step[0] == '$') w.EndDocument();
    }
}

TEST(XMLWriter, PlacesLineFeedsByStyleAndWhatCameLast) {
    char const* const sample = "? <a =k=v <b 'x > <c > $";
    std::string const flat =
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?><a k=\"v\"><b>x</b><c></c></a>";
    struct Case {
        XMLWriter::XMLFormatStyle style;
        std::string script;
        std::string bytes;
    } const cases[] = {
        // The empty element stays on one line and is never self-closed.
        {XMLWriter::IndentedLines, sample,
         "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
         "<a k=\"v\">\n"
         "\t<b>x</b>\n"
         "\t<c></c>\n"
         "</a>"},
        {XMLWriter::PlainLines, sample,
         "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<a k=\"v\">\n<b>x</b>\n<c></c>\n</a>"},
        {XMLWriter::NoLines, sample, flat},
        {XMLWriter::XMLFormatStyle(7), sample, flat},
        {XMLWriter::NoLines, "?1 ?5 $", "<?xml version=\"1.0\"?><?xml version=\"1.0\"?>"},
        // Empty text gives the same bytes as nothing.
        {XMLWriter::IndentedLines, "<a ' >", "\n<a></a>"},
        // Text after an end tag starts a fresh line with no tabs.
        {XMLWriter::IndentedLines, "<r <a <b > 't > >", "\n<r>\n\t<a>\n\t\t<b></b>\nt</a>\n</r>"},
        // The end of the document closes every open element, here three.
        {XMLWriter::IndentedLines, "<a <b <c =k=v $",
         "\n<a>\n\t<b>\n\t\t<c k=\"v\"></c>\n\t</b>\n</a>"},
        // CDATA is written unchanged, even when it ends the section early.
        {XMLWriter::IndentedLines, "<a [<x>]]>& >", "\n<a><![CDATA[<x>]]>&]]></a>"},
        // Null names, values and texts are written as empty ones.
        {XMLWriter::IndentedLines, "< = ' [ >", "\n< =\"\"><![CDATA[]]></>"},
    };
    for (auto const& c : cases) {
        TextRecorder<UTF8> out;
        XMLWriter writer(out, c.style);
        Play(writer, c.script);
        EXPECT_EQ(Str(out.All()), c.bytes) << c.script;
        EXPECT_EQ(out.starts, std::count(c.script.begin(), c.script.end(), '?'));
        EXPECT_EQ(out.ends, std::count(c.script.begin(), c.script.end(), '$'));
    }
}

TEST(XMLWriter, WritesAWholeTreeValueFirstAttributesInOrder) {
    auto root = SimpleXML::Parse(U8("<r z=\"1\" a=\"&quot;\"><c>x</c>v<d></d></r>"));
    TextRecorder<UTF8> out;
    XMLWriter writer(out, XMLWriter::IndentedLines);
    writer.WriteXMLElement(*root);
    EXPECT_EQ(Str(out.All()), "\n<r a=\"&quot;\" z=\"1\">v\n\t<c>x</c>\n\t<d></d>\n</r>");
}

// Any bytes at all, favouring those that the writer and the parser steer by.
std::string RandomMarkupText(std::mt19937& random, unsigned maxLength) {
    static char const steering[] = "<>&\"';]\r\n\t -/=?!#x";
    std::string s(random() % (maxLength + 1), '\0');
    for (char& c : s)
        c = random() % 2 ? steering[random() % (sizeof steering - 1)] : char(random());
    return s;
}

// A name the parser reads back as written: letters, digits, a few punctuation bytes and UTF-8.
std::string RandomName(std::mt19937& random) {
    static char const bytes[] = "abcXYZ_:.019\xc3\xa9";
    std::string s(1 + random() % 6, ' ');
    for (std::size_t i = 0; i < s.size(); ++i)
        s[i] = bytes[random() % (i == 0 ? 8 : sizeof bytes - 1)];
    return s;
}

XMLElement RandomTree(std::mt19937& random, int depth) {
    XMLElement::AttributeMap attributes;
    for (unsigned count = random() % 4; count > 0; --count)
        attributes.insert_or_assign(
            SharedUString<UTF8>(MakeUString(U8(RandomName(random)))),
            SharedUString<UTF8>(MakeUString(U8(RandomMarkupText(random, 8)))));
    XMLElement element(U8(RandomName(random)), attributes);
    if (random() % 3 != 0) element.AppendCharacters(U8(RandomMarkupText(random, 12)));
    for (int children = depth > 0 ? random() % 4 : 0; children > 0; --children)
        element.AddChildElement(RandomTree(random, depth - 1));
    return element;
}

// With indentation the line feeds and tabs before tags become part of the parent's value.
void AddIndentation(XMLElement& e, std::size_t depth) {
    if (e.children.empty()) return;
    std::string const childLine = "\n" + std::string(depth + 1, '\t');
    for (std::size_t i = 0; i < e.children.size(); ++i) e.AppendCharacters(U8(childLine));
    e.AppendCharacters(U8("\n" + std::string(depth, '\t')));
    for (auto& child : e.children) AddIndentation(child, depth + 1);
}

TEST(XMLWriter, ParserReadsBackWhatTheWriterWrote) {
    std::mt19937 random(4711);
    for (int round = 0; round < 400; ++round) {
        XMLElement const original = RandomTree(random, 3);
        for (auto style : {XMLWriter::NoLines, XMLWriter::IndentedLines}) {
            UStringBuilder<UTF8> out(16);
            XMLWriter writer(out, style);
            writer.BeginDocument(XMLWriter::WithEncoding);
            writer.WriteXMLElement(original);
            writer.EndDocument();
            XMLElement expected = original;
            if (style == XMLWriter::IndentedLines) AddIndentation(expected, 0);
            ASSERT_EQ(Dump(*SimpleXML::Parse(out.Content())), Dump(expected)) << Str(out.Content());
        }
    }
}

}  // namespace
