#include "xml/XMLWriter.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

#include "text/UStringBuilder.h"
#include "xml/SimpleXMLParse.h"
#include "xml/XMLElement.h"

namespace {

UStringRef<UTF8> U8(std::string const& s) {
    auto const* begin = reinterpret_cast<UTF8::Unit const*>(s.data());
    return UStringRef<UTF8>(begin, begin + s.size());
}

std::string Str(UStringRef<UTF8> s) {
    return std::string(reinterpret_cast<char const*>(s.begin), s.Length());
}

// Keeps every piece apart and counts the stream's start and end.
struct PieceRecorder : UTextReceiver<UTF8> {
    std::vector<std::string> pieces;
    int starts = 0;
    int ends = 0;
    void Start(UTF8) override { ++starts; }
    void Receive(ConstArrayOf<UTF8::Unit> chunk) override {
        pieces.emplace_back(reinterpret_cast<char const*>(chunk.begin), chunk.Count());
    }
    void ReceiveEnd() override { ++ends; }
    std::string All() const {
        std::string s;
        for (auto const& p : pieces) s += p;
        return s;
    }
};

// The document of a root `a` with attribute k="v", a child `b` holding "x" and an empty `c`.
std::string SampleDocument(XMLWriter::XMLFormatStyle style) {
    PieceRecorder out;
    XMLWriter writer(out, style);
    writer.BeginDocument(XMLWriter::WithEncoding);
    writer.BeginElement("a");
    writer.AddAttribute("k", U8("v"));
    writer.BeginElement("b");
    writer.WriteString(U8("x"));
    writer.EndElement();
    writer.BeginElement("c");
    writer.EndElement();
    writer.EndDocument();
    EXPECT_EQ(out.starts, 1);
    EXPECT_EQ(out.ends, 1);
    return out.All();
}

TEST(XMLWriter, WritesTheSampleDocumentInEachStyle) {
    EXPECT_EQ(SampleDocument(XMLWriter::IndentedLines),
              "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
              "<a k=\"v\">\n"
              "\t<b>x</b>\n"
              "\t<c></c>\n"
              "</a>");
    EXPECT_EQ(SampleDocument(XMLWriter::PlainLines),
              "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
              "<a k=\"v\">\n"
              "<b>x</b>\n"
              "<c></c>\n"
              "</a>");
    std::string const flat =
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?><a k=\"v\"><b>x</b><c></c></a>";
    EXPECT_EQ(SampleDocument(XMLWriter::NoLines), flat);
    EXPECT_EQ(SampleDocument(static_cast<XMLWriter::XMLFormatStyle>(7)), flat);
}

TEST(XMLWriter, EscapesByteByByteAndSendsRunsWhole) {
    struct Case {
        std::string input;
        std::string asText;
        std::string asAttribute;
    } const cases[] = {
        {"a<b", "a&lt;b", "a&lt;b"},
        {"&>", "&amp;&gt;", "&amp;&gt;"},
        {"say \"hi\"", "say \"hi\"", "say &quot;hi&quot;"},
        {"it's", "it's", "it's"},
        {"l1\r\nl2\n", "l1\r\nl2\n", "l1\r\nl2\n"},
        {"\xc3\xa9\x01\x7f", "\xc3\xa9\x01\x7f", "\xc3\xa9\x01\x7f"},
        {"&amp;", "&amp;amp;", "&amp;amp;"},
        {"", "", ""},
    };
    for (auto const& c : cases) {
        PieceRecorder text;
        XMLWriter textWriter(text, XMLWriter::NoLines);
        textWriter.WriteString(U8(c.input));
        EXPECT_EQ(text.All(), c.asText) << c.input;

        PieceRecorder attribute;
        XMLWriter attributeWriter(attribute, XMLWriter::NoLines);
        attributeWriter.AddAttribute("n", U8(c.input));
        EXPECT_EQ(attribute.All(), " n=\"" + c.asAttribute + "\"") << c.input;
    }
    PieceRecorder runs;
    XMLWriter writer(runs, XMLWriter::NoLines);
    writer.WriteString(U8("abc<<de&"));
    EXPECT_EQ(runs.pieces, (std::vector<std::string>{"abc", "&lt;", "&lt;", "de", "&amp;"}));
}

// The line-end escapes exist behind a flag that no operation sets; a derived writer reaches them.
struct LineEndEscapingWriter : XMLWriter {
    explicit LineEndEscapingWriter(UTextReceiver<UTF8>& out) : XMLWriter(out, NoLines) {
        escapeLineEnds = 1;
    }
};

TEST(XMLWriter, LineEndEscapesOnlyBehindTheirFlag) {
    PieceRecorder out;
    LineEndEscapingWriter writer(out);
    EXPECT_TRUE(writer.EscapeLineEnds());
    writer.BeginElement("a");
    writer.AddAttribute("k", U8("1\r\n2\"'"));
    writer.WriteString(U8("x\ny\rz\"'"));
    writer.EndElement();
    EXPECT_EQ(out.All(), "<a k=\"1&#xd;&#xa;2&quot;'\">x&#xa;y&#xd;z\"'</a>");

    PieceRecorder plain;
    XMLWriter ordinary(plain, XMLWriter::NoLines);
    EXPECT_FALSE(ordinary.EscapeLineEnds());
}

TEST(XMLWriter, PlacesLineFeedsByWhatCameLast) {
    struct Case {
        char const* what;
        void (*write)(XMLWriter&);
        std::string bytes;
    } const cases[] = {
        {"empty element stays on one line, never self-closed",
         [](XMLWriter& w) {
             w.BeginElement("a");
             w.EndElement();
         },
         "\n<a></a>"},
        {"empty text gives the same bytes as nothing",
         [](XMLWriter& w) {
             w.BeginElement("a");
             w.WriteString(U8(""));
             w.EndElement();
         },
         "\n<a></a>"},
        {"text after an end tag starts a fresh line with no tabs",
         [](XMLWriter& w) {
             w.BeginElement("r");
             w.BeginElement("a");
             w.BeginElement("b");
             w.EndElement();
             w.WriteString(U8("t"));
             w.EndElement();
             w.EndElement();
         },
         "\n<r>\n\t<a>\n\t\t<b></b>\nt</a>\n</r>"},
        {"a line feed inside text takes no indentation",
         [](XMLWriter& w) {
             w.BeginElement("r");
             w.BeginElement("a");
             w.WriteString(U8("1\n2"));
             w.EndElement();
             w.EndElement();
         },
         "\n<r>\n\t<a>1\n2</a>\n</r>"},
        {"three open elements, innermost after text",
         [](XMLWriter& w) {
             w.BeginElement("a");
             w.BeginElement("b");
             w.BeginElement("c");
             w.WriteString(U8("x"));
             w.EndDocument();
         },
         "\n<a>\n\t<b>\n\t\t<c>x</c>\n\t</b>\n</a>"},
        {"three open elements, innermost just started",
         [](XMLWriter& w) {
             w.BeginElement("a");
             w.BeginElement("b");
             w.BeginElement("c");
             w.AddAttribute("k", U8("v"));
             w.EndDocument();
         },
         "\n<a>\n\t<b>\n\t\t<c k=\"v\"></c>\n\t</b>\n</a>"},
        {"three open elements after a closed fourth",
         [](XMLWriter& w) {
             w.BeginElement("a");
             w.BeginElement("b");
             w.BeginElement("c");
             w.BeginElement("d");
             w.EndElement();
             w.EndDocument();
         },
         "\n<a>\n\t<b>\n\t\t<c>\n\t\t\t<d></d>\n\t\t</c>\n\t</b>\n</a>"},
        {"CDATA is written unchanged, even when it ends the section early",
         [](XMLWriter& w) {
             w.BeginElement("a");
             w.WriteCData(U8("<x>]]>&"));
             w.EndElement();
         },
         "\n<a><![CDATA[<x>]]>&]]></a>"},
        {"null names and values are written as nothing",
         [](XMLWriter& w) {
             w.BeginElement(static_cast<char const*>(nullptr));
             w.AddAttribute(static_cast<char const*>(nullptr), UStringRef<UTF8>());
             w.WriteString(UStringRef<UTF8>());
             w.WriteCData(UStringRef<UTF8>());
             w.EndElement();
         },
         "\n< =\"\"><![CDATA[]]></>"},
        {"an attribute after content lands in the content",
         [](XMLWriter& w) {
             w.BeginElement("a");
             w.WriteString(U8("x"));
             w.AddAttribute("k", U8("v"));
             w.EndElement();
         },
         "\n<a>x k=\"v\"</a>"},
    };
    for (auto const& c : cases) {
        PieceRecorder out;
        XMLWriter writer(out, XMLWriter::IndentedLines);
        c.write(writer);
        EXPECT_EQ(out.All(), c.bytes) << c.what;
    }
}

TEST(XMLWriter, DeclarationsAndTheEndOfTheStream) {
    PieceRecorder out;
    XMLWriter writer(out, XMLWriter::NoLines);
    writer.BeginDocument(XMLWriter::WithoutEncoding);
    EXPECT_EQ(out.All(), "<?xml version=\"1.0\"?>");
    writer.BeginDocument(static_cast<XMLWriter::EncodingDeclaration>(5));
    writer.EndDocument();
    EXPECT_EQ(out.All(), "<?xml version=\"1.0\"?><?xml version=\"1.0\"?>");
    EXPECT_EQ(out.starts, 2);
    EXPECT_EQ(out.ends, 1);
}

TEST(XMLWriter, WritesAWholeTreeValueFirstAttributesInOrder) {
    auto root = SimpleXML::Parse(U8("<r z=\"1\" a=\"&quot;\"><c>x</c>v<d></d></r>"));
    PieceRecorder out;
    XMLWriter writer(out, XMLWriter::IndentedLines);
    writer.WriteXMLElement(*root);
    EXPECT_EQ(out.All(), "\n<r a=\"&quot;\" z=\"1\">v\n\t<c>x</c>\n\t<d></d>\n</r>");
}

// Trees whose names the parser reads back as written: letters, digits, a few punctuation bytes
// and UTF-8 sequences. Values and attribute texts are any bytes at all.
class RandomTrees {
  public:
    explicit RandomTrees(unsigned seed) : random(seed) {}

