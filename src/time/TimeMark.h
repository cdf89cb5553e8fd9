#pragma once
// A point on a process-local time line: microseconds since the first TimeMark::Now() of the
// process. It follows the wall clock and is not monotonic.

#include <cstdint>

#include "time/TimeInterval.h"

class TimeMark {
  public:
    TimeMark() : count(0) {}
    explicit TimeMark(std::int64_t microseconds) : count(microseconds) {}

    // Returns the wall clock (CLOCK_REALTIME) minus its reading at the first call. The first call
    // stores the base without a lock, so it must happen before threads compete for it.
    static TimeMark Now();

    // Returns the count of microseconds since the base.
    std::int64_t Microseconds() const { return count; }

    friend TimeMark operator+(TimeMark a, TimeInterval b) {
        return TimeMark(TimeInterval::Wrap(static_cast<std::uint64_t>(a.count) +
                                           static_cast<std::uint64_t>(b.Microseconds())));
    }
    friend TimeInterval operator-(TimeMark a, TimeMark b) {
        return TimeInterval(TimeInterval::Wrap(static_cast<std::uint64_t>(a.count) -
                                               static_cast<std::uint64_t>(b.count)));
    }
    friend bool operator==(TimeMark a, TimeMark b) { return a.count == b.count; }
    friend bool operator!=(TimeMark a, TimeMark b) { return a.count != b.count; }
    friend bool operator<(TimeMark a, TimeMark b) { return a.count < b.count; }
    friend bool operator<=(TimeMark a, TimeMark b) { return a.count <= b.count; }

  private:
    std::int64_t count;
};
