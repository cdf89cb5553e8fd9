#include "time/DateRecord.h"

bool DateRecord::IsLeapYear(unsigned long year) {
    if (year % 4 != 0) return false;
    if (year % 100 != 0) return true;
    return year % 400 == 0;
}

unsigned long DateRecord::DaysIn(unsigned long year) {
    return IsLeapYear(year) ? 366 : 365;
}

unsigned long DateRecord::DaysBefore(unsigned long year) {
    if (year == 0) return 0;
    unsigned long const y = year - 1;
    return year * 365 + y / 4 + 1 + y / 400 - y / 100;
}

unsigned long DateRecord::YearOf(unsigned long absoluteDay) {
    if (absoluteDay == 0) return 0;
    unsigned long const n = absoluteDay - 1;
    unsigned long const a = n - n / 146097;
    unsigned long const b = a + a / 36524;
    unsigned long const c = b - b / 1461;
    return c / 365;
}

unsigned long DateRecord::AbsoluteDay() const {
    return DaysBefore(year) + DayOfYear();
}

void DateRecord::SetAbsoluteDay(unsigned long absoluteDay) {
    unsigned long const y = YearOf(absoluteDay);
    year = static_cast<std::uint32_t>(y);
    SetDayOfYear(static_cast<unsigned short>(absoluteDay - DaysBefore(y)));
}

unsigned short DateRecord::DayOfYear() const {
    return static_cast<unsigned short>(day + ::DaysBefore(month, IsLeapYear(year)) - 1);
}

void DateRecord::SetDayOfYear(unsigned short dayOfYear) {
    bool const leap = IsLeapYear(year);
    month = MonthOf(dayOfYear, leap);
    day = static_cast<std::uint8_t>(dayOfYear + 1 - ::DaysBefore(month, leap));
}

::DayOfWeek DateRecord::DayOfWeek() const {
    return static_cast<::DayOfWeek>((AbsoluteDay() + 6) % 7);
}

bool DateRecord::Valid() const {
    if (month < January || month > December) return false;
    return day != 0 && day <= ::DaysIn(month, IsLeapYear(year));
}

bool DateRecord::operator<(DateRecord const& other) const {
    if (year != other.year) return year < other.year;
    if (month != other.month) return month < other.month;
    return day < other.day;
}

long DateRecord::operator-(DateRecord const& other) const {
    return static_cast<long>(AbsoluteDay() - other.AbsoluteDay());
}

DateRecord& DateRecord::operator+=(unsigned long days) {
    SetAbsoluteDay(AbsoluteDay() + days);
    return *this;
}

DateRecord& DateRecord::operator-=(unsigned long days) {
    SetAbsoluteDay(AbsoluteDay() - days);
    return *this;
}

DateRecord& DateRecord::operator+=(long days) {
    if (days < 0) return *this -= 0UL - static_cast<unsigned long>(days);
    return *this += static_cast<unsigned long>(days);
}

DateRecord& DateRecord::operator-=(long days) {
    if (days < 0) return *this += 0UL - static_cast<unsigned long>(days);
    return *this -= static_cast<unsigned long>(days);
}

DateRecord operator+(DateRecord date, unsigned long days) {
    return date += days;
}

DateRecord operator+(unsigned long days, DateRecord date) {
    return date += days;
}

DateRecord operator-(DateRecord date, unsigned long days) {
    return date -= days;
}