    XMLElement Make(int depth) {
        XMLElement element(U8(Name()), Attributes());
        if (random() % 3 != 0) element.AppendCharacters(U8(Bytes(12)));
        int const children = depth > 0 ? static_cast<int>(random() % 4) : 0;
        for (int i = 0; i < children; ++i) element.AddChildElement(Make(depth - 1));
        return element;
    }

    std::string Bytes(unsigned maxLength) {
        std::string s;
        unsigned const length = random() % (maxLength + 1);
        for (unsigned i = 0; i < length; ++i) {
            // Favour the bytes that the writer and the parser steer by.
            static char const steering[] = "<>&\"';]\r\n\t -/=?!#x";
            s += (random() % 2) ? steering[random() % (sizeof steering - 1)]
                                : static_cast<char>(random() % 256);
        }
        return s;
    }

  private:
    std::string Name() {
        static char const first[] = "abcXYZ_:";
        static char const rest[] = "abcXYZ_:.019";
        std::string s(1, first[random() % (sizeof first - 1)]);
        unsigned const length = random() % 6;
        for (unsigned i = 0; i < length; ++i) {
            if (random() % 8 == 0)
                s += "\xc3\xa9";
            else
                s += rest[random() % (sizeof rest - 1)];
        }
        return s;
    }

