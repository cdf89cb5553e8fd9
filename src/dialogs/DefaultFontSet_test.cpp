// GoogleTest comes before the X headers, whose macros (None, Bool) would break it.
#include <gtest/gtest.h>

#include "dialogs/DefaultFontSet.h"

#include <X11/Intrinsic.h>
#include <X11/Xresource.h>

#include <fstream>
#include <memory>
#include <string>
#include <vector>

#include "session/SessionState.h"
#include "testing/TemporaryDirectory.h"
#include "testing/ToolkitDisplay.h"
#include "testing/XvfbServer.h"

namespace {

// Fonts of Debian's xfonts-base, xfonts-75dpi and xfonts-100dpi, with the names their
// fonts.dir gives them. Heights of the largest logical extent of each font set, measured in
// the C locale: courier 13, helvetica 14, times 14, charter 20, clean 12.
struct FontFile {
    char const* file;
    char const* name;
};
FontFile const courier12{"/usr/share/fonts/X11/75dpi/courR12-ISO8859-1.pcf.gz",
                         "-adobe-courier-medium-r-normal--12-120-75-75-m-70-iso8859-1"};
FontFile const helvetica12{"/usr/share/fonts/X11/75dpi/helvR12-ISO8859-1.pcf.gz",
                           "-adobe-helvetica-medium-r-normal--12-120-75-75-p-67-iso8859-1"};
FontFile const times12{"/usr/share/fonts/X11/75dpi/timR12-ISO8859-1.pcf.gz",
                       "-adobe-times-medium-r-normal--12-120-75-75-p-64-iso8859-1"};
FontFile const charter12{"/usr/share/fonts/X11/100dpi/charR12.pcf.gz",
                         "-bitstream-charter-medium-r-normal--17-120-100-100-p-95-iso8859-1"};
FontFile const clean12{"/usr/share/fonts/X11/misc/clR6x12-ISO8859-1.pcf.gz",
                       "-schumacher-clean-medium-r-normal--12-120-75-75-c-60-iso8859-1"};
// Smaller than all of them, but not a 12-point font.
// Every candidate ends in a catch-all pattern, so on a server with any font at all each one
// makes a font set; which one wins is decided by the heights alone.
FontFile const courier8{"/usr/share/fonts/X11/75dpi/courR08-ISO8859-1.pcf.gz",
                        "-adobe-courier-medium-r-normal--8-80-75-75-m-50-iso8859-1"};

std::string const courierSet = "-adobe-courier-medium-r-normal--12-120-75-75-m-70-*,*";
std::string const helveticaSet = "-adobe-helvetica-medium-r-normal--12-120-75-75-p-67-*,*";
std::string const timesSet = "-adobe-times-medium-r-normal--12-120-75-75-p-64-*,*";
std::string const cleanSet = "-schumacher-clean-medium-r-normal--12-120-75-75-c-60-*,*";

// A server offering exactly the given fonts, and a toolkit display on it in `display`.
class DefaultFontSetTest : public TemporaryDirectory {
  protected:
    void StartServer(std::vector<FontFile> const& fonts) {
        std::ofstream index(Path("fonts.dir"));
        index << fonts.size() << "\n";
        for (size_t i = 0; i < fonts.size(); ++i) {
            std::string copy = "font" + std::to_string(i) + ".pcf.gz";
            std::ifstream from(fonts[i].file, std::ios::binary);
            ASSERT_TRUE(from) << "missing font file " << fonts[i].file;
            std::ofstream(Path(copy), std::ios::binary) << from.rdbuf();
            index << copy << " " << fonts[i].name << "\n";
        }
        index.close();
        m_server = std::make_unique<XvfbServer>(m_root);
        m_toolkit = std::make_unique<ToolkitDisplay>(m_server->DisplayName());
        display = m_toolkit->Connection();
    }

    void TearDown() override {
        if (m_original) {
            XrmSetDatabase(display, m_original);
            XrmDestroyDatabase(m_replacement);
        }
        display = nullptr;
        m_toolkit.reset();
        m_server.reset();
        TemporaryDirectory::TearDown();
    }

    XrmDatabase Database() const { return XtDatabase(display); }

    // Gives the display a database of its own holding only the one value under the specifier,
    // or nothing when the specifier is null. The toolkit's own database is put back at the end.
    void UseDatabase(char const* specifier, char const* type, std::string const& value) {
        XrmDatabase fresh = XrmGetStringDatabase("");
        if (specifier) {
            XrmValue entry;
            entry.addr = const_cast<char*>(value.c_str());
            entry.size = static_cast<unsigned>(value.size() + 1);
            XrmPutResource(&fresh, specifier, type, &entry);
        }
        if (!m_original) m_original = XrmGetDatabase(display);
        XrmSetDatabase(display, fresh);
        if (m_replacement) XrmDestroyDatabase(m_replacement);
        m_replacement = fresh;
    }

