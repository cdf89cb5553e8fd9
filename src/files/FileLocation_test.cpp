#include "files/FileLocation.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <string>

#include "files/FileErrors.h"
#include "files/FileLocationFunctions.h"
#include "files/UnixFileInfo.h"
#include "testing/TemporaryDirectory.h"

TEST(FileLocation, FullPathNamesLoseTrailingSlashes) {
    std::pair<char const*, char const*> const rows[] = {
        {"/", "/"},   {"//", "/"}, {"/a/", "/a"}, {"/a//", "/a"},
        {"/a", "/a"}, {"a/", "a"}, {"", ""},      {"/a/b/c/", "/a/b/c"},
    };
    for (auto const& row : rows) {
        EXPECT_STREQ(row.second, MakeFileLocation(row.first).Text()) << row.first;
    }
    EXPECT_TRUE(MakeFileLocation(static_cast<char const*>(nullptr)).Empty());
}

TEST(FileLocation, ChildrenAndTheStoredLength) {
    UnixPlatform::FileLocation const parent = MakeFileLocation("/p").Platform();
    struct Row {
        UnixPlatform::FileLocation const& parent;
        char const* child;
        char const* text;
        std::size_t length;
    } const rows[] = {
        {parent, "c", "/p/c", 4},     {parent, "c//", "/p/c", 4},
        {parent, "/c", "/p/c", 5},  // one above the text: the child began with "/"
        {parent, "c/d", "/p/c/d", 6}, {parent, "", "/p", 2},
    };
    for (Row const& row : rows) {
        UnixPlatform::FileLocation location;
        location.Set(row.parent, ConstData(row.child));
        EXPECT_STREQ(row.text, location.Text()) << row.child;
        EXPECT_EQ(row.length, location.Length()) << row.child;
        EXPECT_STREQ(row.text, parent.Relative(row.child).Text());
    }
    // The root's child gets two slashes: the parent's own "/" is not looked at.
    EXPECT_STREQ("//etc", MakeFileLocation("/").Platform().Relative("etc").Text());
    UnixPlatform::FileLocation self = parent;
    self.Set(self, ConstData("x"));
    EXPECT_STREQ("/p/x", self.Text());
    EXPECT_THROW(UnixPlatform::FileLocation().Relative("x"), EmptyFileLocationError);
    EXPECT_THROW(FileLocation(FileLocation(), "x"), EmptyFileLocationError);
    EXPECT_THROW(FileLocation(MakeFileLocation("/p"), ".."), IllegalFileName);
    EXPECT_STREQ("/p/../q", FileLocation(MakeFileLocation("/p"), ConstData("../q")).Text());
    EXPECT_STREQ("/p/s", MakeFileLocation("/p/c").Sibling(FileName("s")).Text());
}

TEST(FileLocation, InlineUpTo127Characters) {
    std::string const inlinePath = "/" + std::string(126, 'x');
    std::string const longPath = "/" + std::string(127, 'x');
    EXPECT_FALSE(MakeFileLocation(inlinePath.c_str()).Platform().IsAllocated());
    FileLocation const allocated = MakeFileLocation(longPath.c_str());
    EXPECT_TRUE(allocated.Platform().IsAllocated());
    EXPECT_EQ(longPath, allocated.LogString());
    // Copies and moves keep the text, whichever storage it lives in.
    FileLocation copy = allocated;
    FileLocation moved = std::move(copy);
    EXPECT_EQ(longPath, moved.LogString());
    EXPECT_TRUE(copy.Empty());
    copy = moved;
    EXPECT_EQ(longPath, copy.LogString());
    // A text taken from the location's own storage survives the reallocation.
    UnixPlatform::FileLocation& platform = copy.Platform();
    platform.SetFullPathName(platform.Text() + 1, 126);
    EXPECT_EQ(std::string(126, 'x'), copy.LogString());
    platform.SetFullPathName(platform.Text(), 3);
    EXPECT_EQ(std::string(126, 'x'), copy.LogString());
}

TEST(FileLocation, ParentsAndNames) {
    std::pair<char const*, char const*> const parents[] = {
        {"/a", "/"}, {"/a/b", "/a"}, {"/a/b/c", "/a/b"}, {"a/b", "a"}, {"/a//b", "/a"},
    };
    for (auto const& row : parents) {
        EXPECT_STREQ(row.second, MakeFileLocation(row.first).Parent().Text()) << row.first;
    }
    EXPECT_THROW(MakeFileLocation("/").Parent(), RootHasNoParent);
    EXPECT_THROW(MakeFileLocation("a").Parent(), InvalidFileLocation);
    EXPECT_THROW(FileLocation().Parent(), EmptyFileLocationError);

    EXPECT_STREQ("c", MakeFileLocation("/a/b/c").Name().Text());
    EXPECT_STREQ("a", MakeFileLocation("a").Name().Text());
    EXPECT_STREQ("", UnixPlatform::FileLocation().Name().Text());
    EXPECT_THROW(MakeFileLocation("/").Name(), IllegalFileNameLength);
    // Parent and Name scan from the terminator, not from the stored length.
    UnixPlatform::FileLocation slipped = MakeFileLocation("/p").Platform().Relative("/c");
    EXPECT_STREQ("c", slipped.Name().Text());
    EXPECT_STREQ("/p", slipped.Parent().Text());

    EXPECT_TRUE(MakeFileLocation("/").IsRoot());
    EXPECT_FALSE(MakeFileLocation("/a").IsRoot());
    EXPECT_THROW(FileLocation().IsRoot(), EmptyFileLocationError);
}

