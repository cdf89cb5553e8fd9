#include "files/Seek64.h"

#include <sys/types.h>
#include <unistd.h>

long long Seek64(unsigned int fd, unsigned long long offset, unsigned int whence) {
    return ::lseek64(static_cast<int>(fd), static_cast<off64_t>(offset), static_cast<int>(whence));
}
