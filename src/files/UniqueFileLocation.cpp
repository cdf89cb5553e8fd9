#include "files/UniqueFileLocation.h"

#include <stdlib.h>
#include <unistd.h>

#include <cstring>

#include "files/FileCreate.h"
#include "files/FileDelete.h"
#include "files/FileErrors.h"
#include "files/FileLocationFunctions.h"
#include "files/UnixFileInfo.h"

namespace {

enum UniqueKind { uniqueFile = 0, uniqueDirectory = 1 };

FileLocation CreateUnique(FileLocation const& directory, char const* prefix, UniqueKind kind) {
    directory.RequireNonEmpty();
    std::size_t const prefixLength = prefix ? std::strlen(prefix) : 0;
    if (prefixLength > 4088) {
        throw CreateUniqueFileLocationFailed(directory.LogString(), kind);
    }
    char buffer[4096];
    std::size_t length = directory.Platform().TextLength();
    if (length > 4088 - prefixLength) {
        length = 4088 - prefixLength;
    }
    std::memcpy(buffer, directory.Text(), length);
    buffer[length++] = '/';
    if (prefixLength) {
        std::memcpy(buffer + length, prefix, prefixLength);
        length += prefixLength;
    }
    std::memcpy(buffer + length, "XXXXXX", 7);
    if (kind == uniqueFile) {
        int const fd = ::mkstemp64(buffer);
        if (fd == -1) {
            throw CreateUniqueFileLocationFailed(directory.LogString(), kind);
        }
        // The empty file stays in place as the reservation of the name.
        ::close(fd);
    } else if (!::mkdtemp(buffer)) {
        throw CreateUniqueFileLocationFailed(directory.LogString(), kind);
    }
    return MakeFileLocation(static_cast<char const*>(buffer));
}

FileLocation DirectoryForHint(FileLocation const& hint) {
    UnixPlatform::UnixFileInfo info;
    info.Set(hint.Platform());
    return info.IsDirectory() ? hint : hint.Parent();
}

FileLocation FreeName(FileLocation const& directory) {
    FileLocation const location = CreateUniqueFileLocation(directory, "temp");
    ForceNonexistence(location);
    return location;
}

}  // namespace

FileLocation CreateUniqueFileLocation(FileLocation const& directory, char const* prefix) {
    return CreateUnique(directory, prefix, uniqueFile);
}

FileLocation CreateUniqueDirLocation(FileLocation const& directory, char const* prefix) {
    return CreateUnique(directory, prefix, uniqueDirectory);
}

FileLocation CreateUniqueFileLocation(char const* prefix) {
    FileLocation const directory = TemporaryFileDirLocation();
    CreateDirectoryTree(directory);
    return CreateUniqueFileLocation(directory, prefix);
}

FileLocation CreateUniqueFileLocationWithHint(FileLocation const& hint, char const* prefix) {
    return CreateUniqueFileLocation(DirectoryForHint(hint), prefix);
}

FileLocation LocationForTemporaryFile() {
    FileLocation const directory = TemporaryFileDirLocation();
    CreateDirectoryTree(directory);
    return FreeName(directory);
}

FileLocation LocationForTemporaryFile(FileLocation const& hint) {
    return FreeName(DirectoryForHint(hint));
}

bool MakeTemporaryFileLocation(FileLocation& result, char const* prefix) {
    try {
        result = CreateUniqueFileLocation(prefix ? prefix : "ketral");
        return true;
    } catch (...) {
        return false;
    }
}
