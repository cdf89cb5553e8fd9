#include "localized/UFormat.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "localized/FormatOverrides.h"
#include "localized/LocalizedErrors.h"
#include "testing/TestText.h"

namespace {

// Returns the text rendered with the arguments bound in order (four at most).
template <unsigned N>
AutoUString<UTF8> Bound(FormatPlusArguments<N> const& text,
                        std::vector<std::string> const& arguments) {
    if constexpr (N < 4) {
        if (arguments.size() > N) return Bound(text.With(U8(arguments[N])), arguments);
    }
    return MakeUString(text);
}

// Returns the text rendered from key, the override's text (none when null) and the arguments,
// or "!" and the name of the format failure that was raised.
std::string Outcome(std::string const& key, char const* overrideText,
                    std::vector<std::string> const& arguments) {
    std::string const table = overrideText ? key + "\t" + overrideText : std::string();
    FormatOverrideSet const set(U8(table));
    FormatOverrideContext context;
    FormatOverrideScope const scope(set, context);
    try {
        return Str(UStringRef<UTF8>(Bound(UFormat(U8(key), U8(key), context), arguments)));
    } catch (BadFormatStringError const&) {
        return "!BadFormatStringError";
    } catch (ImproperFormatVariableName const&) {
        return "!ImproperFormatVariableName";
    } catch (UndefinedFormatVariable const&) {
        return "!UndefinedFormatVariable";
    } catch (TooManyFormatArguments const&) {
        return "!TooManyFormatArguments";
    } catch (TooFewFormatArguments const&) {
        return "!TooFewFormatArguments";
    }
}

// Returns the segments of the format as "L:literal" and "V:name", separated by "|".
std::string Segments(std::string const& format) {
    std::string out;
    UFormatIterator const end = UFormatIterator::End(U8(format));
    for (UFormatIterator segment(U8(format)); segment != end; ++segment) {
        if (!out.empty()) out += "|";
        out += (segment->isVariable ? "V:" : "L:") + Str(segment->text);
    }
    return out;
}

}  // namespace

TEST(UFormat, SyntaxBindingAndRendering) {
    struct Row {
        char const* key;
        char const* overrideText;  // null: no override
        std::vector<std::string> arguments;
        char const* expected;
    };
    Row const rows[] = {
        // Literal text and the reserved names.
        {"plain text", nullptr, {}, "plain text"},
        {"a}b", nullptr, {}, "a}b"},
        {"{_obrace}x{_cbrace}", nullptr, {}, "{x}"},
        {"{_tab}", nullptr, {}, "\t"},
        {"{_cr}{_lf}|{_crlf}", nullptr, {}, "\r\n|\r\n"},
        {"&Paste{_tab}Ctrl-V", nullptr, {}, "&Paste\tCtrl-V"},
        {"100% & \\n", nullptr, {}, "100% & \\n"},
        {"caf\xC3\xA9 {a}", nullptr, {"\xE2\x82\xAC"}, "caf\xC3\xA9 \xE2\x82\xAC"},
        // Arguments bind in order to the key's variables, by name.
        {"{a} and {b}", nullptr, {"1", "2"}, "1 and 2"},
        {"{b} and {a}", nullptr, {"1", "2"}, "1 and 2"},
        {"{a}", nullptr, {"{a}"}, "{a}"},
        {"{a} {a}", nullptr, {"2", "1"}, "1 1"},
        {"{a}{_tab}{b}", nullptr, {"x", "y"}, "x\ty"},
        // Only a leading underscore marks a reserved name.
        {"{1a} {-a} {ab} {a_}", nullptr, {"p", "q", "r", "s"}, "p q r s"},
        {"{{a}", nullptr, {"v"}, "v"},
        // Failures of the key, at binding.
        {"{x", nullptr, {}, "!BadFormatStringError"},
        {"ok {a} {", nullptr, {"1"}, "!BadFormatStringError"},
        {"{}", nullptr, {}, "!ImproperFormatVariableName"},
        {"{a b}", nullptr, {"1"}, "!ImproperFormatVariableName"},
        {"{a{b}c}", nullptr, {"1"}, "!ImproperFormatVariableName"},
        {"{a\xC3\xA9}", nullptr, {"1"}, "!ImproperFormatVariableName"},
        {"{_x}", nullptr, {}, "!UndefinedFormatVariable"},
        {"{_}", nullptr, {}, "!UndefinedFormatVariable"},
        {"{a}", nullptr, {}, "!TooManyFormatArguments"},
        {"{a} {b}", nullptr, {"1"}, "!TooManyFormatArguments"},
        {"plain", nullptr, {"1"}, "!TooFewFormatArguments"},
        {"{a}", nullptr, {"1", "2"}, "!TooFewFormatArguments"},
        // An override reorders, repeats, drops and adds reserved names, but nothing else.
        {"{a} {b}", "{b} {a}", {"1", "2"}, "2 1"},
        {"{a}", "{a}{a}{_lf}", {"v"}, "vv\n"},
        {"{a} {b}", "only {b}", {"1", "2"}, "only 2"},
        {"Cancel", "Annuler", {}, "Annuler"},
        {"a", "", {}, ""},
        {"{a}", "{a} {c}", {"1"}, "!UndefinedFormatVariable"},
        {"{a}", "{A}", {"1"}, "!UndefinedFormatVariable"},
        {"{a}", "{_nope}", {"1"}, "!UndefinedFormatVariable"},
        {"{a}", "{a b}", {"1"}, "!UndefinedFormatVariable"},
        {"{a}", "{}", {"1"}, "!ImproperFormatVariableName"},
        {"{a}", "{a", {"1"}, "!BadFormatStringError"},
        // The key is checked even where the override doesn't use it.
        {"{a b}", "fine", {"1"}, "!ImproperFormatVariableName"},
        {"{a}", "fine", {}, "!TooManyFormatArguments"},
    };
    for (Row const& row : rows) {
        SCOPED_TRACE(std::string("key \"") + row.key + "\"" +
                     (row.overrideText ? std::string(" override \"") + row.overrideText + "\""
                                       : std::string()));
        EXPECT_EQ(Outcome(row.key, row.overrideText, row.arguments), row.expected);
    }
}

