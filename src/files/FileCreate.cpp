#include "files/FileCreate.h"

#include <sys/stat.h>

#include <cerrno>
#include <cstdio>

#include "files/FileErrors.h"
#include "files/ThrowFileError.h"
#include "files/UnixFileInfo.h"

namespace {

void MakeDirectory(FileLocation const& path, DirectoryCreatingInfo const& info) {
    if (::mkdir(path.Text(), info.mode) != 0) {
        ThrowFileError(path, errno);
    }
}

}  // namespace

namespace UnixPlatform {

void CreateDirectory(::FileLocation const& path, DirectoryCreatingInfo const& info) {
    if (path.Empty()) {
        throw DirectoryCreateFailed(0);
    }
    if (UnixPlatform::Look(path).Exists()) {
        throw DirectoryFoundError(path.LogString(), 0);
    }
    MakeDirectory(path, info);
}

void ForceDirectoryExistence(::FileLocation const& path, DirectoryCreatingInfo const& info) {
    path.RequireNonEmpty();
    UnixFileInfo const existing = UnixPlatform::Look(path);
    if (existing.IsDirectory()) {
        return;
    }
    if (existing.Exists()) {
        throw FileFoundError(path, 0);
    }
    MakeDirectory(path, info);
}

void CreateFile(::FileLocation const& path, FileCreatingInfo const& info) {
    if (path.Empty()) {
        throw FileCreateFailed(0);
    }
    if (UnixPlatform::Look(path).Exists()) {
        throw FileFoundError(path, 0);
    }
    std::FILE* file = ::fopen64(path.Text(), "w");
    if (!file) {
        ThrowFileError(path, errno);
    }
    if (std::fclose(file) != 0) {
        ThrowFileError(path, errno);
    }
    if (info.mode != 0666 && ::chmod(path.Text(), info.mode) != 0) {
        ThrowFileError(path, errno);
    }
}

}  // namespace UnixPlatform

void CreateDirectory(FileLocation const& path, DirectoryCreatingInfo const& info) {
    path.RequireNonEmpty();
    UnixPlatform::CreateDirectory(path, info);
}

void ForceDirectoryExistence(FileLocation const& path, DirectoryCreatingInfo const& info) {
    path.RequireNonEmpty();
    UnixPlatform::ForceDirectoryExistence(path, info);
}

void CreateFile(FileLocation const& path, FileCreatingInfo const& info) {
    path.RequireNonEmpty();
    UnixPlatform::CreateFile(path, info);
}

void CreateDirectoryForUserAppAccess(FileLocation const& path) {
    // The umask can only be read by setting it; it is put back at once.
    mode_t const mask = ::umask(0);
    ::umask(mask);
    DirectoryCreatingInfo info;
    info.mode = 0777 & ~mask;
    CreateDirectory(path, info);
}

void CreateDirectoryTree(FileLocation const& path) {
    CreateDirectoryTree(path, DirectoryCreatingInfo());
}

void CreateDirectoryTree(FileLocation const& path, DirectoryCreatingInfo const& info) {
    path.RequireNonEmpty();
    UnixPlatform::UnixFileInfo const existing = UnixPlatform::Look(path);
    if (existing.IsDirectory()) {
        return;
    }
    if (existing.Exists()) {
        throw FileFoundError(path, 0);
    }
    if (!path.IsRoot()) {
        CreateDirectoryTree(path.Parent(), info);
    }
    ForceDirectoryExistence(path, info);
}
