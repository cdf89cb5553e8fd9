#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <random>
#include <string>
#include <typeinfo>

#include "files/FileCopy.h"
#include "files/FileCreate.h"
#include "files/FileDelete.h"
#include "files/FileErrors.h"
#include "files/FileLoop.h"
#include "files/FileMove.h"
#include "files/UniqueFileLocation.h"
#include "testing/RandomBytes.h"
#include "testing/TemporaryDirectory.h"

namespace {

dev_t DeviceOf(std::string const& path) {
    struct stat record;
    EXPECT_EQ(0, ::stat(path.c_str(), &record)) << path;
    return record.st_dev;
}

bool IsDirectory(std::string const& path) {
    struct stat record;
    return ::lstat(path.c_str(), &record) == 0 && S_ISDIR(record.st_mode);
}

std::size_t CountEntries(std::string const& path) {
    FileLoop loop(MakeFileLocation(path.c_str()), nullptr, true);
    std::size_t count = 0;
    for (; !loop.Finished(); ++loop) {
        ++count;
    }
    return count;
}

}  // namespace

class FileOperations : public TemporaryDirectory {};

TEST_F(FileOperations, MoveOfATreeAcrossFileSystems) {
    std::string const other = MakeTree("/dev/shm");
    ASSERT_NE(DeviceOf(m_root), DeviceOf(other)) << "the test needs two file systems";
    std::mt19937 random(3);
    std::string const big = RandomBytes(random, 200000);
    MakeDirectory(Path("src"));
    MakeDirectory(Path("src/sub"));
    MakeDirectory(Path("src/sub/deeper"));
    MakeDirectory(Path("src/empty"));
    MakeDirectory(Path("outside"));
    WriteText(Path("outside/keep"), "keep");
    WriteText(Path("src/a.txt"), "alpha");
    WriteText(Path("src/sub/big"), big);
    WriteText(Path("src/sub/deeper/c"), "");
    ASSERT_EQ(0, ::symlink(Path("outside").c_str(), Path("src/sub/dirlink").c_str()));

    std::string const target = other + "/moved";
    MoveFile(Location("src"), MakeFileLocation(target.c_str()));

    EXPECT_FALSE(Exists(Path("src")));
    EXPECT_EQ("alpha", ReadText(target + "/a.txt"));
    EXPECT_EQ(big, ReadText(target + "/sub/big"));
    EXPECT_TRUE(Exists(target + "/sub/deeper/c"));
    EXPECT_TRUE(IsDirectory(target + "/empty"));
    // A link to a directory is neither copied nor followed; removing the source took only the
    // link.
    EXPECT_FALSE(Exists(target + "/sub/dirlink"));
    EXPECT_EQ("keep", ReadText(Path("outside/keep")));

    // A single file across as well.
    WriteText(Path("one"), "1");
    MoveFile(Location("one"), MakeFileLocation((other + "/one").c_str()));
    EXPECT_FALSE(Exists(Path("one")));
    EXPECT_EQ("1", ReadText(other + "/one"));
}

TEST_F(FileOperations, MoveRefusals) {
    WriteText(Path("f"), "f");
    WriteText(Path("g"), "g");
    MakeDirectory(Path("d"));
    MakeDirectory(Path("e"));
    WriteText(Path("e/x"), "x");
    EXPECT_THROW(MoveFile(Location("missing"), Location("n")), FileNotFoundError);
    EXPECT_THROW(MoveFile(Location("f"), Location("g")), FileFoundError);
    EXPECT_THROW(MoveFile(Location("f"), FileLocation()), EmptyFileLocationError);
    EXPECT_THROW(UnixPlatform::MoveFile(Location("f"), FileLocation()), EmptyFileLocationError);
    try {
        MoveFile(Location("d"), Location("d/inside"));
        ADD_FAILURE() << "a directory moved into itself";
    } catch (FileMoveError const& e) {
        EXPECT_EQ(Location("d").LogString(), e.GetFirst());
        EXPECT_EQ(Location("d/inside").LogString(), e.GetSecond());
        EXPECT_EQ(EINVAL, e.GetCode());
    }

    ForceMoveFile(Location("f"), Location("g"));
    EXPECT_EQ("f", ReadText(Path("g")));
    EXPECT_FALSE(Exists(Path("f")));
    // A file and a directory: the error names the directory, whichever side it is on.
    for (bool directoryFirst : {false, true}) {
        try {
            directoryFirst ? ForceMoveFile(Location("d"), Location("g"))
                           : ForceMoveFile(Location("g"), Location("d"));
            ADD_FAILURE() << directoryFirst;
        } catch (DirectoryFoundError const& e) {
            EXPECT_EQ(Location("d").LogString(), e.GetFirst());
        }
    }
    // Two directories: the target must be empty to be replaced.
    EXPECT_THROW(ForceMoveFile(Location("d"), Location("e")), FileIOError);
    ASSERT_EQ(0, ::unlink(Path("e/x").c_str()));
    ForceMoveFile(Location("d"), Location("e"));
    EXPECT_FALSE(Exists(Path("d")));
    EXPECT_TRUE(IsDirectory(Path("e")));
}

