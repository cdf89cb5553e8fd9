#include "time/Instant.h"

#include <ctime>

#include "time/TimeObject.h"

namespace {

// Returns the absolute day of 1970-01-01, computed once on first use.
unsigned long EpochDay() {
    static unsigned long const day = DateRecord(1, January, 1970).AbsoluteDay();
    return day;
}

}  // namespace

Instant::Instant(TimeObject const& reading) {
    // Unsigned arithmetic, so that a year far outside any real use wraps instead of trapping.
    std::uint64_t const days = reading.date.AbsoluteDay() - EpochDay();
    std::uint64_t const seconds = reading.timeOfDay.SecondOfDay();
    count = TimeInterval::Wrap(days * 86400000000ULL + seconds * 1000000ULL -
                               static_cast<std::uint64_t>(reading.zone.microseconds));
}

Instant Instant::Now() {
    std::time_t const now = std::time(nullptr);
    std::tm fields{};
    localtime_r(&now, &fields);
    TimeObject reading(
        DateRecord(static_cast<std::uint8_t>(fields.tm_mday), static_cast<Month>(fields.tm_mon + 1),
                   static_cast<std::uint32_t>(fields.tm_year + 1900)),
        TimeOfDay(static_cast<std::uint8_t>(fields.tm_hour),
                  static_cast<std::uint8_t>(fields.tm_min),
                  static_cast<std::uint8_t>(fields.tm_sec)),
        TimeZone::Local());
    return Instant(reading);
}
