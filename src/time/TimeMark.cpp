#include "time/TimeMark.h"

#include <ctime>

namespace {
bool haveBase = false;
std::int64_t base = 0;
}  // namespace

TimeMark TimeMark::Now() {
    timespec reading{};
    clock_gettime(CLOCK_REALTIME, &reading);
    std::int64_t const now =
        static_cast<std::int64_t>(reading.tv_sec) * 1000000 + reading.tv_nsec / 1000;
    if (!haveBase) {
        base = now;
        haveBase = true;
    }
    return TimeMark(now - base);
}