TEST_F(FileOperations, CopyFiles) {
    std::string const content(150000, 'q');
    WriteText(Path("from"), content);
    CopyFile(Location("from"), Location("to"));
    EXPECT_EQ(content, ReadText(Path("to")));
    EXPECT_THROW(CopyFile(Location("from"), Location("to")), FileExistsError);
    EXPECT_THROW(CopyFile(Location("missing"), Location("x")), FileNotFoundError);
    MakeDirectory(Path("dir"));
    EXPECT_THROW(CopyFile(Location("dir"), Location("x")), FileNotFoundError);
    WriteText(Path("to"), "old and longer than the new text");
    WriteText(Path("from"), "new");
    ForceCopyFile(Location("from"), Location("to"));
    EXPECT_EQ("new", ReadText(Path("to")));
    WriteText(Path("dir/x"), "x");
    EXPECT_THROW(ForceCopyFile(Location("from"), Location("dir")), FileIOError);
    ASSERT_EQ(0, ::unlink(Path("dir/x").c_str()));
    // An empty directory in the way goes.
    ForceCopyFile(Location("from"), Location("dir"));
    EXPECT_EQ("new", ReadText(Path("dir")));

    EXPECT_THROW(CopyDirectoryContents(Location("missing"), Location("x")), InvalidStats);
    EXPECT_THROW(CopyDirectoryContents(Location("from"), Location("x")), DirectoryNotFoundError);
}

TEST_F(FileOperations, ForceNonexistenceOfEachKind) {
    ASSERT_EQ(0, ::mkfifo(Path("fifo").c_str(), 0600));
    ForceNonexistence(Location("fifo"));
    EXPECT_TRUE(Exists(Path("fifo")));
    ForceNonexistence(Location("absent"));
    ASSERT_EQ(0, ::symlink(Path("nowhere").c_str(), Path("dangling").c_str()));
    ForceNonexistence(Location("dangling"));
    EXPECT_TRUE(Exists(Path("dangling")));
    WriteText(Path("file"), "x");
    ForceNonexistence(Location("file"));
    EXPECT_FALSE(Exists(Path("file")));
    MakeDirectory(Path("dir"));
    WriteText(Path("dir/x"), "x");
    EXPECT_THROW(ForceNonexistence(Location("dir")), FileIOError);
    ASSERT_EQ(0, ::symlink(Path("dir").c_str(), Path("dirlink").c_str()));
    ForceNonexistence(Location("dirlink"));
    EXPECT_FALSE(Exists(Path("dirlink")));
    EXPECT_TRUE(Exists(Path("dir/x")));
    ASSERT_EQ(0, ::unlink(Path("dir/x").c_str()));
    ForceNonexistence(Location("dir"));
    EXPECT_FALSE(Exists(Path("dir")));
    EXPECT_THROW(ForceNonexistence(FileLocation()), EmptyFileLocationError);
}

TEST_F(FileOperations, DeletingNeverFollowsALink) {
    MakeDirectory(Path("victim"));
    WriteText(Path("victim/precious"), "precious");
    WriteText(Path("victimfile"), "also precious");
    MakeDirectory(Path("session"));
    MakeDirectory(Path("session/sub"));
    WriteText(Path("session/sub/f"), "f");
    WriteText(Path("session/f"), "f");
    ASSERT_EQ(0, ::symlink(Path("victim").c_str(), Path("session/dirlink").c_str()));
    ASSERT_EQ(0, ::symlink(Path("victimfile").c_str(), Path("session/filelink").c_str()));
    ASSERT_EQ(0, ::symlink(Path("victim").c_str(), Path("session/sub/deeplink").c_str()));
    ASSERT_EQ(0, ::symlink(Path("gone").c_str(), Path("session/dangling").c_str()));

    ForceDeleteContents(Location("session"));
    EXPECT_EQ(0u, CountEntries(Path("session")));
    EXPECT_EQ("precious", ReadText(Path("victim/precious")));
    EXPECT_EQ("also precious", ReadText(Path("victimfile")));

    // A link where a directory is to be emptied or removed is not gone through either.
    ASSERT_EQ(0, ::symlink(Path("victim").c_str(), Path("toplink").c_str()));
    EXPECT_THROW(DeleteContents(Location("toplink")), DirectoryNotFoundError);
    DeleteRecursive(Location("toplink"));
    EXPECT_FALSE(Exists(Path("toplink")));
    EXPECT_EQ("precious", ReadText(Path("victim/precious")));

    DeleteRecursive(Location("session"));
    EXPECT_FALSE(Exists(Path("session")));
    EXPECT_THROW(DeleteRecursive(Location("session")), DirectoryNotFoundError);
    ForceDeleteContents(Location("session"));
    ForceDeleteRecursive(Location("session"));
    EXPECT_THROW(DeleteDirectory(Location("victimfile")), DirectoryNotFoundError);
    EXPECT_THROW(DeleteFile(Location("missing")), FileNotFoundError);
    EXPECT_THROW(UnixPlatform::DeleteFile(FileLocation()), FileNotFoundError);
}

