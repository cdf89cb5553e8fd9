#include "xml/XMLElement.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "xml/SAXParser.h"
#include "xml/SimpleXMLParse.h"
#include "xml/XMLExceptions.h"
#include "xml/XMLTreeParser.h"

namespace {

UStringRef<UTF8> U8(std::string const& s) {
    auto const* begin = reinterpret_cast<UTF8::Unit const*>(s.data());
    return UStringRef<UTF8>(begin, begin + s.size());
}

std::string Str(UStringRef<UTF8> s) {
    return std::string(reinterpret_cast<char const*>(s.begin), s.Length());
}

// name[attributes]{value}(children), so that a whole tree compares as one string.
std::string Dump(XMLElement const& e) {
    std::string s = Str(e.name);
    for (auto const& a : e.attributes) s += "[" + Str(a.first) + "=" + Str(a.second) + "]";
    s += "{" + Str(e.GetValue()) + "}";
    if (!e.children.empty()) {
        s += "(";
        for (auto const& child : e.children) s += Dump(child);
        s += ")";
    }
    return s;
}

std::string ParseAndDump(std::string const& text) {
    try {
        return Dump(*SimpleXML::Parse(U8(text)));
    } catch (FormatError const&) {
        return "FormatError";
    }
}

TEST(SimpleXMLParse, BuildsTheTreeTheCallbacksDescribe) {
    struct Case {
        std::string input;
        std::string tree;
    } const cases[] = {
        {"", "FormatError"},
        {"just text", "FormatError"},
        {"<!-- only a comment -->", "FormatError"},
        {"<?xml version=\"1.0\"?>", "FormatError"},
        {"<a/>", "FormatError"},
        {"<a/><b/>", "FormatError"},
        {"<a>", "a{}"},
        {"<a></a><b></b>", "b{}"},
        {"x<a>y</a>z", "a{y}"},
        {"<a>x<b></b>y</a>", "a{xy}(b{})"},
        {"<a>x<b>1</b><c>2</c>y</a>", "a{xy}(b{1}c{2})"},
        {"<a><b><c>deep</c></b></a>", "a{}(b{}(c{deep}))"},
        // A self-closed tag closes the element around it.
        {"<a><b/><c></c></a>", "c{}"},
        {"<a><b><c/>x<d></d></b></a>", "a{x}(b{}d{})"},
        // After the root's end, only a start tag changes anything.
        {"<a>x</a>y</z>", "a{x}"},
        {"<a>x</a>y<!-- c --><?pi?>", "a{x}"},
        {"<a>x</a><c>", "c{}"},
        {"<a b=\"1\" b=\"2\">", "a[b=2]{}"},
        {"<a zz='1' z='2' b='3'>", "a[b=3][z=2][zz=1]{}"},
        {"<a b=\"x&amp;y\">", "a[b=x&y]{}"},
        {"<a>a&amp;b<![CDATA[<c>]]>&#xe9;</a>", "a{a&b<c>\xe9}"},
        {"<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<r>\n\t<a>1</a>\n</r>", "r{\n\t\n}(a{1})"},
        // Mismatched end tags still close the innermost element.
        {"<a><b>1</c><d>2</d></a>", "a{}(b{1}d{2})"},
    };
    for (auto const& c : cases) EXPECT_EQ(ParseAndDump(c.input), c.tree) << c.input;
}

TEST(SAXParser, KeepsTheLastOfARepeatedAttributeAndDropsInstructions) {
    // The SAX layer hands over each start tag's map; only the last of a repeated name survives.
    struct Recorder : XMLReceiver {
        std::vector<std::string> starts;
        void StartElement(UStringRef<UTF8> name, AttributeMap const& attributes) override {
            std::string s = Str(name);
            for (auto const& a : attributes) s += " " + Str(a.first) + "=" + Str(a.second);
            starts.push_back(s);
        }
    } recorder;
    SimpleXML::SAXParser parser(recorder);
    parser.Parse(U8("<?xml version=\"1.0\"?><a b='1' c='x' b='2'><d e='3'>"));
    EXPECT_EQ(recorder.starts, (std::vector<std::string>{"a b=2 c=x", "d e=3"}));
}

TEST(SimpleXMLParse, ManyDistinctNamesKeepTheirOwnBytes) {
    // More names than the builder keeps at hand, each met twice far apart.
    std::string text = "<r>";
    std::string expected = "r{}(";
    for (int round = 0; round < 2; ++round) {
        for (int i = 0; i < 100; ++i) {
            std::string const name = "n" + std::to_string(i * 7 % 100);
            text += "<" + name + "></" + name + ">";
            expected += name + "{}";
        }
    }
    EXPECT_EQ(ParseAndDump(text + "</r>"), expected + ")");
}

XMLElement Sample() {
    return *SimpleXML::Parse(U8("<r k=\"v\" e=\"\"><a>1</a><b>2</b><a>3</a></r>"));
}

TEST(XMLElement, LooksUpChildrenAndAttributesByExactBytes) {
    XMLElement const r = Sample();
    EXPECT_EQ(Str(r.GetChildElement(U8("a")).GetValue()), "1");  // the first of two
    EXPECT_EQ(Str(r.GetChildElement(U8("b")).GetValue()), "2");
    EXPECT_THROW(r.GetChildElement(U8("A")), NoSuchChildElement);
    EXPECT_THROW(r.GetChildElement(U8("")), NoSuchChildElement);
    EXPECT_THROW(r.GetChildElement(U8("aa")), NoSuchChildElement);

    EXPECT_EQ(Str(r.GetAttribute("k")), "v");
    EXPECT_TRUE(r.HasAttribute("e"));
    EXPECT_TRUE(r.GetAttribute(U8("e")).Empty());
    EXPECT_FALSE(r.HasAttribute("K"));
    EXPECT_FALSE(r.HasAttribute(nullptr));
    EXPECT_THROW(r.GetAttribute("kk"), NoSuchAttribute);
    EXPECT_THROW(r.GetAttribute(nullptr), NoSuchAttribute);
}

TEST(XMLElement, NullNameFindsTheEmptyAttributeName) {
    XMLElement::AttributeMap attributes;
    attributes.insert_or_assign(SharedUString<UTF8>(), SharedUString<UTF8>(MakeUString(U8("v"))));
    XMLElement const e(nullptr, attributes);
    EXPECT_TRUE(e.name.Empty());
    EXPECT_TRUE(e.HasAttribute(nullptr));
    EXPECT_EQ(Str(e.GetAttribute(U8(""))), "v");
}

TEST(XMLElement, ValueIsNullWhenEmptyAndConcatenatesAppends) {
    XMLElement e("x", XMLElement::AttributeMap());
    EXPECT_EQ(e.GetValue().begin, nullptr);
    EXPECT_EQ(e.GetValue().end, nullptr);
    e.AppendCharacters(U8(""));
    EXPECT_EQ(e.GetValue().begin, nullptr);
    e.AppendCharacters(U8("ab"));
    e.AppendCharacters(U8(std::string("\0c", 2)));
    EXPECT_EQ(Str(e.GetValue()), std::string("ab\0c", 4));
}

TEST(XMLElement, CopiesAreDeep) {
    XMLElement original = Sample();
    XMLElement copy(original);
    XMLElement* added = copy.AddChildElement(XMLElement("n", XMLElement::AttributeMap()));
    EXPECT_EQ(added, &copy.children.back());
    added->AppendCharacters(U8("new"));
    copy.children[0].AppendCharacters(U8("more"));
    copy.attributes.clear();
    EXPECT_EQ(Dump(original), "r[e=][k=v]{}(a{1}b{2}a{3})");
    EXPECT_EQ(Dump(copy), "r{}(a{1more}b{2}a{3}n{new})");

    XMLElement assigned("z", XMLElement::AttributeMap());
    assigned = original;
    EXPECT_EQ(Dump(assigned), Dump(original));
}

}  // namespace
