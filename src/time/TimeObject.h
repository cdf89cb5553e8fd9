#pragma once
// A wall-clock reading: a date, a time of day, and the zone in which they were read.

#include "time/DateRecord.h"
#include "time/Instant.h"
#include "time/TimeOfDay.h"
#include "time/TimeZone.h"

class TimeObject {
  public:
    DateRecord date;
    TimeOfDay timeOfDay;
    TimeZone zone;

    // Reads 1970-01-01 00:00:00 at zone +0000.
    TimeObject();
    TimeObject(DateRecord const& d, TimeOfDay const& t, TimeZone z)
        : date(d), timeOfDay(t), zone(z) {}
    // The reading of the instant in the zone; fractions of a second are dropped, truncating
    // towards zero.
    TimeObject(Instant instant, TimeZone z);

    // Moves the reading by seconds, carrying into the date; the zone is untouched.
    TimeObject& operator+=(long long seconds);
    TimeObject operator+(long long seconds) const;
    TimeObject operator-(long long seconds) const;
    // Returns the seconds from other to this, comparing both in this object's zone.
    long long operator-(TimeObject const& other) const;
    // Compare the instants the two readings denote.
    bool operator<(TimeObject const& other) const;
    bool operator==(TimeObject const& other) const;
    bool operator!=(TimeObject const& other) const { return !(*this == other); }

    // Changes the zone and shifts the reading so that the instant stays the same.
    void SetTimeZone(TimeZone z);
    // Returns whether date and time of day are both valid.
    bool Valid() const { return date.Valid() && timeOfDay.Valid(); }
};
