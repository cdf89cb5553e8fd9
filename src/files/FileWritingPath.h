#pragma once
// An open file for writing, which can also be read. Failures of a file open for writing map
// EEXIST to FileExistsError and ENOSPC, from a write or from fsync, to FileDiskFullError.

#include "files/FileLocation.h"
#include "files/FileReadingPath.h"

class FileRetryLog;

// Tags that choose how a FileWritingPath constructor opens its file.
struct OpenNewFile {};
struct OpenExistingFile {};
struct OpenExistingFileOrNewFile {};
struct OpenNewFileOrAsNewFile {};

namespace UnixPlatform {

class FileWritingPath : public FileReadingPath {
  public:
    FileWritingPath() = default;

    // Each closes what was open, then opens read-write: a new file that must not exist yet; an
    // existing file; either; or a file emptied or made new. Throw the mapped FileIOError.
    void OpenNew(UnixPlatform::FileLocation const& location);
    void OpenExisting(UnixPlatform::FileLocation const& location);
    void OpenExistingOrNew(UnixPlatform::FileLocation const& location);
    void OpenNewOrAsNew(UnixPlatform::FileLocation const& location);

    // Forces the written data to the disk with fsync; throws the mapped FileIOError.
    void Flush() const;
    // The same as Flush on this platform.
    void FlushOnBrokenFilesystems() const;
    // FlushOnBrokenFilesystems under the retry policy, reported as "FlushOnBrokenFilesystems".
    void FlushOnBrokenFilesystemsWithRetry(::FileLocation const& location,
                                           FileRetryLog const& log) const;
    // Kept as it has always behaved, which is not what its name says, since nothing in this
    // program calls it: a file at least as long is truncated to its own length (no change);
    // a shorter one gets a seek whose whence is length - 1 and one zero byte written at the
    // resulting offset. Throws the mapped FileIOError.
    void SetLength(unsigned long long length);

    void ThrowError(UnixPlatform::FileLocation const& location, int code) const override;
    using FileReadingPath::ThrowError;
};

}  // namespace UnixPlatform

// The writing path for a checked location; each operation throws EmptyFileLocationError for an
// empty one.
class FileWritingPath : public UnixPlatform::FileWritingPath {
  public:
    FileWritingPath() = default;
    // Opens as OpenExisting.
    explicit FileWritingPath(FileLocation const& location) { OpenExisting(location); }
    FileWritingPath(FileLocation const& location, OpenNewFile) { OpenNew(location); }
    FileWritingPath(FileLocation const& location, OpenExistingFile) { OpenExisting(location); }
    FileWritingPath(FileLocation const& location, OpenExistingFileOrNewFile) {
        OpenExistingOrNew(location);
    }
    FileWritingPath(FileLocation const& location, OpenNewFileOrAsNewFile) {
        OpenNewOrAsNew(location);
    }

    using UnixPlatform::FileWritingPath::OpenExisting;
    using UnixPlatform::FileWritingPath::OpenExistingOrNew;
    using UnixPlatform::FileWritingPath::OpenNew;
    using UnixPlatform::FileWritingPath::OpenNewOrAsNew;
    void OpenNew(FileLocation const& location);
    void OpenExisting(FileLocation const& location);
    void OpenExistingOrNew(FileLocation const& location);
    void OpenNewOrAsNew(FileLocation const& location);
};
