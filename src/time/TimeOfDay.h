#pragma once
// A time of day on a 24-hour clock, with whole seconds and no leap second.

#include <cstdint>

// Hour, minute and second. Arithmetic wraps around midnight silently and leaves no carry.
class TimeOfDay {
  public:
    std::uint8_t hour;
    std::uint8_t minute;
    std::uint8_t second;

    TimeOfDay() : hour(0), minute(0), second(0) {}
    TimeOfDay(std::uint8_t h, std::uint8_t m, std::uint8_t s) : hour(h), minute(m), second(s) {}

    // Returns whether hour is at most 23 and minute and second below 60.
    bool Valid() const { return hour <= 23 && minute < 60 && second < 60; }
    // Returns the seconds since midnight.
    unsigned long SecondOfDay() const {
        return static_cast<unsigned long>(hour) * 3600 + minute * 60UL + second;
    }
    // Sets the time from a count of seconds, taken modulo one day.
    void SetSecondOfDay(unsigned long seconds);

    // Move by seconds, wrapping at midnight; a negative amount moves the other way.
    TimeOfDay& operator+=(unsigned long seconds);
    TimeOfDay& operator-=(unsigned long seconds);
    TimeOfDay& operator+=(long seconds);
    TimeOfDay& operator-=(long seconds);

    // Returns the difference in seconds within the day.
    long operator-(TimeOfDay const& other) const {
        return static_cast<long>(SecondOfDay()) - static_cast<long>(other.SecondOfDay());
    }
    bool operator==(TimeOfDay const& other) const {
        return hour == other.hour && minute == other.minute && second == other.second;
    }
    bool operator!=(TimeOfDay const& other) const { return !(*this == other); }
    bool operator<(TimeOfDay const& other) const { return SecondOfDay() < other.SecondOfDay(); }
};
