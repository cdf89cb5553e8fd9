#include "time/TimeObject.h"

namespace {
long long const secondsPerDay = 86400;
}

TimeObject::TimeObject() : date(1, January, 1970) {}

TimeObject::TimeObject(Instant instant, TimeZone z) : TimeObject() {
    *this += instant.Microseconds() / 1000000;
    SetTimeZone(z);
}

TimeObject& TimeObject::operator+=(long long seconds) {
    long long days = seconds / secondsPerDay;
    long long remainder = seconds % secondsPerDay;
    if (remainder < 0) {
        remainder += secondsPerDay;
        --days;
    }
    date += static_cast<long>(days);
    if (static_cast<long long>(timeOfDay.SecondOfDay()) + remainder < secondsPerDay) {
        timeOfDay += static_cast<unsigned long>(remainder);
    } else {
        date += 1UL;
        timeOfDay -= static_cast<unsigned long>(secondsPerDay - remainder);
    }
    return *this;
}

TimeObject TimeObject::operator+(long long seconds) const {
    TimeObject result(*this);
    return result += seconds;
}

TimeObject TimeObject::operator-(long long seconds) const {
    TimeObject result(*this);
    return result += static_cast<long long>(0ULL - static_cast<unsigned long long>(seconds));
}

long long TimeObject::operator-(TimeObject const& other) const {
    TimeObject converted(other);
    converted.SetTimeZone(zone);
    return secondsPerDay * (date - converted.date) + (timeOfDay - converted.timeOfDay);
}

bool TimeObject::operator<(TimeObject const& other) const {
    TimeObject converted(other);
    converted.SetTimeZone(zone);
    if (date != converted.date) return date < converted.date;
    return timeOfDay < converted.timeOfDay;
}

bool TimeObject::operator==(TimeObject const& other) const {
    TimeObject converted(other);
    converted.SetTimeZone(zone);
    return date == converted.date && timeOfDay == converted.timeOfDay;
}

void TimeObject::SetTimeZone(TimeZone z) {
    *this += static_cast<long long>(z.seconds) - zone.seconds;
    zone = z;
}
