#pragma once
// The positioned seek under every read and write of the file layer.

// Returns the new offset from lseek64, or -1 with errno set.
long long Seek64(unsigned int fd, unsigned long long offset, unsigned int whence);
