#pragma once
// A calendar date in the proleptic Gregorian calendar, with year 0 as a leap year, and the
// arithmetic on it through the absolute day number (day 0 is 0000-01-01).

#include <cstdint>

#include "time/Month.h"

// A day, a month and a full year number. Nothing validates on construction; Valid() is a question
// that callers ask. Arithmetic wraps silently when the year leaves its 32-bit field.
class DateRecord {
  public:
    std::uint8_t day;
    Month month;
    std::uint32_t year;

    // Reads all zero, which is no valid date.
    DateRecord() : day(0), month(static_cast<Month>(0)), year(0) {}
    DateRecord(std::uint8_t d, Month m, std::uint32_t y) : day(d), month(m), year(y) {}

    // Returns whether the year is a leap year by the Gregorian rule; year 0 is one.
    static bool IsLeapYear(unsigned long year);
    // Returns 365 or 366.
    static unsigned long DaysIn(unsigned long year);
    // Returns the days from the first day of year 0 to the first day of the year.
    static unsigned long DaysBefore(unsigned long year);
    // Returns the year that holds the absolute day.
    static unsigned long YearOf(unsigned long absoluteDay);

    // Returns the count of days since 0000-01-01; 1970-01-01 is day 719528.
    unsigned long AbsoluteDay() const;
    // Sets all three fields from an absolute day; the inverse of AbsoluteDay.
    void SetAbsoluteDay(unsigned long absoluteDay);
    // Returns the day within the year, 0 for the first of January.
    unsigned short DayOfYear() const;
    // Sets month and day from a day of the current year.
    void SetDayOfYear(unsigned short dayOfYear);
    ::DayOfWeek DayOfWeek() const;
    // Returns whether the month is 1 to 12 and the day exists in it. The year is not limited.
    bool Valid() const;

    bool operator==(DateRecord const& other) const {
        return day == other.day && month == other.month && year == other.year;
    }
    bool operator!=(DateRecord const& other) const { return !(*this == other); }
    // Orders by year, then month, then day.
    bool operator<(DateRecord const& other) const;
    // Returns the difference in days.
    long operator-(DateRecord const& other) const;

    // Move by days through the absolute day; a negative amount moves the other way.
    DateRecord& operator+=(unsigned long days);
    DateRecord& operator-=(unsigned long days);
    DateRecord& operator+=(long days);
    DateRecord& operator-=(long days);
};

DateRecord operator+(DateRecord date, unsigned long days);
DateRecord operator+(unsigned long days, DateRecord date);
DateRecord operator-(DateRecord date, unsigned long days);
