// Texts from the agent as the widgets show them, in the real locales of the tests: replacement
// characters for what cannot be shown, and cuts that never split a character.

#include "dialogs/ShownText.h"

#include <gtest/gtest.h>

#include <string>

#include "testing/ScopedSettings.h"
#include "testing/TestText.h"

namespace {

std::string const replacementInUTF8 = "\xEF\xBF\xBD";
std::string const ellipsisInUTF8 = "\xE2\x80\xA6";

struct Row {
    char const* locale;
    std::string text;
    std::size_t limit;  // 0: the whole text
    std::string expected;
};

}  // namespace

TEST(ShownText, ReplacesWhatCannotBeShownAndCutsWholeCharacters) {
    std::string const omega = "\xCE\xA9";
    std::string const eAcute = "\xC3\xA9";
    Row const rows[] = {
        // What Latin-1 has is converted; everything else is "?", as Latin-1 has no U+FFFD.
        {"de_DE.ISO-8859-1",
         "Gr\xC3\xB6\xC3\x9F"
         "e",
         0,
         "Gr\xF6\xDF"
         "e"},
        {"de_DE.ISO-8859-1", omega + " and " + "\xF0\x9F\x98\x80", 0, "? and ?"},
        {"de_DE.ISO-8859-1", std::string("a\0b", 3), 0, "a?b"},
        // Each longest ill-formed start is one replacement; the byte that broke it starts anew.
        {"de_DE.ISO-8859-1",
         "a\xFF"
         "b",
         0, "a?b"},
        {"de_DE.ISO-8859-1", "\xC0\xAF", 0, "??"},
        {"de_DE.ISO-8859-1",
         "\xE2\x82"
         "x",
         0, "?x"},
        {"de_DE.ISO-8859-1", "\xE2\x82", 0, "?"},
        {"de_DE.ISO-8859-1", "\xED\xA0\x80", 0, "???"},
        {"de_DE.ISO-8859-1", "\xF4\x90\x80\x80", 0, "????"},
        {"de_DE.ISO-8859-1", "\xF0\x9F\x98", 0, "?"},
        {"de_DE.ISO-8859-1", "", 0, ""},
        {"de_DE.UTF-8", omega + "\xFF" + "\xE2\x82" + "x", 0,
         omega + replacementInUTF8 + replacementInUTF8 + "x"},
        {"C", eAcute + "t" + eAcute, 0, "?t?"},
        // Cuts: at most the limit, the ellipsis included, and never half a character.
        {"de_DE.UTF-8", "abcd", 4, "abcd"},
        {"de_DE.UTF-8", "abcde", 4, "abc" + ellipsisInUTF8},
        {"de_DE.UTF-8", eAcute + eAcute + eAcute + eAcute, 3, eAcute + eAcute + ellipsisInUTF8},
        {"de_DE.UTF-8", "\xFF\xFF\xFF\xFF", 3,
         replacementInUTF8 + replacementInUTF8 + ellipsisInUTF8},
        {"de_DE.ISO-8859-1", "abcde", 4, "a..."},
        {"de_DE.ISO-8859-1", eAcute + eAcute + eAcute + eAcute, 4, "\xE9\xE9\xE9\xE9"},
        {"C", "abcdef", 5, "ab..."},
    };
    for (Row const& row : rows) {
        SCOPED_TRACE(std::string(row.locale) + ": " + row.text);
        ScopedCTypeLocale const locale(row.locale);
        ASSERT_TRUE(locale.Ok()) << "scripts/setup makes this locale";
        std::string const shown =
            row.limit == 0 ? ShownText(U8(row.text)) : ShortShownText(U8(row.text), row.limit);
        EXPECT_EQ(shown, row.expected);
    }
}
