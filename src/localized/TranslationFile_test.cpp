// Translation files added to the process-wide context. They can't be taken out again, so these
// tests have a program of their own, and each test uses keys that no other test uses.

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <string>

#include "files/FileErrors.h"
#include "localized/ActionSummary.h"
#include "localized/DeadlineText.h"
#include "localized/FormatOverrides.h"
#include "localized/LocalizedErrors.h"
#include "localized/LocalizedStrings.h"
#include "localized/TranslationFiles.h"
#include "localized/UFormat.h"
#include "testing/ScopedSettings.h"
#include "testing/TemporaryDirectory.h"
#include "testing/TestText.h"
#include "text/unicode/LocaleConversion.h"

namespace {

std::string Render(char const* key) {
    return Str(UStringRef<UTF8>(MakeUString(UFormat(key))));
}

class TranslationFile : public TemporaryDirectory {
  protected:
    // Writes the text to a file of the temporary directory and adds it.
    void AddFile(std::string const& name, std::string const& text) {
        WriteText(Path(name), text);
        AddTranslationFile(Location(name));
    }
};

}  // namespace

TEST_F(TranslationFile, TheFileAddedLastIsAskedFirst) {
    std::size_t const filesBefore = m_formatFiles.size();
    AddFile("brand.xlat", "stack x\tbrand x\nstack y\tbrand y\n");
    AddFile("general.xlat", "stack x\tgeneral x\r\nstack z\t\r\n");
    EXPECT_EQ(Render("stack x"), "general x");
    EXPECT_EQ(Render("stack y"), "brand y");
    EXPECT_EQ(Render("stack z"), "");
    EXPECT_EQ(Render("stack w"), "stack w");
    EXPECT_EQ(m_formatFiles.size(), filesBefore + 2);
    EXPECT_EQ(m_formatOverrides.size(), m_formatFiles.size());
}

TEST_F(TranslationFile, AFileThatFailsToLoadChangesNothing) {
    std::size_t const filesBefore = m_formatFiles.size();
    EXPECT_THROW(AddTranslationFile(Location("missing.xlat")), FileIOError);
    // A sparse file one byte longer than 32 bits can count is refused before it is read.
    int const fd = ::open(Path("huge.xlat").c_str(), O_CREAT | O_WRONLY, 0600);
    ASSERT_GE(fd, 0);
    ASSERT_EQ(0, ::ftruncate(fd, 0x100000000LL));
    ::close(fd);
    EXPECT_THROW(AddTranslationFile(Location("huge.xlat")), RequiredValueWouldOverflow);
    EXPECT_EQ(m_formatFiles.size(), filesBefore);
    EXPECT_EQ(m_formatOverrides.size(), filesBefore);
    // An empty file is a translation without entries.
    AddFile("empty.xlat", "");
    EXPECT_EQ(m_formatFiles.size(), filesBefore + 1);
    EXPECT_FALSE(GlobalFormatOverrideContext().HasOverride(U8("")));
}

TEST_F(TranslationFile, FormatFileKeepsTheBytesItParsed) {
    std::string const text = "k\tv\nbad line\n";
    WriteText(Path("one.xlat"), text);
    FormatFile const file(Location("one.xlat"));
    EXPECT_EQ(Str(file.FileContents()), text);
    EXPECT_FALSE(file.FileContents().nullTerminated);
    ASSERT_EQ(file.Overrides().Entries().size(), 1u);
    EXPECT_EQ(file.Overrides().Entries()[0].second.begin, file.FileContents().begin + 2);
}

