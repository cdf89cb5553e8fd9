#pragma once
// A time of day with the zone in which it was read, with no date.

#include "time/TimeOfDay.h"
#include "time/TimeZone.h"

class ZonedTimeOfDay {
  public:
    TimeOfDay timeOfDay;
    TimeZone zone;

    ZonedTimeOfDay() = default;
    ZonedTimeOfDay(TimeOfDay const& t, TimeZone z) : timeOfDay(t), zone(z) {}

    // Changes the zone and shifts the time of day with it, wrapping at midnight.
    void SetTimeZone(TimeZone z) {
        timeOfDay += static_cast<long>(z.seconds) - static_cast<long>(zone.seconds);
        zone = z;
    }
};

// Returns whether the two denote the same moment of the day: the first is converted into the
// zone of the second and the times compared.
inline bool operator==(ZonedTimeOfDay first, ZonedTimeOfDay const& second) {
    first.SetTimeZone(second.zone);
    return first.timeOfDay == second.timeOfDay;
}
inline bool operator!=(ZonedTimeOfDay const& first, ZonedTimeOfDay const& second) {
    return !(first == second);
}
