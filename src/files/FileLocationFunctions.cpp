#include "files/FileLocationFunctions.h"

#include <sys/stat.h>
#include <sys/statvfs.h>

#include <cerrno>
#include <cstring>
#include <limits>

#include "files/FileErrors.h"
#include "files/ThrowFileError.h"
#include "text/unicode/LocaleConversion.h"

bool IsAbsolutePath(char const* path) {
    return path && path[0] == '/';
}

FileLocation MakeFileLocation(UStringRef<UTF8> path) {
    AutoUString<Local8Bit> const local = UnixPlatform::ToLocal8Bit(path);
    UnixPlatform::FileLocation location;
    location.SetFullPathName(local.begin, local.Length());
    return FileLocation(location);
}

FileLocation MakeFileLocation(char const* path) {
    UnixPlatform::FileLocation location;
    if (path) {
        location.SetFullPathName(path, std::strlen(path));
    }
    return FileLocation(location);
}

FileLocation MakeFileLocation(ConstData path) {
    UnixPlatform::FileLocation location;
    location.SetFullPathName(path.Chars(), path.Size());
    return FileLocation(location);
}

FileLocation MakeRelativeFileLocation(FileLocation const& base, char const* path) {
    base.RequireNonEmpty();
    return FileLocation(base.Platform().Relative(path));
}

char const* MakeFileLocationWithWildcard(char const* path, FileLocation& result) {
    std::size_t const length = std::strlen(path);
    bool wildcard = false;
    char const* scan = path + length;
    while (scan != path && scan[-1] != '/') {
        --scan;
        wildcard = wildcard || *scan == '*' || *scan == '?';
    }
    if (!wildcard || scan == path) {
        result = MakeFileLocation(path);
        return nullptr;
    }
    result = MakeFileLocation(ConstData(path, scan - 1));
    return scan;
}

bool EqualOrDescendant(FileLocation const& ancestor, FileLocation const& other) {
    ancestor.RequireNonEmpty();
    other.RequireNonEmpty();
    FileLocation step = other;
    for (;;) {
        if (step == ancestor) {
            return true;
        }
        if (step.IsRoot()) {
            return false;
        }
        step = step.Parent();
    }
}

bool IsDescendant(FileLocation const& ancestor, FileLocation const& other) {
    if (!ancestor.Empty() && !other.Empty() && ancestor == other) {
        return false;
    }
    return EqualOrDescendant(ancestor, other);
}

std::int64_t CalculateFreeSpace(FileLocation const& location) {
    struct statvfs64 record;
    if (::statvfs64(location.Text(), &record) != 0) {
        return -1;
    }
    unsigned long long const fragment = record.f_frsize;
    unsigned long long const blocks = record.f_bfree;
    unsigned long long const limit =
        static_cast<unsigned long long>(std::numeric_limits<std::int64_t>::max());
    if (fragment != 0 && blocks > limit / fragment) {
        return -1;
    }
    return static_cast<std::int64_t>(fragment * blocks);
}

void SetFileReadOnly(FileLocation const& location, bool readOnly) {
    struct stat64 record;
    if (::stat64(location.Text(), &record) != 0) {
        ThrowFileError(location, errno);
    }
    mode_t const writeBits = S_IWUSR | S_IWGRP | S_IWOTH;
    mode_t mode = record.st_mode & 07777;
    if (readOnly) {
        mode &= ~writeBits;
    } else {
        // The umask can only be read by setting it; it is put back at once.
        mode_t const mask = ::umask(0);
        ::umask(mask);
        mode = (mode | writeBits) & ~mask;
    }
    if (::chmod(location.Text(), mode) != 0) {
        ThrowFileError(location, errno);
    }
}

FileLocation UISessionDefaultDirectory(std::string const& user) {
    std::string path = "/var/tmp/ZOL/ClientUI";
    if (!user.empty()) {
        path += "/.";
        path += user;
    }
    return MakeFileLocation(path.c_str());
}

FileLocation TemporaryFileDirLocation() {
    return MakeFileLocation("/tmp");
}
