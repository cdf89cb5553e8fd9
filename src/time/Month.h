#pragma once
// Months and days of the week: their numbering, lengths and names.

#include <cstdint>

// January = 1 up to December = 12; 0 is not a month.
enum Month : std::uint32_t {
    January = 1,
    February,
    March,
    April,
    May,
    June,
    July,
    August,
    September,
    October,
    November,
    December
};

// Sunday = 0 up to Saturday = 6.
enum DayOfWeek : std::uint32_t {
    Sunday = 0,
    Monday,
    Tuesday,
    Wednesday,
    Thursday,
    Friday,
    Saturday
};

// Returns the number of days in the month; February has 29 when leap. A value that is no month
// gives 0.
unsigned short DaysIn(Month month, bool leap);

// Returns the days of the year before the first of the month; one more from March on when leap.
// A value that is no month gives 0.
unsigned short DaysBefore(Month month, bool leap);

// Returns the month that holds the day of the year (0 for the first of January). In a leap year
// day 59 and later are first reduced by one, which folds 29 February onto the 28th; past the
// year's end the result is December.
Month MonthOf(unsigned short dayOfYear, bool leap);

// Return the short name ("Jan"), the full name ("January") and the two digits ("01") of a month.
// Month 0, and any value that is no month, gives the empty text.
char const* MonthToText(Month month);
char const* FullNameOfMonth(Month month);
char const* MonthToTwoDigits(Month month);

// Return the short name ("Sun") and the full name ("Sunday") of a day; the empty text for a value
// that is no day.
char const* DayOfWeekToText(DayOfWeek day);
char const* FullNameOfDayOfWeek(DayOfWeek day);
