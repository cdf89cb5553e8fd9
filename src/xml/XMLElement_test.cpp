#include "xml/XMLElement.h"

#include <gtest/gtest.h>

#include <string>

#include "testing/XMLDump.h"
#include "xml/SimpleXMLParse.h"
#include "xml/XMLErrors.h"

namespace {

// name[attribute]{value}(child), so that a whole tree compares as one string.
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
        // No element at all; a self-closed tag alone arrives only as an end.
        {"", "FormatError"},
        {"<a/>", "FormatError"},
        {"text<!-- <a> --><?xml version=\"1.0\"?>", "FormatError"},
        // Elements left open are kept; of several top-level elements only the last survives.
        {"<a>", "a{}"},
        {"<a></a><b></b>", "b{}"},
        {"x<a>y</a>z", "a{y}"},
        // After the root's end, only a start tag changes anything.
        {"<a>x</a>y</z><!-- c --><?pi?>", "a{x}"},
        // A self-closed tag closes the element around it.
        {"<a><b/><c></c></a>", "c{}"},
        // Text around children runs together; every delivery is kept.
        {"<a>x<b>1</b><c>2</c>y</a>", "a{xy}(b{1})(c{2})"},
        {"<a>a&amp;b<![CDATA[<c>]]>&#xe9;</a>", "a{a&b<c>\xe9}"},
        {"<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<r>\n\t<a>1</a>\n</r>", "r{\n\t\n}(a{1})"},
        // Mismatched end tags still close the innermost element.
        {"<a><b>1</c><d>2</d></a>", "a{}(b{1})(d{2})"},
        // The last of a repeated attribute wins; attributes are ordered bytewise, prefix first.
        {"<a zz='1' z='2' b='3' z='4'>", "a[b=3][z=4][zz=1]{}"},
    };
    for (auto const& c : cases) EXPECT_EQ(ParseAndDump(c.input), c.tree) << c.input;
}

TEST(SimpleXMLParse, ManyDistinctNamesKeepTheirOwnBytes) {
    // More names than the builder keeps at hand, each met twice far apart.
    std::string text = "<r>", expected = "r{}";
    for (int i = 0; i < 200; ++i) {
        std::string const name = "n" + std::to_string(i * 7 % 100);
        text += "<" + name + "></" + name + ">";
        expected += "(" + name + "{})";
    }
    EXPECT_EQ(ParseAndDump(text), expected);
}

TEST(XMLElement, LooksUpChildrenAndAttributesByExactBytes) {
    XMLElement const r = *SimpleXML::Parse(U8("<r k=\"v\" e=\"\"><a>1</a><b>2</b><a>3</a></r>"));
    EXPECT_EQ(Str(r.GetChildElement(U8("a")).GetValue()), "1");  // the first of two
    EXPECT_THROW(r.GetChildElement(U8("A")), NoSuchChildElement);
    EXPECT_THROW(r.GetChildElement(U8("aa")), NoSuchChildElement);

    EXPECT_EQ(Str(r.GetAttribute("k")), "v");
    EXPECT_TRUE(r.HasAttribute("e"));
    EXPECT_FALSE(r.HasAttribute(nullptr));
    EXPECT_THROW(r.GetAttribute("kk"), NoSuchAttribute);
    EXPECT_THROW(r.GetAttribute(nullptr), NoSuchAttribute);

    // Copies are deep: changing one leaves the other as it was.
    XMLElement copy(r);
    copy.children[0].AppendCharacters(U8("more"));
    copy.attributes.clear();
    EXPECT_EQ(Dump(r), "r[e=][k=v]{}(a{1})(b{2})(a{3})");
    EXPECT_EQ(Dump(copy), "r{}(a{1more})(b{2})(a{3})");
    XMLElement assigned("z", XMLElement::AttributeMap());
    assigned = copy;
    EXPECT_EQ(Dump(assigned), Dump(copy));
}

TEST(XMLElement, ValueIsNullWhenEmptyAndConcatenatesAppends) {
    XMLElement e("x", XMLElement::AttributeMap());
    e.AppendCharacters(U8(""));
    EXPECT_EQ(e.GetValue().begin, nullptr);
    e.AppendCharacters(U8("ab"));
    e.AppendCharacters(U8(std::string("\0c", 2)));
    EXPECT_EQ(Str(e.GetValue()), std::string("ab\0c", 4));
}

}  // namespace

// A frame of the largest size holding nothing but start tags: the tree is a chain of some
// 700000 elements, and freeing it must not take one stack frame per level.
TEST(XMLElement, AChainAsDeepAsTheLargestFrameIsFreedWithoutRecursion) {
    std::string text;
    while (text.size() + 3 <= 2097152) text += "<a>";
    std::unique_ptr<XMLElement> root = SimpleXML::Parse(U8(text));
    std::size_t depth = 0;
    for (XMLElement const* e = root.get(); !e->children.empty(); e = &e->children[0]) ++depth;
    EXPECT_EQ(depth, text.size() / 3 - 1);
    root.reset();
}
