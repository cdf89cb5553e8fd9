#pragma once
// The positioned seek under every read and write of the file layer.

#include <sys/types.h>
#include <unistd.h>

// Returns the new offset from lseek64, or -1 with errno set.
inline long long Seek64(unsigned int fd, unsigned long long offset, unsigned int whence) {
    return ::lseek64(static_cast<int>(fd), static_cast<off64_t>(offset), static_cast<int>(whence));
}
