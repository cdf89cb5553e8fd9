#pragma once
// Time values written the way a reader of a test expects them: year first, zone last.

#include <gtest/gtest.h>

#include <cstdint>
#include <string>

#include "time/TimeObject.h"

// Returns the reading of the given fields; zone is the offset east of UTC in seconds.
inline TimeObject Reading(std::uint32_t year, Month month, std::uint8_t day, std::uint8_t hour,
                          std::uint8_t minute, std::uint8_t second, std::int32_t zone = 0) {
    return TimeObject(DateRecord(day, month, year), TimeOfDay(hour, minute, second),
                      TimeZone(zone));
}

// Checks that two readings agree field by field, not only as instants (TimeObject's own
// comparison would take 08:00 +0100 and 07:00 +0000 for equal).
inline void ExpectSameReading(TimeObject const& got, TimeObject const& expected,
                              std::string const& context = std::string()) {
    EXPECT_EQ(got.date, expected.date) << context;
    EXPECT_EQ(got.timeOfDay, expected.timeOfDay) << context;
    EXPECT_EQ(got.zone, expected.zone) << context;
}
