#pragma once
// A point on the absolute time line: microseconds since 1970-01-01 00:00:00 UTC.

#include <cstdint>

#include "time/TimeInterval.h"

class TimeObject;

// Adds, subtracts and compares as a plain signed 64-bit count; an Instant minus an Instant is a
// TimeInterval. Times before 1970 are negative.
class Instant {
  public:
    Instant() : count(0) {}
    explicit Instant(std::int64_t microseconds) : count(microseconds) {}
    // The instant that a wall-clock reading denotes in its own zone.
    explicit Instant(TimeObject const& reading);

    // Returns the present moment, read through time() and localtime_r(); its resolution is one
    // second.
    static Instant Now();

    // Returns the count of microseconds since 1970-01-01 00:00:00 UTC.
    std::int64_t Microseconds() const { return count; }

    Instant& operator+=(TimeInterval interval) {
        count = TimeInterval::Wrap(static_cast<std::uint64_t>(count) +
                                   static_cast<std::uint64_t>(interval.Microseconds()));
        return *this;
    }
    Instant& operator-=(TimeInterval interval) {
        count = TimeInterval::Wrap(static_cast<std::uint64_t>(count) -
                                   static_cast<std::uint64_t>(interval.Microseconds()));
        return *this;
    }

    friend Instant operator+(Instant a, TimeInterval b) { return a += b; }
    friend Instant operator+(TimeInterval a, Instant b) { return b += a; }
    friend Instant operator-(Instant a, TimeInterval b) { return a -= b; }
    friend TimeInterval operator-(Instant a, Instant b) {
        return TimeInterval(TimeInterval::Wrap(static_cast<std::uint64_t>(a.count) -
                                               static_cast<std::uint64_t>(b.count)));
    }
    friend bool operator==(Instant a, Instant b) { return a.count == b.count; }
    friend bool operator!=(Instant a, Instant b) { return a.count != b.count; }
    friend bool operator<(Instant a, Instant b) { return a.count < b.count; }
    friend bool operator>(Instant a, Instant b) { return a.count > b.count; }
    friend bool operator<=(Instant a, Instant b) { return a.count <= b.count; }
    friend bool operator>=(Instant a, Instant b) { return a.count >= b.count; }

  private:
    std::int64_t count;
};
