#pragma once
// What stands at a path, with care for symbolic links: the record of the path itself (lstat)
// and the record of what it leads to (stat), and which of the two cases holds.

#include <sys/stat.h>

struct FileStats {
    enum Status {
        plain = 0,     // not a link; both records are the path's own
        link = 1,      // a link whose target was read
        dangling = 2,  // a link without a target; the target record is cleared
        absent = 3,    // nothing there, or not looked at yet; both records are cleared
    };

    Status status = absent;
    struct stat64 target = {};
    struct stat64 own = {};

    // Looks at path and fills the records. Returns 0, or the errno of the failed call.
    int get(char const* path);
};
