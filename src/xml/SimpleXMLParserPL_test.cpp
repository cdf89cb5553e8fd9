#include "xml/SimpleXMLParserPL.h"

#include <gtest/gtest.h>

#include <random>
#include <sstream>
#include <string>
#include <vector>

namespace {

// Writes every callback as one line of text, so that two runs can be compared as a whole.
struct RecordingHandler : XMLHandler {
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

// Feeds the document whole, or without `random` in pieces of 0 to `maxPiece` bytes.
std::vector<std::string> Parse(std::string const& document, std::mt19937* random = nullptr,
                               std::size_t maxPiece = 0) {
    RecordingHandler handler;
    SimpleXMLParserPL parser(handler);
    if (!random) parser.Parse(document);
    for (std::size_t at = 0; random && at < document.size();) {
        std::size_t piece = std::uniform_int_distribution<std::size_t>(0, maxPiece)(*random);
        piece = std::min(piece, document.size() - at);
        parser.Parse(document.data() + at, static_cast<unsigned int>(piece));
        at += piece;
    }
    return handler.events;
}

TEST(SimpleXMLParserPL, DeliversWhatTheStateMachineDefines) {
    struct Case {
        std::string input;
        std::vector<std::string> events;
    } const cases[] = {
        // Nothing is rejected, and text after the last tag is never delivered.
        {"", {}},
        {"x<a>y</a>z", {"C:x", "S:a", "C:y", "E:a"}},
        {"<>< a></><a>x</b c>", {"S:", "S:a", "E:", "S:a", "C:x", "E:b c"}},
        // Attributes: both quote kinds, entities, whatever stands between "=" and the quote.
        {"<a b='1\"2' c=\"3'4\">", {"S:a|b=1\"2|c=3'4"}},
        {"<a b=\"x&amp;&lt;&#x41;&foo;\">", {"S:a|b=x&<A&foo;"}},
        {"<a b = c\"1\" d='<>\n'>", {"S:a|b =1|d=<>\n"}},
        {"<a\tb='1' c='2'\nd='3'>", {"S:a\tb='1'|c=2|\nd=3"}},
        {"<!DOCTYPE a><b c/><d e=\"1\">", {"S:!DOCTYPE|a><b c/><d e=1"}},
        // Attribute slots are reused, never leaked into a later tag.
        {"<a b='1' c='2'><d e='3'><f>", {"S:a|b=1|c=2", "S:d|e=3", "S:f"}},
        // Entity references: each one is a delivery of its own; a hex one gives one raw byte.
        {"<a>a&amp;b&lt;&gt;&quot;&apos;&foo;</a>",
         {"S:a", "C:a", "C:&", "C:b", "C:<", "C:>", "C:\"", "C:&apos;", "C:&foo;", "E:a"}},
        {"<a>&#xe9;&#x100;&#65;&#X41;</a>",
         {"S:a", "C:\xe9", "C:&#x100;", "C:&#65;", "C:&#X41;", "E:a"}},
        {"<a>&#x;&#x-1;&#x 41;&#x4g;</a>",
         {"S:a", std::string("C:\0", 3), "C:\xff", "C:A", "C:\x04", "E:a"}},
        {"<a>x&y<b>z</b>", {"S:a", "C:x"}},
        // A self-closed tag delivers only its end; a slash anywhere in a name makes an end tag.
        {"<a/><a/b>", {"E:a", "E:ab"}},
        // Dashes in names are dropped, and two of them open a comment.
        {"<a-b>x<c-d-e>y<f>-->z<g>", {"S:ab", "C:x", "C:z", "S:g"}},
        {"<!-- a -- > -->x<b>", {"C:x", "S:b"}},
        {"<!----><!-- <a> -> -->x<b>", {"C:x", "S:b"}},
        // CDATA sections.
        {"<a><![CDATA[a]]]></a>", {"S:a", "C:a]", "E:a"}},
        {"<a><![CDATA[]]></a>", {"S:a", "E:a"}},
        {"<a><![CDATA[x]>]]]]>", {"S:a", "C:x]>]]"}},
        {"<a>x<![CDATA[<b>&amp;]]>y</a>", {"S:a", "C:x", "C:<b>&amp;", "C:y", "E:a"}},
        {std::string("<a>< ![CD-ATA[x\0y]]></a>", 24), {"S:a", "C:xy", "E:a"}},
        {"<![cdata[x]]>", {"S:![cdata[x]]"}},
        // Instructions and declarations.
        {"<?xml version=\"1.0\" encoding=\"UTF-8\"?><a>",
         {"P:?xml|version=1.0|encoding=UTF-8", "S:a"}},
    };
    for (auto const& c : cases) EXPECT_EQ(Parse(c.input), c.events) << "input: " << c.input;
}

// Documents made of the bytes that steer the machine, so that every state and every transition
// is reached, plus well-formed pieces in the shape the agent writes.
std::string RandomDocument(std::mt19937& random) {
    static char const alphabet[] = "<>/&;!-[]CDAT=\"' ?#x\n\tab1e9\0\xc3\xa9";
    static std::vector<std::string> const pieces = [] {
        std::vector<std::string> list;
        std::istringstream in(
            "<a>|</a>|<b c=\"1\">|<![CDATA[|]]>|<!--|-->|&amp;|&#xe9;|&lt;|<?xml version=\"1.0\"?>|"
            "<x/>|<d e='&quot;' f=\"g\">|text|\n\t");
        for (std::string piece; std::getline(in, piece, '|');) list.push_back(piece);
        return list;
    }();
    std::string document;
    int const length = std::uniform_int_distribution<int>(0, 80)(random);
    for (int i = 0; i < length; ++i) {
        document += (random() % 3 == 0)
                        ? pieces[random() % pieces.size()]
                        : std::string(1, alphabet[random() % (sizeof alphabet - 1)]);
    }
    return document;
}

TEST(SimpleXMLParserPL, PiecesGiveTheSameCallbacksAsTheWhole) {
    std::mt19937 random(20261121);
    for (int round = 0; round < 3000; ++round) {
        std::string const document = RandomDocument(random);
        std::size_t const maxPiece = (round % 3 == 0) ? 1 : (round % 3 == 1) ? 4 : 40;
        ASSERT_EQ(Parse(document, &random, maxPiece), Parse(document)) << "document: " << document;
    }
}

}  // namespace
