#include "files/ThrowFileError.h"

#include <cerrno>

#include "files/FileErrors.h"
#include "files/FileLocation.h"

void ThrowMappedFileError(FileErrorColumn column, std::string const& first, int code) {
    bool const reader = column == FileErrorColumn::reader;
    bool const writing =
        column == FileErrorColumn::writingPath || column == FileErrorColumn::writer;
    switch (code) {
        case 0:
            return;
        case EPERM:
        case EACCES:
            throw FilePermissionError(first, code);
        case ENOENT:
            if (!reader) throw FileNotFoundError(first, code);
            break;
        case EAGAIN:
            if (!reader) throw FileLockError(first, code);
            break;
        case ENOMEM:
        case ENFILE:
        case EMFILE:
            if (!reader) throw FileResourceError(first, code);
            break;
        case EEXIST:
            if (writing) throw FileExistsError(first, code);
            break;
        case ENOTDIR:
        case ENAMETOOLONG:
            if (!reader) throw DirectoryNotFoundError(first, code);
            break;
        case EINVAL:
            if (column == FileErrorColumn::writer || reader) throw FileSeekError(first, code);
            break;
        case ENOSPC:
            if (writing) throw FileDiskFullError(first, code);
            break;
        case endOfFileErrorCode:
            if (reader) throw EndOfFileError(first, code);
            break;
        default:
            break;
    }
    throw FileIOError(first, code);
}

void ThrowFileError(FileLocation const& location, int code) {
    ThrowFileError(location.Platform(), code);
}

void ThrowFileError(UnixPlatform::FileLocation const& location, int code) {
    if (code != 0) {
        ThrowMappedFileError(FileErrorColumn::general, location.LogString(), code);
    }
}
