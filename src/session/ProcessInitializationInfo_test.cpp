// The set-up of a session from the first document, on real files in a fresh directory.

#include "session/ProcessInitializationInfo.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <string>

#include "files/FileErrors.h"
#include "files/FileLocationFunctions.h"
#include "localized/UFormat.h"
#include "session/InitializationInfo.h"
#include "session/SessionErrors.h"
#include "session/SessionState.h"
#include "testing/ScopedSettings.h"
#include "testing/TemporaryDirectory.h"
#include "testing/TestText.h"

namespace {

FileTransfer File(char const* name, std::string const& bytes, char const* subFolder = "") {
    return FileTransfer(bytes, FileName(name), *subFolder ? FileName(subFolder) : FileName());
}

// One support file of a row: its name, its sub-folder, and what it would answer if added.
struct Offered {
    char const* name;
    char const* subFolder;
    enum { brand, general } kind;
};
auto const brand = Offered::brand;
auto const general = Offered::general;

std::string Rendered(std::string const& key) {
    return Str(UStringRef<UTF8>(MakeUString(UFormat(key.c_str()))));
}

class ProcessInitializationInfoTest : public TemporaryDirectory {
  protected:
    void SetUp() override {
        TemporaryDirectory::SetUp();
        initialized = false;
        m_postponedTo = Instant();
        m_remindInterval = TimeInterval();
        m_snoozable = true;
        m_oldMask = ::umask(022);
    }
    void TearDown() override {
        ::umask(m_oldMask);
        TemporaryDirectory::TearDown();
    }

    InitializationInfo Info(std::string const& relative) {
        InitializationInfo info;
        info.m_baseDirectory = Location(relative);
        return info;
    }

    static unsigned Mode(std::string const& path) {
        struct stat record;
        EXPECT_EQ(0, ::lstat(path.c_str(), &record)) << path;
        return record.st_mode & 07777;
    }

    // Sets a session up with LANG set (LC_ALL and LC_CTYPE unset) and the files offered, and
    // checks which brand and general file count ("" for none) and whether the session is
    // international. Every file answers "<row> which" with its own name; brand files also
    // answer "<row> brand", general ones "<row> general". The context is process-wide and
    // keeps what was added before, so each row has keys of its own.
    void Row(char const* what, char const* lang, bool useLocale, std::vector<Offered> const& files,
             char const* brandTaken, char const* generalTaken, bool isInternational) {
        SCOPED_TRACE(what);
        std::string const key = "row " + std::to_string(++m_row);
        ScopedCTypeLocale const restoreLocale("C");
        ScopedEnvironment const all("LC_ALL", nullptr), ctype("LC_CTYPE", nullptr),
            language("LANG", lang);
        initialized = false;
        international = false;
        InitializationInfo info = Info("session" + std::to_string(m_row));
        info.m_settings.m_useLocale = useLocale;
        for (Offered const& file : files) {
            std::string const text = key + " which\t" + file.name + "\n" + key +
                                     (file.kind == brand ? " brand\t" : " general\t") + file.name +
                                     "\n";
            info.m_supportFiles.push_back(File(file.name, text, file.subFolder));
        }
        ProcessInitializationInfo(info);
        EXPECT_TRUE(initialized);
        EXPECT_EQ(international, isInternational);
        for (Offered const& file : files)
            EXPECT_TRUE(Exists(Path("session" + std::to_string(m_row) + "/" + file.name)));

        EXPECT_EQ(Rendered(key + " brand"), *brandTaken ? brandTaken : key + " brand");
        EXPECT_EQ(Rendered(key + " general"), *generalTaken ? generalTaken : key + " general");
        std::string const asked = *generalTaken ? generalTaken
                                  : *brandTaken ? brandTaken
                                                : key + " which";
        EXPECT_EQ(Rendered(key + " which"), asked) << "the general file is asked first";
    }

    mode_t m_oldMask = 0;
    int m_row = 0;
};

}  // namespace

TEST_F(ProcessInitializationInfoTest, AMissingDirectoryIsMadeWithItsParentsForTheOwnerOnly) {
    InitializationInfo info = Info("a/b/session");
    info.m_supportFiles.push_back(File("_brand.xlat", "hello\n"));
    info.m_supportFiles.push_back(File("page.html", std::string("\0\xff", 2), "sub"));
    ProcessInitializationInfo(info);
    EXPECT_TRUE(initialized);
    EXPECT_EQ(m_baseDirectory.LogString(), Path("a/b/session"));
    for (char const* directory : {"a", "a/b", "a/b/session"})
        EXPECT_EQ(Mode(Path(directory)), 0700u) << directory;
    EXPECT_EQ(ReadText(Path("a/b/session/_brand.xlat")), "hello\n");
    EXPECT_EQ(ReadText(Path("a/b/session/page.html")), std::string("\0\xff", 2))
        << "a sub-folder plays no part in where a file lands";
    EXPECT_EQ(Mode(Path("a/b/session/_brand.xlat")), 0600u);
    EXPECT_EQ(Mode(Path("a/b/session/page.html")), 0600u);
}

