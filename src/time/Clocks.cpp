#include "time/Clocks.h"

#include <ctime>

TimeObject NowLocalTime() {
    return TimeObject(Instant::Now(), TimeZone::Local());
}

TimeObject NowGMT() {
    return TimeObject(Instant::Now(), TimeZone());
}

DateRecord Today(TimeZone zone) {
    return TimeObject(Instant::Now(), zone).date;
}

TimeZone TimeZone::Local() {
    std::time_t const now = std::time(nullptr);
    std::tm fields{};
    localtime_r(&now, &fields);
    return TimeZone(static_cast<std::int32_t>(fields.tm_gmtoff));
}