TEST(UFormat, SegmentsSplitAtBracesWithoutEscapeOrNesting) {
    struct Row {
        char const* format;
        char const* segments;
    };
    Row const rows[] = {
        {"", ""},
        {"abc", "L:abc"},
        {"{a}", "V:a"},
        {"x{a}y{b}", "L:x|V:a|L:y|V:b"},
        {"{a{b}c}", "V:a{b|L:c}"},
        {"{{a}}", "V:{a|L:}"},
        {"}{a}", "L:}|V:a"},
        {"{}{}", "V:|V:"},
    };
    for (Row const& row : rows) {
        SCOPED_TRACE(row.format);
        EXPECT_EQ(Segments(row.format), row.segments);
    }
    EXPECT_THROW(Segments("abc{"), BadFormatStringError);
    EXPECT_THROW(Segments("{a}{b"), BadFormatStringError);
}

TEST(UFormat, EmptyResultsAreTheNullString) {
    AutoUString<UTF8> const empty = MakeUString(UFormat(static_cast<char const*>(nullptr)));
    EXPECT_EQ(empty.begin, nullptr);
    AutoUString<UTF8> const emptyArgument =
        MakeUString(UFormat(U8("{a}"), U8("{a}")).With(UStringRef<UTF8>()));
    EXPECT_EQ(emptyArgument.begin, nullptr);
    AutoUString<UTF8> const text = MakeUString(UFormat("x"));
    ASSERT_NE(text.begin, nullptr);
    EXPECT_EQ(*text.end, 0);
}

TEST(UFormat, TheConstructorFormAppendsLikeWith) {
    std::string const key = "{a}-{b}", one = "1", two = "2";
    FormatPlusArguments<0u> const base = UFormat(U8(key), U8(key));
    FormatPlusArguments<2u> const built(FormatPlusArguments<1u>(base, U8(one)), U8(two));
    EXPECT_EQ(Str(UStringRef<UTF8>(MakeUString(built))), "1-2");
    EXPECT_EQ(Str(UStringRef<UTF8>(MakeUString(base.With(U8(one)).With(U8(two))))), "1-2");
}

TEST(UFormat, LongFormatsRenderWhole) {
    // More segments than a rendering keeps on its stack.
    std::string key, expected;
    for (int i = 0; i < 40; ++i) {
        key += "x{_tab}";
        expected += "x\t";
    }
    key += "{a}.";
    expected += "value.";
    EXPECT_EQ(Outcome(key, nullptr, {"value"}), expected);
    EXPECT_EQ(Outcome("{a}", key.c_str(), {"value"}), expected);
}
