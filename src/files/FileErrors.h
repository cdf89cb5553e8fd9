#pragma once
// Every way the file layer can fail. The family rooted in FileIOError carries an error number
// and up to two paths, told apart by meaning, so that callers can catch by meaning; the family
// carries and prints, it never logs. The three classes often raised about one location also take
// it directly, as its LogString(). Failures of names and of the reading loop stand outside the
// family and carry no text; FileLoop's own Error class is nested in FileLoop.

#include <memory>
#include <string>

#include "text/bytes/ConstData.h"
#include "threads/DebuggableException.h"

class FileLocation;
namespace UnixPlatform {
class FileLocation;
}

// Returns the text of a system error number: "Error: <n>: <system text>", or
// "Unknown error: <n>" when the C library has no text for it.
std::string MakeErrorString(unsigned long code);

// A failure of the file layer with an error number and up to two paths.
// The data lives in one owned record; copying makes a new record.
class FileIOError : public DebuggableException {
  public:
    explicit FileIOError(int code);
    FileIOError(ConstData first, int code);
    FileIOError(ConstData first, ConstData second, int code);
    FileIOError(FileIOError const& other);
    // Copies code and the two paths into this object's record; the message cache is rebuilt on
    // the next what().
    FileIOError& operator=(FileIOError const& other);
    ~FileIOError() override;

    // Returns the system error number, or a small number of the thrower's own, or 0.
    int GetCode() const;
    // Returns the path the failure is about, or the empty string.
    std::string const& GetFirst() const;
    // Returns the other path of a two-path failure, or the empty string.
    std::string const& GetSecond() const;

    // Returns "File error \"<type>\"", then " on \"<first>\"", " and \"<second>\"" and
    // ": <MakeErrorString(code)>" for the parts that are present. Throws std::bad_alloc.
    std::string MakeErrorMessage() const;
    // Returns the message, rebuilt on each call; if building it fails, the run-time type name.
    // Valid until the next call or the end of the object.
    char const* what() const noexcept override;

  private:
    struct Record;
    std::unique_ptr<Record> m_record;
};

// mkstemp64 or mkdtemp failed; the code is 0 for a file and 1 for a directory.
class CreateUniqueFileLocationFailed : public FileIOError {
  public:
    using FileIOError::FileIOError;
};

// An empty path was given to CreateDirectory.
class DirectoryCreateFailed : public FileIOError {
  public:
    using FileIOError::FileIOError;
};

// A directory stands where none was wanted.
class DirectoryFoundError : public FileIOError {
  public:
    using FileIOError::FileIOError;
};

// A directory was needed.
class DirectoryNotFoundError : public FileIOError {
  public:
    using FileIOError::FileIOError;
};

// An empty path where one is required.
class EmptyFileLocationError : public FileIOError {
  public:
    using FileIOError::FileIOError;
};

// A read came up short.
class EndOfFileError : public FileIOError {
  public:
    using FileIOError::FileIOError;
};

// An empty path was given to CreateFile.
class FileCreateFailed : public FileIOError {
  public:
    using FileIOError::FileIOError;
};

// No space left on the device.
class FileDiskFullError : public FileIOError {
  public:
    using FileIOError::FileIOError;
};

// The target exists.
class FileExistsError : public FileIOError {
  public:
    using FileIOError::FileIOError;
};

// Something exists where it must not.
class FileFoundError : public FileIOError {
  public:
    using FileIOError::FileIOError;
    FileFoundError(FileLocation const& location, int code);
    FileFoundError(UnixPlatform::FileLocation const& location, int code);
};

// A failure on a FileItem.
class FileItemError : public FileIOError {
  public:
    using FileIOError::FileIOError;
    FileItemError(FileLocation const& location, int code);
    FileItemError(UnixPlatform::FileLocation const& location, int code);
};

// Try again later (EAGAIN).
class FileLockError : public FileIOError {
  public:
    using FileIOError::FileIOError;
};

// A rename failed; both paths are carried.
class FileMoveError : public FileIOError {
  public:
    using FileIOError::FileIOError;
};

// The file doesn't exist.
class FileNotFoundError : public FileIOError {
  public:
    using FileIOError::FileIOError;
    FileNotFoundError(FileLocation const& location, int code);
    FileNotFoundError(UnixPlatform::FileLocation const& location, int code);
};

// No descriptor is open.
class FileNotOpenError : public FileIOError {
  public:
    using FileIOError::FileIOError;
};

// Access refused.
class FilePermissionError : public FileIOError {
  public:
    using FileIOError::FileIOError;
};

// Out of memory or descriptors.
class FileResourceError : public FileIOError {
  public:
    using FileIOError::FileIOError;
};

// EINVAL from a positioned read or write.
class FileSeekError : public FileIOError {
  public:
    using FileIOError::FileIOError;
};

// A path without structure.
class InvalidFileLocation : public FileIOError {
  public:
    using FileIOError::FileIOError;
};

// File information was asked of a path that has none.
class InvalidStats : public FileIOError {
  public:
    using FileIOError::FileIOError;
};

// Parent() of the root.
class RootHasNoParent : public FileIOError {
  public:
    using FileIOError::FileIOError;
};

// A name that is ".", "..", holds a "/", or is too long once combined.
class IllegalFileName : public DebuggableException {};
// A name of length 0 or above 255.
class IllegalFileNameLength : public DebuggableException {};
// NameBeforeExtension was asked for an extension the name doesn't have.
class ExtensionDoesNotMatch : public DebuggableException {};
// NameAfterPrefix was asked for a prefix the name doesn't have.
class PrefixDoesNotMatch : public DebuggableException {};

// The file ended before the reading loop's end position.
class FileReadingLoopEndOfFileError : public DebuggableException {};