TEST_F(FileOperations, CreatingDirectoriesAndFiles) {
    CreateDirectoryTree(Location("a/b/c"));
    EXPECT_TRUE(IsDirectory(Path("a/b/c")));
    CreateDirectoryTree(Location("a/b/c"));
    WriteText(Path("a/file"), "x");
    EXPECT_THROW(CreateDirectoryTree(Location("a/file/d/e")), FileFoundError);
    EXPECT_FALSE(Exists(Path("a/file/d")));
    EXPECT_THROW(CreateDirectoryTree(Location("a/file")), FileFoundError);

    DirectoryCreatingInfo const plain;
    EXPECT_THROW(CreateDirectory(Location("a"), plain), DirectoryFoundError);
    EXPECT_THROW(CreateDirectory(FileLocation(), plain), EmptyFileLocationError);
    EXPECT_THROW(UnixPlatform::CreateDirectory(FileLocation(), plain), DirectoryCreateFailed);
    EXPECT_THROW(CreateDirectory(Location("none/x"), plain), FileNotFoundError);
    EXPECT_THROW(ForceDirectoryExistence(Location("a/file"), plain), FileFoundError);
    ForceDirectoryExistence(Location("a"), plain);
    DirectoryCreatingInfo privateDirectory;
    privateDirectory.mode = 0700;
    ForceDirectoryExistence(Location("p"), privateDirectory);
    struct stat record;
    ASSERT_EQ(0, ::stat(Path("p").c_str(), &record));
    EXPECT_EQ(0700u, record.st_mode & 07777);

    mode_t const mask = ::umask(022);
    CreateDirectoryForUserAppAccess(Location("u"));
    ::umask(mask);
    ASSERT_EQ(0, ::stat(Path("u").c_str(), &record));
    EXPECT_EQ(0755u, record.st_mode & 07777);

    FileCreatingInfo privateFile;
    privateFile.mode = 0600;
    CreateFile(Location("new"), privateFile);
    ASSERT_EQ(0, ::stat(Path("new").c_str(), &record));
    EXPECT_EQ(0600u, record.st_mode & 07777);
    EXPECT_EQ(0, record.st_size);
    EXPECT_THROW(CreateFile(Location("new"), FileCreatingInfo()), FileFoundError);
    EXPECT_THROW(UnixPlatform::CreateFile(FileLocation(), FileCreatingInfo()), FileCreateFailed);
}

TEST_F(FileOperations, UniqueLocations) {
    FileLocation const first = CreateUniqueFileLocation(Root(), "pre");
    FileLocation const second = CreateUniqueFileLocation(Root(), "pre");
    EXPECT_NE(first, second);
    EXPECT_EQ(Root(), first.Parent());
    std::string const name = first.Name().Text();
    EXPECT_EQ(0u, name.find("pre"));
    EXPECT_EQ(9u, name.size());
    EXPECT_EQ("", ReadText(first.LogString()));
    FileLocation const directory = CreateUniqueDirLocation(Root(), nullptr);
    EXPECT_TRUE(IsDirectory(directory.LogString()));
    EXPECT_EQ(6u, directory.Name().TextLength());

    // The code tells a file (0) from a directory (1).
    auto const code = [](auto create) {
        try {
            create();
        } catch (CreateUniqueFileLocationFailed const& e) {
            return e.GetCode();
        }
        return -1;
    };
    EXPECT_EQ(0, code([&] { CreateUniqueFileLocation(Location("missing"), "x"); }));
    EXPECT_EQ(1, code([&] { CreateUniqueDirLocation(Location("missing"), "x"); }));

    EXPECT_EQ(directory, CreateUniqueFileLocationWithHint(directory, "h").Parent());
    EXPECT_EQ(Root(), CreateUniqueFileLocationWithHint(first, "h").Parent());
    FileLocation const free = LocationForTemporaryFile(directory);
    EXPECT_FALSE(Exists(free.LogString()));
    EXPECT_EQ(directory, free.Parent());
    EXPECT_EQ(0u, std::string(free.Name().Text()).find("temp"));

    FileLocation temporary;
    ASSERT_TRUE(MakeTemporaryFileLocation(temporary, nullptr));
    EXPECT_EQ(0u, temporary.LogString().find("/tmp/ketral"));
    EXPECT_TRUE(Exists(temporary.LogString()));
    DeleteFile(temporary);
    FileLocation unchanged = Location("kept");
    EXPECT_FALSE(MakeTemporaryFileLocation(unchanged, std::string(5000, 'x').c_str()));
    EXPECT_EQ(Location("kept"), unchanged);
}
