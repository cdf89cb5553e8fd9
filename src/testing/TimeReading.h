#pragma once
// Time values written the way a reader of a test expects them: year first, zone last.

#include <cstdint>

#include "time/TimeObject.h"

// Returns the reading of the given fields; zone is the offset east of UTC in seconds.
inline TimeObject Reading(std::uint32_t year, Month month, std::uint8_t day, std::uint8_t hour,
                          std::uint8_t minute, std::uint8_t second, std::int32_t zone = 0) {
    return TimeObject(DateRecord(day, month, year), TimeOfDay(hour, minute, second),
                      TimeZone(zone));
}
