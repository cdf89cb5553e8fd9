#include "files/FileMove.h"

#include <cerrno>
#include <cstdio>

#include "files/FileCopy.h"
#include "files/FileDelete.h"
#include "files/FileErrors.h"
#include "files/UnixFileInfo.h"

namespace UnixPlatform {

void MoveFile(::FileLocation const& from, ::FileLocation const& to) {
    from.RequireNonEmpty();
    to.RequireNonEmpty();
    UnixFileInfo const source = UnixPlatform::Look(from);
    if (!source.Exists()) {
        throw FileNotFoundError(from, 0);
    }
    if (UnixPlatform::Look(to).Exists()) {
        throw FileFoundError(to, 0);
    }
    if (std::rename(from.Text(), to.Text()) == 0) {
        return;
    }
    int const code = errno;
    if (code == EXDEV && source.IsFile()) {
        UnixPlatform::CopyFile(from, to);
        UnixPlatform::DeleteFile(from);
        return;
    }
    if (code == EXDEV && source.IsDirectory()) {
        ::CopyDirectoryContents(from, to);
        UnixPlatform::DeleteRecursive(from);
        return;
    }
    throw FileMoveError(from.LogString(), to.LogString(), code);
}

void ForceMoveFile(::FileLocation const& from, ::FileLocation const& to) {
    UnixFileInfo const source = UnixPlatform::Look(from);
    if (!source.Exists()) {
        throw FileNotFoundError(from, 0);
    }
    UnixFileInfo const target = UnixPlatform::Look(to);
    if (!target.Exists()) {
        UnixPlatform::MoveFile(from, to);
        return;
    }
    if (source.IsFile() == target.IsFile()) {
        UnixPlatform::ForceNonexistence(to);
        UnixPlatform::MoveFile(from, to);
        return;
    }
    ::FileLocation const& directory = source.IsFile() ? to : from;
    throw DirectoryFoundError(directory.LogString(), 0);
}

}  // namespace UnixPlatform

void MoveFile(FileLocation const& from, FileLocation const& to) {
    from.RequireNonEmpty();
    to.RequireNonEmpty();
    UnixPlatform::MoveFile(from, to);
}

void ForceMoveFile(FileLocation const& from, FileLocation const& to) {
    from.RequireNonEmpty();
    to.RequireNonEmpty();
    UnixPlatform::ForceMoveFile(from, to);
}
