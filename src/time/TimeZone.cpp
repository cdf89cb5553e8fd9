#include "time/TimeZone.h"

#include <ctime>

TimeZone TimeZone::Local() {
    std::time_t const now = std::time(nullptr);
    std::tm fields{};
    localtime_r(&now, &fields);
    return TimeZone(static_cast<std::int32_t>(fields.tm_gmtoff));
}
