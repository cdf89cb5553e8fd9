#include "files/FileTime.h"

long long InstantToFileTime(Instant const& time) {
    long long const microseconds = time.Microseconds();
    long long seconds = microseconds / 1000000;
    if (microseconds % 1000000 < 0) {
        --seconds;
    }
    return seconds;
}

Instant FileTimeToInstant(long long const& seconds) {
    return Instant(static_cast<std::int64_t>(seconds) * 1000000);
}
