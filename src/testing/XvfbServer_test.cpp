#include "testing/XvfbServer.h"

// GoogleTest comes before the X headers, whose macros (None, Bool) would break it.
#include <gtest/gtest.h>

#include <X11/Xlib.h>

#include <fstream>

#include "testing/TemporaryDirectory.h"

namespace {

// Returns how many fonts the server lists for the pattern, or -1 without a connection.
int CountFonts(std::string const& displayName, char const* pattern) {
    Display* connection = XOpenDisplay(displayName.c_str());
    if (!connection) return -1;
    int count = 0;
    char** names = XListFonts(connection, pattern, 1000, &count);
    if (names) XFreeFontNames(names);
    XCloseDisplay(connection);
    return count;
}

class XvfbServerTest : public TemporaryDirectory {};

}  // namespace

TEST_F(XvfbServerTest, TwoServersRunSideBySideAndAKilledOneIsGone) {
    XvfbServer first;
    XvfbServer second;
    ASSERT_NE(first.DisplayName(), second.DisplayName());
    EXPECT_GT(CountFonts(first.DisplayName(), "*"), 0);
    EXPECT_GT(CountFonts(second.DisplayName(), "*"), 0);

    first.Kill();
    EXPECT_EQ(first.Pid(), -1);
    EXPECT_EQ(CountFonts(first.DisplayName(), "*"), -1) << "the killed server still answers";
    EXPECT_GT(CountFonts(second.DisplayName(), "*"), 0);
}

// An empty font directory must leave the server without any font at all, including the
// built-in ones the server adds for its own default font.
TEST_F(XvfbServerTest, AnEmptyFontPathLeavesNoFont) {
    std::ofstream(Path("fonts.dir")) << "0\n";
    XvfbServer server(m_root);
    EXPECT_EQ(CountFonts(server.DisplayName(), "*"), 0);
    EXPECT_EQ(CountFonts(server.DisplayName(), "fixed"), 0);
}
