#include "threads/MilliSecondSleep.h"

#include <unistd.h>

void MilliSecondSleep(unsigned long ms) {
    if (ms / 1000 != 0) sleep(static_cast<unsigned>(ms / 1000));
    usleep(static_cast<useconds_t>((ms % 1000) * 1000));
}
