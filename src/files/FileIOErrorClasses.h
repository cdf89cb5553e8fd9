#pragma once
// The classes of the file failure family, told apart by meaning. None adds data to FileIOError.
// The three that are often raised about one location also take it directly, as its LogString().

#include "files/FileIOError.h"

class FileLocation;
namespace UnixPlatform {
class FileLocation;
}

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
