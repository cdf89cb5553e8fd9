#pragma once
// An offset east of UTC, held both in seconds (for calendar arithmetic) and in microseconds (for
// the conversion to an Instant).

#include <cstdint>

// The two fields always hold the same offset; construct through the seconds to keep them so.
class TimeZone {
  public:
    std::int32_t seconds;
    std::int64_t microseconds;

    TimeZone() : seconds(0), microseconds(0) {}
    explicit TimeZone(std::int32_t offsetSeconds)
        : seconds(offsetSeconds),
          microseconds(static_cast<std::int64_t>(offsetSeconds) * 1000000) {}

    // Returns the offset of the local zone at the present moment, read anew at each call so that
    // a change of daylight saving time shows at once.
    static TimeZone Local();

    bool operator==(TimeZone const& other) const {
        return seconds == other.seconds && microseconds == other.microseconds;
    }
    bool operator!=(TimeZone const& other) const { return !(*this == other); }
};
