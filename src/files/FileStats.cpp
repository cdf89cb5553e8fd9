#include "files/FileStats.h"

#include <cerrno>

int FileStats::get(char const* path) {
    if (::lstat64(path, &own) != 0) {
        int const code = errno;
        own = {};
        target = {};
        status = absent;
        return code;
    }
    if (!S_ISLNK(own.st_mode)) {
        target = own;
        status = plain;
        return 0;
    }
    if (::stat64(path, &target) != 0) {
        int const code = errno;
        target = {};
        status = dangling;
        return code;
    }
    status = link;
    return 0;
}