    unsigned HeightOf(std::string const& fontSet) {
        unsigned height = 0;
        EXPECT_TRUE(FontSetCreates(display, fontSet.c_str(), &height)) << fontSet;
        return height;
    }

    std::unique_ptr<XvfbServer> m_server;
    std::unique_ptr<ToolkitDisplay> m_toolkit;
    XrmDatabase m_original = nullptr;
    XrmDatabase m_replacement = nullptr;
};

}  // namespace

TEST_F(DefaultFontSetTest, TheSmallestCandidateWinsAndTheFirstOfEqualHeightsStays) {
    StartServer({courier12, helvetica12, times12, charter12});
    // The table below relies on these heights.
    ASSERT_LT(HeightOf(courierSet), HeightOf(helveticaSet));
    ASSERT_EQ(HeightOf(helveticaSet), HeightOf(timesSet));

    struct Case {
        char const* what;
        std::vector<char const*> names;
        std::string expected;
    };
    Case const cases[] = {
        {"a smaller one later wins",
         {charter12.name, helvetica12.name, courier12.name},
         courierSet},
        {"a larger one later does not", {courier12.name, helvetica12.name}, courierSet},
        {"the first of equals stays", {helvetica12.name, times12.name}, helveticaSet},
        {"whichever comes first", {times12.name, helvetica12.name}, timesSet},
        // Twelve dashes: cut at the end, it would make a working courier set and win.
        {"fewer than 13 dashes",
         {"-adobe-courier-medium-r-normal--12-120-75-75-m-70", helvetica12.name},
         helveticaSet},
        {"no dash at all", {"fixed"}, ""},
        {"no names", {}, ""},
    };
    for (Case const& c : cases) {
        SCOPED_TRACE(c.what);
        EXPECT_EQ(
            SmallestFontSetCandidate(display, c.names.data(), static_cast<int>(c.names.size())),
            c.expected);
    }
}

// The server lists alphabetically; the smallest 12-point font comes last, and an 8-point font,
// smaller still, is no candidate.
TEST_F(DefaultFontSetTest, OnlyTheServersTwelvePointFontsAreCandidates) {
    StartServer({charter12, courier12, courier8, clean12, helvetica12});
    ASSERT_LT(HeightOf(cleanSet), HeightOf(courierSet));
    EXPECT_EQ(SmallestListedFontSet(display), cleanSet);
}

TEST_F(DefaultFontSetTest, TheConfiguredValueIsReadOnlyAsAString) {
    StartServer({courier12});
    struct Case {
        char const* what;
        char const* specifier;  // null: nothing put
        char const* type;
        char const* expected;  // null: no usable value
    };
    Case const cases[] = {
        {"nothing configured", nullptr, nullptr, nullptr},
        {"another resource only", "xtDefaultFont", "String", nullptr},
        {"by class", "XtDefaultFontSet", "String", "by class"},
        {"by name", "xtDefaultFontSet", "String", "by name"},
        {"under a wildcard", "*XtDefaultFontSet", "String", "under a wildcard"},
        {"a value of another type", "XtDefaultFontSet", "FontSet", nullptr},
    };
    for (Case const& c : cases) {
        SCOPED_TRACE(c.what);
        UseDatabase(c.specifier, c.type, c.what);
        char const* found = DatabaseDefaultFontSet(display);
        if (c.expected)
            EXPECT_STREQ(found, c.expected);
        else
            EXPECT_EQ(found, nullptr) << found;
    }
}

// The server here offers a smaller set than the configured one, so a repair that listed fonts
// and wrote its choice would replace the value; each row must leave the database as it was.
TEST_F(DefaultFontSetTest, AWorkingConfigurationOrFallbackLeavesTheDatabaseAlone) {
    StartServer({courier12, helvetica12});
    ASSERT_EQ(SmallestListedFontSet(display), courierSet);
    struct Case {
        char const* what;
        char const* type;
        std::string value;
    };
    Case const cases[] = {
        {"a configured set that works", "String", helveticaSet},
        {"a configured set that fails, the fallback works", "String", "-nobody-*"},
        {"a value of another type, the fallback works", "FontSet", helveticaSet},
    };
    for (Case const& c : cases) {
        SCOPED_TRACE(c.what);
        UseDatabase("XtDefaultFontSet", c.type, c.value);

        ConfigValidDefaultFontSet();

        char* type = nullptr;
        XrmValue after;
        ASSERT_TRUE(
            XrmGetResource(Database(), "xtDefaultFontSet", "XtDefaultFontSet", &type, &after));
        EXPECT_STREQ(type, c.type);
        EXPECT_EQ(std::string(static_cast<char const*>(after.addr)), c.value);
    }
}

TEST_F(DefaultFontSetTest, WithoutAnyFontNothingIsWritten) {
    StartServer({});
    ConfigValidDefaultFontSet();
    EXPECT_EQ(DatabaseDefaultFontSet(display), nullptr);
    EXPECT_EQ(SmallestListedFontSet(display), "");
}
