#include "xml/SimpleXMLParserPL.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

namespace {

// Writes every callback as one line of text, so that two runs can be compared as a whole.
class RecordingHandler : public XMLHandler {
  public:
    std::vector<std::string> events;

    static std::string Tag(std::string const& name, AttributePointers const& attributes) {
        std::string s = name;
        for (auto const* a : attributes) s += "|" + a->first + "=" + a->second;
        return s;
    }
    void StartElement(std::string const& name, AttributePointers const& attributes) override {
        events.push_back("S:" + Tag(name, attributes));
    }
    void EndElement(std::string const& name) override { events.push_back("E:" + name); }
    void Characters(std::string const& text) override { events.push_back("C:" + text); }
    void DoProcessingInstructionElement(std::string const& name,
                                        AttributePointers const& attributes) override {
        events.push_back("P:" + Tag(name, attributes));
    }
};

std::vector<std::string> ParseWhole(std::string const& document) {
    RecordingHandler handler;
    SimpleXMLParserPL parser(handler);
    parser.Parse(document);
    return handler.events;
}

std::vector<std::string> ParseInPieces(std::string const& document, std::mt19937& random,
                                       std::size_t maxPiece) {
    RecordingHandler handler;
    SimpleXMLParserPL parser(handler);
    std::size_t at = 0;
    while (at < document.size()) {
        std::size_t piece = std::uniform_int_distribution<std::size_t>(0, maxPiece)(random);
        piece = std::min(piece, document.size() - at);
        parser.Parse(document.data() + at, static_cast<unsigned int>(piece));
        at += piece;
    }
    return handler.events;
}

struct Case {
    std::string input;
    std::vector<std::string> events;
};

TEST(SimpleXMLParserPL, DeliversWhatTheStateMachineDefines) {
    std::vector<Case> const cases = {
        {"", {}},
        {"<a>x</a>", {"S:a", "C:x", "E:a"}},
        // Text after the last tag is never delivered.
        {"<a>x", {"S:a"}},
        {"x<a>y</a>z", {"C:x", "S:a", "C:y", "E:a"}},
        {"<a>\n\t<b>", {"S:a", "C:\n\t", "S:b"}},
        {"<a b='1\"2'>", {"S:a|b=1\"2"}},
        {"<a b=\"1\" c='2'>", {"S:a|b=1|c=2"}},
        {"<a b=\"x&amp;y\" c='2'>", {"S:a|b=x&y|c=2"}},
        {"<a b=\"&lt;&#x41;&foo;\">", {"S:a|b=<A&foo;"}},
        {"<a b=c\"d\">", {"S:a|b=d"}},
        {"<a b = \"1\">", {"S:a|b =1"}},
        {"<a b='<>\n'>", {"S:a|b=<>\n"}},
        {"< a>", {"S:a"}},
        {"<>", {"S:"}},
        {"</>", {"E:"}},
        {"<a>x</b>", {"S:a", "C:x", "E:b"}},
        {"</a b>", {"E:a b"}},
        // Entity references: each one is a delivery of its own.
        {"<a>a&amp;b</a>", {"S:a", "C:a", "C:&", "C:b", "E:a"}},
        {"<a>&lt;&#x41;&foo;</a>", {"S:a", "C:<", "C:A", "C:&foo;", "E:a"}},
        {"<a>&gt;&quot;&apos;</a>", {"S:a", "C:>", "C:\"", "C:&apos;", "E:a"}},
        {"<a>&#x100;&#65;&#X41;</a>", {"S:a", "C:&#x100;", "C:&#65;", "C:&#X41;", "E:a"}},
        {"<a>&#xe9;&#xff;</a>", {"S:a", "C:\xe9", "C:\xff", "E:a"}},
        {"<a>&#x;&#xZZ;</a>", {"S:a", std::string("C:\0", 3), std::string("C:\0", 3), "E:a"}},
        {"<a>&#x-1;&#x 41;&#x4g;</a>", {"S:a", "C:\xff", "C:A", "C:\x04", "E:a"}},
        {"<a>x&y<b>z</b>", {"S:a", "C:x"}},
        // Self-closed and odd end forms.
        {"<a/>", {"E:a"}},
        {"<a/b>", {"E:ab"}},
        {"<a b/><c x=\"1\">", {"S:a|b/><c x=1"}},
        {"<a\nb=\"1\">", {"S:a\nb=\"1\""}},
        {"<a\tb='1' c='2'>", {"S:a\tb='1'|c=2"}},
        {"<a b='1'\nc='2'>", {"S:a|b=1|\nc=2"}},
        // Dashes in names, comments.
        {"<a-b>", {"S:ab"}},
        {"<a-b-c>x<d>y-->z<e>", {"C:z", "S:e"}},
        {"<!-- a -- > -->x<b>", {"C:x", "S:b"}},
        {"<!-- <a> -->", {}},
        {"<!---->x<b>", {"C:x", "S:b"}},
        {"<!-- a - > b -->x<b>", {"C:x", "S:b"}},
        // CDATA sections.
        {"<a><![CDATA[a]]]></a>", {"S:a", "C:a]", "E:a"}},
        {"<a><![CDATA[]]></a>", {"S:a", "E:a"}},
        {"<a>x<![CDATA[<b>&amp;]]>y</a>", {"S:a", "C:x", "C:<b>&amp;", "C:y", "E:a"}},
        {std::string("<a><![CDATA[x\0y]]></a>", 22), {"S:a", "C:xy", "E:a"}},
        {"<a>< ![CD-ATA[q]]></a>", {"S:a", "C:q", "E:a"}},
        {"<![cdata[x]]>", {"S:![cdata[x]]"}},
        {"<a><![CDATA[x]>]]]]>", {"S:a", "C:x]>]]"}},
        // Instructions and declarations.
        {"<?xml version=\"1.0\" encoding=\"UTF-8\"?><a>",
         {"P:?xml|version=1.0|encoding=UTF-8", "S:a"}},
        {"<?pi?>", {"P:?pi?"}},
        {"<!DOCTYPE a><b c=\"1\">", {"S:!DOCTYPE|a><b c=1"}},
        // Attribute slots are reused, never leaked into a later tag.
        {"<a b='1' c='2'><d e='3'><f>", {"S:a|b=1|c=2", "S:d|e=3", "S:f"}},
        {"<a b='1' c='2'>", {"S:a|b=1|c=2"}},
    };
    for (auto const& c : cases) {
        EXPECT_EQ(ParseWhole(c.input), c.events) << "input: " << c.input;
    }
}

TEST(SimpleXMLParserPL, EmptyInputLeavesTheStartState) {
    SimpleXMLParserPL parser;
    parser.Parse(nullptr, 0);
    parser.Parse(std::string());
    EXPECT_EQ(parser.GetState(), SimpleXMLParserPL::InContent);
}

// Documents made of the bytes that steer the machine, so that every state and every transition
// is reached, plus well-formed pieces in the shape the agent writes.
std::string RandomDocument(std::mt19937& random) {
    static char const alphabet[] = "<>/&;!-[]CDAT=\"' ?#x\n\tab1e9\0\xc3\xa9";
    static std::vector<std::string> const pieces = {
        "<a>",
        "</a>",
        "<b c=\"1\">",
        "<![CDATA[",
        "]]>",
        "<!--",
        "-->",
        "&amp;",
        "&#xe9;",
        "&lt;",
        "<?xml version=\"1.0\"?>",
        "<x/>",
        "<d e='&quot;' f=\"g\">",
        "text",
        "\n\t",
    };
    std::string document;
    int const length = std::uniform_int_distribution<int>(0, 80)(random);
    for (int i = 0; i < length; ++i) {
        if (random() % 3 == 0) {
            document += pieces[random() % pieces.size()];
        } else {
            document += alphabet[random() % (sizeof alphabet - 1)];
        }
    }
    return document;
}

TEST(SimpleXMLParserPL, PiecesGiveTheSameCallbacksAsTheWhole) {
    std::mt19937 random(20261121);
    for (int round = 0; round < 3000; ++round) {
        std::string const document = RandomDocument(random);
        std::vector<std::string> const whole = ParseWhole(document);
        std::size_t const maxPiece = (round % 3 == 0) ? 1 : (round % 3 == 1) ? 4 : 40;
        ASSERT_EQ(ParseInPieces(document, random, maxPiece), whole) << "document: " << document;
    }
}

}  // namespace
