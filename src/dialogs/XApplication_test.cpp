// The start-up of the X shell in a process of its own: what a locale that cannot carry the
// translations does to them. Each case runs InitXApp in a child process whose pipe to the agent
// is already dead, so the first tick ends it; what the start-up left is reported at exit.

// GoogleTest comes before the X headers, whose macros (None, Bool) would break it.
#include <gtest/gtest.h>

#include "dialogs/XApplication.h"

#include <unistd.h>

#include <cstdlib>
#include <string>

#include "localized/TranslationFiles.h"
#include "localized/UFormat.h"
#include "session/DialogCalls.h"
#include "session/SessionState.h"
#include "testing/TemporaryDirectory.h"
#include "testing/TestText.h"
#include "testing/XvfbServer.h"

namespace {

// Writes what the start-up left on standard error, for the parent to match.
void ReportStartUpState() {
    std::string const text = "international=" + std::to_string(international) +
                             " text=" + Str(UStringRef<UTF8>(MakeUString(UFormat("Take Action")))) +
                             "\n";
    ssize_t const written = write(2, text.data(), text.size());
    (void)written;
}

// In the child: a session set up with one translation, with the environment naming the given
// locale (the toolkit's language procedure takes it from there), and a pipe that has died;
// InitXApp then ends the process on its first tick.
void StartInLocale(char const* locale, FileLocation const& translation, std::string display) {
    setenv("LC_ALL", locale, 1);
    AddTranslationFile(translation);
    international = true;
    clientPipe = new UnixPipe(readQ, writeQ);
    clientPipe->Kill();
    std::atexit(ReportStartUpState);
    char program[] = "zolclientui";
    char option[] = "-display";
    char* argv[] = {program, option, &display[0], nullptr};
    InitXApp(3, argv);
    std::exit(4);
}

class XApplicationTest : public TemporaryDirectory {};

}  // namespace

TEST_F(XApplicationTest, APlainLocaleDropsTheTranslationsAndTheMultibyteMode) {
    WriteText(Path("de.xlat"), "Take Action\tAktion ausf\xc3\xbchren\n");
    XvfbServer server;
    struct Row {
        char const* locale;
        char const* left;
    } const rows[] = {
        {"C", "international=0 text=Take Action"},
        {"POSIX", "international=0 text=Take Action"},
        {"de_DE.utf8", "international=1 text=Aktion ausf\xc3\xbchren"},
    };
    for (Row const& row : rows) {
        SCOPED_TRACE(row.locale);
        EXPECT_EXIT(StartInLocale(row.locale, Location("de.xlat"), server.DisplayName()),
                    ::testing::ExitedWithCode(0), row.left);
    }
}
