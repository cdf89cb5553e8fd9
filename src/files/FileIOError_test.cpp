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

// What a call threw: the mangled name of the class ("" when it threw nothing), the path and
// the error number the exception carries.
struct Thrown {
    std::string type;
    std::string first;
    int code = 0;
};

template <class F>
Thrown ThrownBy(F call) {
    try {
        call();
    } catch (FileIOError const& e) {
        return {typeid(e).name(), e.GetFirst(), e.GetCode()};
    }
    return {};
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

// Each thrower maps the error number by its own column, and the exception names the path and
// keeps the number; 0 is no error and throws nothing.
TEST(FileIOError, MappingTableThroughEachThrower) {
    FileLocation const null = MakeFileLocation("/dev/null");
    FileReadingPath reading(null);
    FileWritingPath writing(null);
    UnixPlatform::FileWriter const writer(writing, 0);
    UnixPlatform::FileReader const reader(reading, 0);
    UnixPlatform::FileReadingPath const& readingBase = reading;
    for (MappingRow const& row : MappingTable()) {
        SCOPED_TRACE(row.code);
        struct {
            char const* thrower;
            std::string const& expected;
            Thrown thrown;
        } const columns[] = {
            {"ThrowFileError", row.general, ThrownBy([&] { ThrowFileError(null, row.code); })},
            {"ThrowFileError on the platform location", row.general,
             ThrownBy([&] { ThrowFileError(null.Platform(), row.code); })},
            {"reading path", row.general, ThrownBy([&] { readingBase.ThrowError(row.code); })},
            {"writing path", row.writingPath, ThrownBy([&] { writing.ThrowError(row.code); })},
            {"writer", row.writer, ThrownBy([&] { writer.ThrowError(row.code); })},
            {"reader", row.reader, ThrownBy([&] { reader.ThrowError(row.code); })},
        };
        for (auto const& column : columns) {
            SCOPED_TRACE(column.thrower);
            EXPECT_EQ(column.thrown.type, column.expected);
            EXPECT_EQ(column.thrown.first, row.code == 0 ? "" : "/dev/null");
            EXPECT_EQ(column.thrown.code, row.code);
        }
    }
}