TEST_F(ProcessInitializationInfoTest, AnExistingDirectoryIsEmptiedButKeptWithItsOwnMode) {
    MakeDirectory(Path("session"));
    ASSERT_EQ(0, ::chmod(Path("session").c_str(), 0755));
    MakeDirectory(Path("session/old"));
    WriteText(Path("session/old/deep"), "x");
    WriteText(Path("session/stale.xlat"), "x");
    MakeDirectory(Path("elsewhere"));
    WriteText(Path("elsewhere/precious"), "keep");
    ASSERT_EQ(0, ::symlink(Path("elsewhere").c_str(), Path("session/link").c_str()));
    struct stat before;
    ASSERT_EQ(0, ::stat(Path("session").c_str(), &before));

    InitializationInfo info = Info("session");
    info.m_supportFiles.push_back(File("new.xlat", "1"));
    info.m_supportFiles.push_back(File("new.xlat", "second wins"));
    ProcessInitializationInfo(info);

    struct stat after;
    ASSERT_EQ(0, ::stat(Path("session").c_str(), &after));
    EXPECT_EQ(before.st_ino, after.st_ino) << "the directory itself was replaced";
    EXPECT_EQ(Mode(Path("session")), 0755u) << "the mode of a directory found was changed";
    EXPECT_FALSE(Exists(Path("session/old")));
    EXPECT_FALSE(Exists(Path("session/stale.xlat")));
    EXPECT_FALSE(Exists(Path("session/link")));
    EXPECT_EQ(ReadText(Path("elsewhere/precious")), "keep") << "emptied through a link inside";
    EXPECT_EQ(ReadText(Path("session/new.xlat")), "second wins");
}

TEST_F(ProcessInitializationInfoTest, ADirectoryThatIsALinkIsRefusedAndLeftAlone) {
    MakeDirectory(Path("target"));
    WriteText(Path("target/precious"), "keep");
    ASSERT_EQ(0, ::symlink(Path("target").c_str(), Path("session").c_str()));
    ASSERT_EQ(0, ::symlink(Path("nowhere").c_str(), Path("dangling").c_str()));
    for (char const* base : {"session", "dangling"}) {
        InitializationInfo info = Info(base);
        info.m_supportFiles.push_back(File("f", "x"));
        EXPECT_THROW(ProcessInitializationInfo(info), SessionDirectoryIsLink) << base;
        EXPECT_FALSE(initialized);
    }
    EXPECT_EQ(ReadText(Path("target/precious")), "keep");
    EXPECT_FALSE(Exists(Path("target/f")));
    EXPECT_FALSE(Exists(Path("nowhere")));
}

TEST_F(ProcessInitializationInfoTest, AFailureLeavesTheProcessWaitingAndTheNextAttemptStartsOver) {
    InitializationInfo unnamed = Info("session");
    unnamed.m_supportFiles.push_back(File("first", "1"));
    unnamed.m_supportFiles.push_back(FileTransfer());
    unnamed.m_settings.m_remindInterval = TimeInterval(5);
    EXPECT_THROW(ProcessInitializationInfo(unnamed), IllegalFileNameLength);
    EXPECT_FALSE(initialized);
    EXPECT_EQ(m_remindInterval, TimeInterval()) << "a later step ran after the failure";
    EXPECT_TRUE(Exists(Path("session/first"))) << "steps already done stay done";

    EXPECT_THROW(ProcessInitializationInfo(InitializationInfo()), EmptyFileLocationError);
    EXPECT_FALSE(initialized);

    ProcessInitializationInfo(Info("session"));
    EXPECT_TRUE(initialized);
    EXPECT_FALSE(Exists(Path("session/first"))) << "what the failed attempt wrote stayed";
}

TEST_F(ProcessInitializationInfoTest, ReminderSettingsAreTakenOver) {
    m_postponedTo = Instant(42);
    InitializationInfo info = Info("session");
    info.m_settings.m_allowSnooze = false;
    ProcessInitializationInfo(info);
    EXPECT_EQ(m_postponedTo, Instant(42)) << "no remind time: the postponement stays";
    EXPECT_EQ(m_remindInterval, TimeInterval()) << "no remind interval: zero";
    EXPECT_FALSE(m_snoozable);

    initialized = false;
    info.m_settings.m_allowSnooze = true;
    info.m_settings.m_remindInterval = TimeInterval(600000000);
    info.m_settings.m_remindTime = TimeObject(Instant(952153509000000), TimeZone(3600));
    ProcessInitializationInfo(info);
    EXPECT_EQ(m_postponedTo, Instant(952153509000000));
    EXPECT_EQ(m_remindInterval, TimeInterval(600000000));
    EXPECT_TRUE(m_snoozable);
}