// The texts of the whole-session test (session/TranslationSession_test.cpp) in the two
// encodings, and what only one of them can hold.
TEST_F(TranslationFile, TranslatedTextComesOutInTheLocalesEncoding) {
    AddFile("fr.xlat",
            "Locale test: {count} pending\t{count} actions en attente, d\xC3\xA9j\xC3\xA0\n"
            "Locale test: close\tSchlie\xC3\x9F"
            "en\n"
            "Locale test: ligature\t\xC5\x92uvre\n");
    auto local = [](char const* key) { return std::string(MakeLocalString(UFormat(key)).pointer); };
    {
        ScopedCTypeLocale french("fr_CA.UTF-8");
        ASSERT_TRUE(french.Ok()) << "fr_CA.UTF-8 is missing: run scripts/setup";
        EXPECT_EQ(local("Locale test: ligature"), "\xC5\x92uvre");
    }
    ScopedCTypeLocale latin1("de_DE.ISO-8859-1");
    ASSERT_TRUE(latin1.Ok()) << "de_DE.ISO-8859-1 is missing: run scripts/setup";
    EXPECT_EQ(std::string(MakeLocalString(UFormat("Locale test: {count} pending")
                                              .With(EncodingCast<UStringRef<UTF8> >("12")))
                              .pointer),
              "12 actions en attente, d\xE9j\xE0");
    EXPECT_EQ(local("Locale test: close"),
              "Schlie\xDF"
              "en");
    // Latin-1 has no OE ligature: the conversion fails rather than substitute.
    EXPECT_THROW(local("Locale test: ligature"), UnixPlatform::WideToMultiByteConvertError);
}

TEST_F(TranslationFile, CatalogueTextsAreLookedUpByTheirDefaultText) {
    AddFile("catalogue.xlat",
            "You have {number} pending actions.\tVous avez {number} actions en attente.\n"
            "&Paste{_tab}Ctrl-V\t&Coller{_tab}Ctrl-V\n"
            "Your administrator has disabled this feature between {start} and {end}.\t"
            "From {end} back to {start}.\n"
            "You Have {number} New Offers\t{number} offres\n"
            "Quorvane Helmstead version {version}\tVersion {version}\n"
            "Cancel\t{oops}\n");
    using namespace LocalizedStrings;
    auto text = [](AutoNullTerminated<char> const& local) { return std::string(local.pointer); };
    // Singular, plural and none are three keys; only the plural is translated here.
    EXPECT_EQ(text(TrayTip(2)), "Vous avez 2 actions en attente.");
    EXPECT_EQ(text(TrayTip(1)), "You have 1 pending action.");
    EXPECT_EQ(text(TrayTip(0)), "Click to open Quorvane Helmstead");
    EXPECT_EQ(Str(UStringRef<UTF8>(AnnounceOffers(0))), "0 offres");
    EXPECT_EQ(text(MenuPaste()), "&Coller\tCtrl-V");
    EXPECT_EQ(text(AboutVersion()), std::string("Version ") + ZOL_VERSION);
    {
        ScopedTimeZone utc("UTC0");
        Instant const noon(Instant((86400LL + 12 * 3600) * 1000000));
        EXPECT_EQ(text(QuietModeExplanation(noon, noon + TimeInterval(3600000000LL))),
                  "From 13:00:00 back to 12:00:00.");
    }
    // A bad override fails its own text when that is made, and no other.
    EXPECT_THROW(Cancel(), UndefinedFormatVariable);
    EXPECT_EQ(text(OK()), "OK");
}

TEST_F(TranslationFile, SummariesAndDeadlinesTakeTheirTranslations) {
    // Added before the first summary of the process: its table is made then, with overrides.
    AddFile("summary.xlat",
            "This action will require a system restart.\tRed\xC3\xA9marrage requis.\n"
            "You must take this action within {DeadlineText}.\tD\xC3\xA9lai : {DeadlineText}.\n"
            "{hours} hours\t{hours} heures\n");
    struct Action {
        bool m_restart, m_shutdown, m_forceRun, m_requestSave;
        NullOr<Instant> deadline;
        NullOr<Instant> Deadline() const { return deadline; }
    };
    Action restart{true, false, false, false, NullOr<Instant>()};
    EXPECT_EQ(Str(UStringRef<UTF8>(ActionSummary(restart))), "Red\xC3\xA9marrage requis.");
    Action timed{false, false, false, false, Instant::Now() + TimeInterval(3 * 3600000000LL)};
    EXPECT_EQ(Str(UStringRef<UTF8>(ActionSummary(timed))), "D\xC3\xA9lai : 3 heures.");
    EXPECT_EQ(Str(UStringRef<UTF8>(FormattedDeadline(TimeInterval(7200000000LL), false, false))),
              "2 heures");
}
