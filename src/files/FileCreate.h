#pragma once
// Making directories and empty files, strictly (fail if something is there) or by force.

#include <sys/types.h>

#include "files/FileLocation.h"

// How a directory is made: the mode for mkdir, which the umask narrows further.
struct DirectoryCreatingInfo {
    mode_t mode = 0777;
};

// How a file is made: its mode. 0666 is neutral and leaves the mode to the umask.
struct FileCreatingInfo {
    mode_t mode = 0666;
};

namespace UnixPlatform {

// Makes the directory. Throws DirectoryCreateFailed for an empty path, DirectoryFoundError when
// anything stands there, and the mapped FileIOError when mkdir fails.
void CreateDirectory(::FileLocation const& path, DirectoryCreatingInfo const& info);
// Makes the directory unless it is one already. Throws EmptyFileLocationError, FileFoundError
// when something else stands there, and the mapped FileIOError when mkdir fails.
void ForceDirectoryExistence(::FileLocation const& path, DirectoryCreatingInfo const& info);
// Makes an empty file, with the mode unless it is the neutral one. Throws FileCreateFailed for
// an empty path, FileFoundError when anything stands there, and the mapped FileIOError.
void CreateFile(::FileLocation const& path, FileCreatingInfo const& info);

}  // namespace UnixPlatform

// The checked forms: each throws EmptyFileLocationError for an empty path first.
void CreateDirectory(FileLocation const& path, DirectoryCreatingInfo const& info);
void ForceDirectoryExistence(FileLocation const& path, DirectoryCreatingInfo const& info);
void CreateFile(FileLocation const& path, FileCreatingInfo const& info);
// Makes the directory with mode 0777 less the umask.
void CreateDirectoryForUserAppAccess(FileLocation const& path);
// Makes the directory and every missing directory above it, with the default mode. Does nothing
// when it is a directory already; throws FileFoundError when something that is no directory
// stands at the path or at one of its ancestors.
void CreateDirectoryTree(FileLocation const& path);
// The same with the mode of info for every directory it makes.
void CreateDirectoryTree(FileLocation const& path, DirectoryCreatingInfo const& info);