TEST_F(ProcessInitializationInfoTest, SupportFileContentRoundTripsAsOneBase64Line) {
    std::string bytes;
    for (int i = 0; i < 300; ++i) bytes += static_cast<char>(i * 7);
    FileTransfer const sent(bytes, FileName("x"), FileName());
    EXPECT_EQ(sent.m_content.find('\n'), std::string::npos);
    EXPECT_EQ(FileTransfer("hi", FileName("x"), FileName()).m_content, "aGk=");

    sent.WriteToFile(Location("f"));
    EXPECT_EQ(ReadText(Path("f")), bytes);
    FileTransfer const read(Location("f"), FileName("x"), FileName());
    EXPECT_EQ(read.m_content, sent.m_content);
}

TEST_F(ProcessInitializationInfoTest, TranslationFilesAreChosenByTheLocaleBrandFirst) {
    Row("without the locale only the plain brand file counts", "fr_CA.UTF-8", false,
        {{"_brand.xlat", "", brand},
         {"_brandfr.xlat", "", brand},
         {"fr.xlat", "", general},
         {"fr_CA.xlat", "", general}},
        "_brand.xlat", "", false);
    Row("the full locale before the language, names in any case", "fr_CA.UTF-8", true,
        {{"_brand.xlat", "", brand},
         {"_brandfr.xlat", "", brand},
         {"_BRANDfr_ca.xlat", "", brand},
         {"fr.xlat", "", general},
         {"FR_ca.XLAT", "", general}},
        "_BRANDfr_ca.xlat", "FR_ca.XLAT", true);
    Row("the language when the full locale has no file; the plain brand file is then not added",
        "fr_CA.UTF-8", true,
        {{"_brand.xlat", "", brand}, {"_brandfr.xlat", "", brand}, {"Fr.xlat", "", general}},
        "_brandfr.xlat", "Fr.xlat", true);
    Row("a file in a sub-folder is never chosen", "fr_CA.UTF-8", true,
        {{"_brand.xlat", "x", brand}, {"fr_CA.xlat", "x", general}, {"fr.xlat", "", general}}, "",
        "fr.xlat", true);
    Row("a locale name without a character set", "de_DE", true,
        {{"_brand.xlat", "", brand}, {"de.xlat", "", general}, {"DE_de.xlat", "", general}},
        "_brand.xlat", "DE_de.xlat", true);
    Row("the plain locale is not international and chooses nothing by name", "C", true,
        {{"_brandC.xlat", "", brand}, {"C.xlat", "", general}}, "", "", false);
    Row("the default locale", nullptr, true,
        {{"_brand.xlat", "", brand}, {"POSIX.xlat", "", general}, {"C.xlat", "", general}},
        "_brand.xlat", "", false);
}

TEST_F(ProcessInitializationInfoTest, AnUnknownLocaleFailsTheSetUpAfterTheFilesAreWritten) {
    ScopedCTypeLocale const restoreLocale("C");
    ScopedEnvironment const all("LC_ALL", nullptr), ctype("LC_CTYPE", nullptr),
        lang("LANG", "zz_ZZ.UTF-8");
    InitializationInfo info = Info("session");
    info.m_settings.m_useLocale = true;
    info.m_settings.m_remindInterval = TimeInterval(7);
    info.m_supportFiles.push_back(File("zz.xlat", "unknown locale\tnever\n"));
    EXPECT_THROW(ProcessInitializationInfo(info), NoCharacterTypeLocale);
    EXPECT_FALSE(initialized);
    EXPECT_EQ(m_remindInterval, TimeInterval());
    EXPECT_TRUE(Exists(Path("session/zz.xlat")));
    EXPECT_EQ(Rendered("unknown locale"), "unknown locale");

    info.m_settings.m_useLocale = false;
    ProcessInitializationInfo(info);
    EXPECT_TRUE(initialized);
    EXPECT_EQ(m_remindInterval, TimeInterval(7));
}

// The agent may make the directory for the user: whoever owns it, it is used and emptied.
TEST_F(ProcessInitializationInfoTest, ADirectoryOfAnotherOwnerIsUsedAllTheSame) {
    MakeDirectory(Path("session"));
    WriteText(Path("session/stale"), "x");
    if (::chown(Path("session").c_str(), 65534, 65534) != 0)
        GTEST_SKIP() << "only a privileged user can give the directory away";
    ProcessInitializationInfo(Info("session"));
    EXPECT_TRUE(initialized);
    EXPECT_FALSE(Exists(Path("session/stale")));
    struct stat record;
    ASSERT_EQ(0, ::stat(Path("session").c_str(), &record));
    EXPECT_EQ(record.st_uid, 65534u) << "the directory was replaced";
}