TEST(FileLocation, ComparisonIgnoresAsciiCase) {
    EXPECT_EQ(MakeFileLocation("/Var"), MakeFileLocation("/var"));
    EXPECT_NE(MakeFileLocation("/var/a"), MakeFileLocation("/var"));
    EXPECT_TRUE(MakeFileLocation("/A") < MakeFileLocation("/b"));
    EXPECT_TRUE(MakeFileLocation("/a") < MakeFileLocation("/B"));
    EXPECT_FALSE(MakeFileLocation("/Tmp") < MakeFileLocation("/tmp/"));
}

TEST(FileLocation, Ancestry) {
    struct Row {
        char const* ancestor;
        char const* other;
        bool equalOrDescendant;
        bool descendant;
    } const rows[] = {
        {"/a", "/a", true, false},    {"/a", "/a/b/c", true, true}, {"/a", "/A/b", true, true},
        {"/a/b", "/a", false, false}, {"/a", "/ab", false, false},  {"/", "/x/y", true, true},
        {"/x", "/", false, false},
    };
    for (Row const& row : rows) {
        FileLocation const a = MakeFileLocation(row.ancestor);
        FileLocation const b = MakeFileLocation(row.other);
        EXPECT_EQ(row.equalOrDescendant, EqualOrDescendant(a, b)) << row.ancestor << row.other;
        EXPECT_EQ(row.descendant, IsDescendant(a, b)) << row.ancestor << row.other;
    }
    EXPECT_THROW(EqualOrDescendant(FileLocation(), MakeFileLocation("/a")), EmptyFileLocationError);
    EXPECT_THROW(IsDescendant(MakeFileLocation("/a"), FileLocation()), EmptyFileLocationError);
}

TEST(FileLocation, WildcardSplit) {
    FileLocation result;
    EXPECT_EQ(nullptr, MakeFileLocationWithWildcard("/a/b", result));
    EXPECT_STREQ("/a/b", result.Text());
    char const* path = "/a/b/*.xlat";
    EXPECT_EQ(path + 5, MakeFileLocationWithWildcard(path, result));
    EXPECT_STREQ("/a/b", result.Text());
    EXPECT_STREQ("x?", MakeFileLocationWithWildcard("/x?", result));
    EXPECT_STREQ("", result.Text());
    // A wildcard in a directory part is not looked at.
    EXPECT_EQ(nullptr, MakeFileLocationWithWildcard("/a*/b", result));
    EXPECT_STREQ("/a*/b", result.Text());
}

TEST(FileLocation, FixedPlaces) {
    EXPECT_STREQ("/var/tmp/ZOL/ClientUI", UISessionDefaultDirectory("").Text());
    EXPECT_STREQ("/var/tmp/ZOL/ClientUI/.jo", UISessionDefaultDirectory("jo").Text());
    EXPECT_TRUE(IsAbsolutePath("/x"));
    EXPECT_FALSE(IsAbsolutePath("x/"));
    EXPECT_FALSE(IsAbsolutePath(nullptr));
}

class FileLocationOnDisk : public TemporaryDirectory {};

TEST_F(FileLocationOnDisk, ReadOnlyBitsAndFreeSpace) {
    WriteText(Path("f"), "x");
    FileLocation const file = Location("f");
    EXPECT_TRUE(file.IsFile());
    EXPECT_FALSE(Root().IsFile());
    EXPECT_FALSE(Location("none").IsFile());
    ::chmod(Path("f").c_str(), 0640);
    EXPECT_FALSE(file.IsReadOnly());
    SetFileReadOnly(file, true);
    EXPECT_TRUE(file.IsReadOnly());
    struct stat record;
    ASSERT_EQ(0, ::stat(Path("f").c_str(), &record));
    EXPECT_EQ(0440u, record.st_mode & 07777);
    mode_t const mask = ::umask(027);
    SetFileReadOnly(file, false);
    ::umask(mask);
    ASSERT_EQ(0, ::stat(Path("f").c_str(), &record));
    EXPECT_EQ(0640u, record.st_mode & 07777);
    EXPECT_THROW(SetFileReadOnly(Location("none"), true), FileNotFoundError);
    EXPECT_THROW(Location("none").IsReadOnly(), FileNotFoundError);

    EXPECT_GT(CalculateFreeSpace(Root()), 0);
    EXPECT_EQ(-1, CalculateFreeSpace(Location("none")));
    EXPECT_TRUE(file.Platform().GetValidInfo().IsFile());
    EXPECT_THROW(Location("none").Platform().GetValidInfo(), FileNotFoundError);
}
