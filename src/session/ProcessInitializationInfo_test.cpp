// The set-up of a session from the first document, on real files in a fresh directory.

#include "session/ProcessInitializationInfo.h"

#include <ftw.h>
#include <gtest/gtest.h>
#include <stdlib.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <string>
#include <vector>

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

// Every path below the root, with its type and mode, in the order nftw walks them; links are
// not followed.
std::vector<std::string> TreeBelow(std::string const& root) {
    static std::vector<std::string>* found = nullptr;
    std::vector<std::string> paths;
    found = &paths;
    ::nftw(
        root.c_str(),
        [](char const* path, struct stat const* record, int, FTW*) {
            found->push_back(std::string(path) + " " + std::to_string(record->st_mode));
            return 0;
        },
        16, FTW_PHYS);
    return paths;
}

// What the process writes on descriptor 2 (the trace) while it exists. The trace is switched on
// for this whole test program before any test runs, since it is read once per process.
class CapturedErrorOutput {
  public:
    CapturedErrorOutput() : m_saved(::dup(2)) {
        EXPECT_EQ(0, ::pipe(m_pipe));
        ::dup2(m_pipe[1], 2);
        ::close(m_pipe[1]);
    }
    ~CapturedErrorOutput() {
        ::dup2(m_saved, 2);
        ::close(m_saved);
        ::close(m_pipe[0]);
    }
    CapturedErrorOutput(CapturedErrorOutput const&) = delete;
    CapturedErrorOutput& operator=(CapturedErrorOutput const&) = delete;

    // Returns what was written so far; call it once.
    std::string Text() const {
        ::dup2(m_saved, 2);
        std::string text;
        char buffer[4096];
        ssize_t n = 0;
        while ((n = ::read(m_pipe[0], buffer, sizeof buffer)) > 0) text.append(buffer, n);
        return text;
    }

  private:
    int m_saved;
    int m_pipe[2];
};
[[maybe_unused]] int const traceOn = ::setenv("ZOLCLIENTUI_TRACE", "1", 1);

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

// Under the umask 022 of the fixture the parents are 0755, as any program makes them; only the
// session directory itself and its files are the owner's alone.
TEST_F(ProcessInitializationInfoTest, AMissingDirectoryIsMadeOwnerOnlyAndItsParentsByTheUmask) {
    InitializationInfo info = Info("a/b/session");
    info.m_supportFiles.push_back(File("_brand.xlat", "hello\n"));
    info.m_supportFiles.push_back(File("page.html", std::string("\0\xff", 2), "sub"));
    ProcessInitializationInfo(info);
    EXPECT_TRUE(initialized);
    EXPECT_EQ(m_baseDirectory.LogString(), Path("a/b/session"));
    EXPECT_EQ(Mode(Path("a")), 0755u);
    EXPECT_EQ(Mode(Path("a/b")), 0755u);
    EXPECT_EQ(Mode(Path("a/b/session")), 0700u);
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

// Each refusal comes before anything is deleted or made anywhere, leaves the process waiting,
// and writes one trace line that says why.
TEST_F(ProcessInitializationInfoTest, ARefusedFirstDocumentTouchesNothing) {
    MakeDirectory(Path("target"));
    MakeDirectory(Path("target/sub"));
    WriteText(Path("target/precious"), "keep");
    MakeDirectory(Path("real"));
    WriteText(Path("real/precious"), "keep");
    WriteText(Path("file"), "x");
    ASSERT_EQ(0, ::symlink(Path("target").c_str(), Path("link").c_str()));
    ASSERT_EQ(0, ::symlink(Path("nowhere").c_str(), Path("dangling").c_str()));
    std::string deep = Path("deep");
    while (deep.size() < 5000) deep += "/" + std::string(99, 'd');
    std::string nearlyTooLong = Path("near");
    while (nearlyTooLong.size() < 4000) nearlyTooLong += "/" + std::string(99, 'n');

    enum Refusal { directory, link, supportFile };
    struct Case {
        char const* what;
        std::string base;
        std::vector<FileTransfer> files;
        Refusal refusal;
        char const* why;
    };
    std::vector<FileTransfer> const oneFile{File("f", "x")};
    Case const cases[] = {
        {"a link with \"/.\"", Path("link") + "/.", oneFile, directory, "\".\" or \"..\""},
        {"a link's folder and back", Path("link") + "/sub/..", oneFile, directory, "\"..\""},
        {"the working directory", ".", oneFile, directory, "no absolute path"},
        {"a relative path", "real", oneFile, directory, "no absolute path"},
        {"no path", "", oneFile, directory, "no absolute path"},
        {"a link", Path("link"), oneFile, link, "is a symbolic link"},
        {"a dangling link", Path("dangling"), oneFile, link, "is a symbolic link"},
        {"below a link", Path("link") + "/sub/session", oneFile, link, "is a symbolic link"},
        {"below a file", Path("file") + "/session", oneFile, directory, "is no directory"},
        {"a file", Path("file"), oneFile, directory, "is no directory"},
        {"a path of 5,000 characters", deep, oneFile, directory, "longer than 4095 bytes"},
        {"a name of 256 bytes", Path(std::string(256, 'c')), oneFile, directory, "255 bytes"},
        {"a support file without a name",
         Path("real"),
         {File("f", "x"), FileTransfer()},
         supportFile,
         "has no name"},
        {"a support file whose path is too long",
         nearlyTooLong,
         {File(std::string(200, 'f').c_str(), "x")},
         supportFile,
         "longer than 4095 bytes"},
    };
    std::vector<std::string> const before = TreeBelow(m_root);
    for (Case const& c : cases) {
        SCOPED_TRACE(c.what);
        InitializationInfo info;
        info.m_baseDirectory = MakeFileLocation(c.base.c_str());
        info.m_supportFiles = c.files;
        CapturedErrorOutput const trace;
        bool refused = false;
        try {
            ProcessInitializationInfo(info);
        } catch (SessionDirectoryIsLink const&) {
            refused = c.refusal == link;
        } catch (SessionDirectoryRefused const&) {
            refused = c.refusal == directory;
        } catch (SupportFileRefused const&) {
            refused = c.refusal == supportFile;
        }
        std::string const lines = trace.Text();
        EXPECT_TRUE(refused) << lines;
        EXPECT_FALSE(initialized);
        EXPECT_EQ(std::count(lines.begin(), lines.end(), '\n'), 1) << lines;
        EXPECT_NE(lines.find("zolclientui: refused InitializationInfo: "), std::string::npos);
        EXPECT_NE(lines.find(c.why), std::string::npos) << lines;
        EXPECT_EQ(TreeBelow(m_root), before) << "something was deleted or made";
    }
    EXPECT_EQ(ReadText(Path("target/precious")), "keep");
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

    // A second first document starts over: the directory is emptied of what the first wrote.
    info.m_settings.m_useLocale = false;
    info.m_supportFiles = {File("other.xlat", "")};
    ProcessInitializationInfo(info);
    EXPECT_TRUE(initialized);
    EXPECT_EQ(m_remindInterval, TimeInterval(7));
    EXPECT_FALSE(Exists(Path("session/zz.xlat")));
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