    XMLElement::AttributeMap Attributes() {
        XMLElement::AttributeMap map;
        unsigned const count = random() % 4;
        for (unsigned i = 0; i < count; ++i) {
            map.insert_or_assign(SharedUString<UTF8>(MakeUString(U8(Name()))),
                                 SharedUString<UTF8>(MakeUString(U8(Bytes(8)))));
        }
        return map;
    }

    std::mt19937 random;
};

std::string Dump(XMLElement const& e) {
    std::string s = "<" + Str(e.name);
    for (auto const& a : e.attributes) s += "|" + Str(a.first) + "=" + Str(a.second);
    s += "|{" + Str(e.GetValue()) + "}";
    for (auto const& child : e.children) s += Dump(child);
    return s + ">";
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
    RandomTrees trees(4711);
    for (int round = 0; round < 400; ++round) {
        XMLElement const original = trees.Make(3);
        for (auto style : {XMLWriter::NoLines, XMLWriter::IndentedLines}) {
            UStringBuilder<UTF8> out(16);
            XMLWriter writer(out, style);
            writer.BeginDocument(XMLWriter::WithEncoding);
            writer.WriteXMLElement(original);
            writer.EndDocument();
            std::unique_ptr<XMLElement> const back = SimpleXML::Parse(out.Content());
            XMLElement expected = original;
            if (style == XMLWriter::IndentedLines) AddIndentation(expected, 0);
            ASSERT_EQ(Dump(*back), Dump(expected)) << Str(out.Content());
        }
    }
}

TEST(XMLWriter, CDataSectionsReadBackByteForByte) {
    RandomTrees texts(99);
    for (int round = 0; round < 2000; ++round) {
        std::string text = texts.Bytes(30);
        // What a section cannot hold: its own end, and NUL bytes, which the parser drops.
        if (text.find("]]>") != std::string::npos || text.find('\0') != std::string::npos) continue;
        UStringBuilder<UTF8> out(16);
        XMLWriter writer(out, XMLWriter::IndentedLines);
        writer.BeginDocument(XMLWriter::WithEncoding);
        writer.BeginElement("a");
        writer.WriteString(U8("<"));
        writer.WriteCData(U8(text));
        writer.EndDocument();
        ASSERT_EQ(Str(SimpleXML::Parse(out.Content())->GetValue()), "<" + text);
    }
}

}  // namespace
