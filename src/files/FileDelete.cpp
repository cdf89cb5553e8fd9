#include "files/FileDelete.h"

#include <unistd.h>

#include <cerrno>

#include "files/FileErrors.h"
#include "files/FileLoop.h"
#include "files/ThrowFileError.h"
#include "files/UnixFileInfo.h"

namespace UnixPlatform {

void DeleteFile(::FileLocation const& path) {
    if (path.Empty()) {
        throw FileNotFoundError(path, 0);
    }
    if (::unlink(path.Text()) != 0) {
        ThrowFileError(path, errno);
    }
}

void DeleteDirectory(::FileLocation const& path) {
    if (!UnixPlatform::Look(path).IsDirectory()) {
        throw DirectoryNotFoundError(path.LogString(), 0);
    }
    if (::rmdir(path.Text()) != 0) {
        ThrowFileError(path, errno);
    }
}

void ForceNonexistence(::FileLocation const& path) {
    UnixFileInfo const info = UnixPlatform::Look(path);
    switch (info.GetStatus()) {
        case FileStats::absent:
        case FileStats::dangling:
            return;
        case FileStats::link:
            // Removed as a link, never through it.
            UnixPlatform::DeleteFile(path);
            return;
        case FileStats::plain:
            break;
    }
    if (info.IsFile()) {
        UnixPlatform::DeleteFile(path);
    } else if (info.IsDirectory()) {
        UnixPlatform::DeleteDirectory(path);
    }
}

void DeleteContents(::FileLocation const& path) {
    if (UnixPlatform::Look(path).IsLink()) {
        throw DirectoryNotFoundError(path.LogString(), 0);
    }
    // With tryToGet the loop shows dangling links too, so that they go with the rest.
    for (::FileLoop loop(path, nullptr, true); !loop.Finished(); ++loop) {
        ::FileItem const& entry = *loop;
        ::FileLocation const location = entry.Location();
        if (entry.IsLink()) {
            UnixPlatform::DeleteFile(location);
        } else if (entry.IsDirectory()) {
            UnixPlatform::DeleteContents(location);
            UnixPlatform::DeleteDirectory(location);
        } else {
            UnixPlatform::ForceNonexistence(location);
        }
    }
}

void DeleteRecursive(::FileLocation const& path) {
    path.RequireNonEmpty();
    UnixFileInfo const info = UnixPlatform::Look(path);
    if (!info.Exists()) {
        throw DirectoryNotFoundError(path.LogString(), 0);
    }
    if (info.IsLink()) {
        UnixPlatform::DeleteFile(path);
        return;
    }
    UnixPlatform::DeleteContents(path);
    UnixPlatform::DeleteDirectory(path);
}

}  // namespace UnixPlatform

void DeleteFile(FileLocation const& path) {
    path.RequireNonEmpty();
    UnixPlatform::DeleteFile(path);
}

void DeleteDirectory(FileLocation const& path) {
    path.RequireNonEmpty();
    UnixPlatform::DeleteDirectory(path);
}

void ForceNonexistence(FileLocation const& path) {
    path.RequireNonEmpty();
    UnixPlatform::ForceNonexistence(path);
}

void DeleteContents(FileLocation const& path) {
    path.RequireNonEmpty();
    UnixPlatform::DeleteContents(path);
}

void DeleteRecursive(FileLocation const& path) {
    path.RequireNonEmpty();
    UnixPlatform::DeleteRecursive(path);
}

void ForceDeleteRecursive(FileLocation const& path) {
    path.RequireNonEmpty();
    if (UnixPlatform::Look(path).Exists()) {
        UnixPlatform::DeleteRecursive(path);
    }
}

void ForceDeleteContents(FileLocation const& path) {
    path.RequireNonEmpty();
    if (UnixPlatform::Look(path).Exists()) {
        UnixPlatform::DeleteContents(path);
    }
}
