#include "files/FileLoop.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cstring>
#include <string>
#include <vector>

#include "files/FileErrors.h"
#include "files/FileItem.h"
#include "files/UnixFileInfo.h"
#include "testing/TemporaryDirectory.h"

namespace {

std::vector<std::string> Names(FileLoop& loop) {
    std::vector<std::string> names;
    for (; !loop.Finished(); ++loop) {
        names.push_back(loop->Location().Name().Text());
    }
    return names;
}

std::vector<std::string> List(FileLocation const& directory, char const* wildcard,
                              bool tryToGet = false) {
    FileLoop loop(directory, wildcard, tryToGet);
    return Names(loop);
}

}  // namespace

class FileLoopTest : public TemporaryDirectory {};

TEST_F(FileLoopTest, DanglingLinkIsSeenOnlyWhenTryingToGet) {
    WriteText(Path("file"), "x");
    ASSERT_EQ(0, ::symlink(Path("nowhere").c_str(), Path("dangling").c_str()));
    ASSERT_EQ(0, ::symlink(Path("file").c_str(), Path("link").c_str()));

    EXPECT_THROW(FileItem(Location("dangling")), FileNotFoundError);
    EXPECT_EQ((std::vector<std::string>{"file", "link"}), List(Root(), nullptr));
    EXPECT_EQ((std::vector<std::string>{"dangling", "file", "link"}), List(Root(), nullptr, true));
    FileLoop loop(Root(), "dang*", true);
    ASSERT_FALSE(loop.Finished());
    EXPECT_EQ(FileStats::dangling, loop->GetStatus());
    EXPECT_FALSE(loop->MustReportError(true));
    EXPECT_TRUE(loop->MustReportError(false));
    EXPECT_TRUE(loop->HandleTryToGetError(true));

    FileItem const link(Location("link"));
    EXPECT_EQ(FileStats::link, link.GetStatus());
    EXPECT_TRUE(link.IsFile());
    EXPECT_TRUE(link.IsLink());
    EXPECT_TRUE(S_ISLNK(link.own.st_mode));
}

TEST_F(FileLoopTest, OrderWildcardsAndTheDotEntries) {
    for (char const* name : {"c", "B", "a", ".hidden", "x.xlat", "y.XLAT", "z.xlat.old"}) {
        WriteText(Path(name), name);
    }
    MakeDirectory(Path("dir.xlat"));
    std::vector<std::string> expected = {".hidden",  "B",      "a",      "c",
                                         "dir.xlat", "x.xlat", "y.XLAT", "z.xlat.old"};
    std::sort(expected.begin(), expected.end(), [](std::string const& a, std::string const& b) {
        return std::strcoll(a.c_str(), b.c_str()) < 0;
    });
    EXPECT_EQ(expected, List(Root(), nullptr));
    EXPECT_EQ(expected, List(Root(), "*"));
    EXPECT_EQ((std::vector<std::string>{".hidden"}), List(Root(), ".*"));
    EXPECT_EQ(std::vector<std::string>{}, List(Root(), "."));
    EXPECT_EQ(std::vector<std::string>{}, List(Root(), ".."));
    EXPECT_EQ((std::vector<std::string>{"dir.xlat", "x.xlat"}), List(Root(), "*.xlat"));
    FileLoop typed(Root(), TranslationKetralFileType);
    EXPECT_EQ((std::vector<std::string>{"dir.xlat", "x.xlat"}), Names(typed));
    EXPECT_EQ(std::vector<std::string>{}, List(Location("missing"), nullptr));
    EXPECT_EQ(std::vector<std::string>{}, List(Location("c"), nullptr));
    EXPECT_THROW(FileLoop(FileLocation(), nullptr), EmptyFileLocationError);
}

TEST_F(FileLoopTest, EntriesThatVanishAreSkipped) {
    for (char const* name : {"a", "b", "c", "d"}) {
        WriteText(Path(name), name);
    }
    FileLoop loop(Root(), nullptr);
    ASSERT_EQ("a", std::string(loop->Location().Name().Text()));
    ASSERT_EQ(0, ::unlink(Path("b").c_str()));
    ++loop;
    EXPECT_EQ("c", std::string(loop->Location().Name().Text()));
    ASSERT_EQ(0, ::unlink(Path("d").c_str()));
    ++loop;
    EXPECT_TRUE(loop.Finished());
    EXPECT_THROW(*loop, UnixPlatform::FileLoop::InvalidIteratorPosition);
    EXPECT_THROW(loop.Current(), UnixPlatform::FileLoop::Error);
    ++loop;
    EXPECT_TRUE(loop.Finished());

    // The first entry gone before the start is skipped as well.
    FileLoop again;
    ASSERT_EQ(0, ::unlink(Path("a").c_str()));
    again.Start(Root(), nullptr);
    EXPECT_EQ((std::vector<std::string>{"c"}), Names(again));
}

TEST_F(FileLoopTest, ChecksumIsTheComplementedRegister) {
    WriteText(Path("check"), "123456789");
    // The published check value of this CRC (CRC-32/BZIP2) is the complemented register.
    EXPECT_EQ(0xFC891918u, FileItem(Location("check")).Checksum());
    WriteText(Path("empty"), "");
    EXPECT_EQ(0u, FileItem(Location("empty")).Checksum());
}

TEST_F(FileLoopTest, ModificationTimes) {
    WriteText(Path("f"), "x");
    FileItem item(Location("f"));
    Instant const time(1234567890123456LL);
    item.SetModificationTime(time);
    EXPECT_EQ(Instant(1234567890000000LL), item.ModificationTime());
    EXPECT_EQ(Instant(1234567890000000LL), FileItem(Location("f")).ModificationTime());
    EXPECT_EQ(item.AccessTime(), FileItem(Location("f")).AccessTime());

    ASSERT_EQ(0, ::unlink(Path("f").c_str()));
    EXPECT_THROW(item.SetModificationTime(time), FileNotFoundError);
    EXPECT_THROW(FileItem().SetModificationTime(time), InvalidStats);

    struct Row {
        long long microseconds;
        long long seconds;
    } const rows[] = {{0, 0}, {999999, 0}, {1000000, 1}, {-1, -1}, {-1000000, -1}, {-1000001, -2}};
    for (Row const& row : rows) {
        EXPECT_EQ(row.seconds, InstantToFileTime(Instant(row.microseconds))) << row.microseconds;
        EXPECT_EQ(Instant(row.seconds * 1000000),
                  FileItem::RoundToFileSystem(Instant(row.microseconds)));
    }
}
