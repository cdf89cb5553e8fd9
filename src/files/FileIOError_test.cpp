#include "files/FileErrors.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <cstring>
#include <typeinfo>

#include "files/FileLocationFunctions.h"
#include "files/FileReader.h"
#include "files/FileReadingPath.h"
#include "files/FileWriter.h"
#include "files/FileWritingPath.h"
#include "files/ThrowFileError.h"

namespace {

// Returns the mangled name of the class a call throws, or "" when it throws nothing.
template <class F>
std::string ThrownClass(F call) {
    try {
        call();
    } catch (FileIOError const& e) {
        return typeid(e).name();
    }
    return "";
}

template <class T>
std::string Name() {
    return typeid(T).name();
}

}  // namespace

TEST(FileIOError, MessageHasOneClauseForEachPartPresent) {
    std::string const type = "File error \"" + Name<FileIOError>() + "\"";
    EXPECT_EQ("File error \"11FileIOError\"", FileIOError(0).MakeErrorMessage());
    EXPECT_EQ(type + " on \"/a\"", FileIOError("/a", 0).MakeErrorMessage());
    EXPECT_EQ(type + " on \"/a\" and \"/b\": Error: 13: " + std::strerror(13),
              FileIOError("/a", "/b", 13).MakeErrorMessage());
    // A second path without a first still gets its clause.
    EXPECT_EQ(type + " and \"/b\"", FileIOError("", "/b", 0).MakeErrorMessage());
    EXPECT_EQ("File error \"" + Name<FileDiskFullError>() +
                  "\" on \"/x\": Error: 28: " + std::strerror(28),
              FileDiskFullError("/x", ENOSPC).MakeErrorMessage());
    EXPECT_EQ("Unknown error: 123456", MakeErrorString(123456));
    // The classes that take a location take its LogString.
    FileLocation const location = MakeFileLocation("/var//");
    EXPECT_EQ("/var", FileNotFoundError(location, 2).GetFirst());
    EXPECT_EQ("/var", FileFoundError(location, 0).GetFirst());
    EXPECT_EQ("/var", FileItemError(location, 0).GetFirst());
}

TEST(FileIOError, CopiesAreIndependentAndKeepTheirClass) {
    FileNotFoundError error("/missing", ENOENT);
    std::string const first = error.what();
    FileIOError copy(error);
    copy = FileIOError("/else", "/more", EACCES);
    EXPECT_EQ("/else", copy.GetFirst());
    EXPECT_EQ("/more", copy.GetSecond());
    EXPECT_EQ(EACCES, copy.GetCode());
    EXPECT_EQ(first, error.what());
    // Assignment keeps the class of the target: the message names a FileNotFoundError still.
    static_cast<FileIOError&>(error) = copy;
    EXPECT_NE(std::string(error.what()).find(Name<FileNotFoundError>()), std::string::npos);
    EXPECT_NE(std::string(error.what()).find("/else"), std::string::npos);
}

// One row of the mapping: the class each column gives an error number.
struct MappingRow {
    int code;
    std::string general;
    std::string writingPath;
    std::string writer;
    std::string reader;
};

std::vector<MappingRow> MappingTable() {
    std::string const plain = Name<FileIOError>();
    std::string const permission = Name<FilePermissionError>();
    std::string const notFound = Name<FileNotFoundError>();
    std::string const lock = Name<FileLockError>();
    std::string const resource = Name<FileResourceError>();
    std::string const noDirectory = Name<DirectoryNotFoundError>();
    return {
        {EPERM, permission, permission, permission, permission},
        {EACCES, permission, permission, permission, permission},
        {ENOENT, notFound, notFound, notFound, plain},
        {EIO, plain, plain, plain, plain},
        {EBADF, plain, plain, plain, plain},
        {EAGAIN, lock, lock, lock, plain},
        {ENOMEM, resource, resource, resource, plain},
        {ENFILE, resource, resource, resource, plain},
        {EMFILE, resource, resource, resource, plain},
        {EEXIST, plain, Name<FileExistsError>(), Name<FileExistsError>(), plain},
        {ENOTDIR, noDirectory, noDirectory, noDirectory, plain},
        {ENAMETOOLONG, noDirectory, noDirectory, noDirectory, plain},
        {EINVAL, plain, plain, Name<FileSeekError>(), Name<FileSeekError>()},
        {ENOSPC, plain, Name<FileDiskFullError>(), Name<FileDiskFullError>(), plain},
        {endOfFileErrorCode, plain, plain, plain, Name<EndOfFileError>()},
        {EROFS, plain, plain, plain, plain},
        {0, "", "", "", ""},
    };
}

TEST(FileIOError, MappingTableThroughEachThrower) {
    FileLocation const null = MakeFileLocation("/dev/null");
    FileReadingPath reading(null);
    FileWritingPath writing(null);
    UnixPlatform::FileWriter const writer(writing, 0);
    UnixPlatform::FileReader const reader(reading, 0);
    UnixPlatform::FileReadingPath const& readingBase = reading;
    for (MappingRow const& row : MappingTable()) {
        SCOPED_TRACE(row.code);
        EXPECT_EQ(row.general, ThrownClass([&] { ThrowFileError(null, row.code); }));
        EXPECT_EQ(row.general, ThrownClass([&] { ThrowFileError(null.Platform(), row.code); }));
        EXPECT_EQ(row.general, ThrownClass([&] { readingBase.ThrowError(row.code); }));
        EXPECT_EQ(row.writingPath, ThrownClass([&] { writing.ThrowError(row.code); }));
        EXPECT_EQ(row.writer, ThrownClass([&] { writer.ThrowError(row.code); }));
        EXPECT_EQ(row.reader, ThrownClass([&] { reader.ThrowError(row.code); }));
    }
    try {
        writer.ThrowError(ENOSPC);
    } catch (FileIOError const& e) {
        EXPECT_EQ("/dev/null", e.GetFirst());
        EXPECT_EQ(ENOSPC, e.GetCode());
    }
}
