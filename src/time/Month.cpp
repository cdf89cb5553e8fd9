#include "time/Month.h"

namespace {

unsigned short const daysInMonth[13] = {0, 31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
unsigned short const daysBeforeMonth[13] = {0,   0,   31,  59,  90,  120, 151,
                                            181, 212, 243, 273, 304, 334};
char const* const shortMonthNames[13] = {"",    "Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                         "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
char const* const longMonthNames[13] = {"",        "January",  "February", "March",  "April",
                                        "May",     "June",     "July",     "August", "September",
                                        "October", "November", "December"};
char const* const twoDigitMonths[13] = {"",   "01", "02", "03", "04", "05", "06",
                                        "07", "08", "09", "10", "11", "12"};
char const* const shortDayNames[7] = {"Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"};
char const* const longDayNames[7] = {"Sunday",   "Monday", "Tuesday", "Wednesday",
                                     "Thursday", "Friday", "Saturday"};

bool IsMonth(Month month) {
    return month >= January && month <= December;
}

}  // namespace

unsigned short DaysIn(Month month, bool leap) {
    if (!IsMonth(month)) return 0;
    return static_cast<unsigned short>(daysInMonth[month] + (leap && month == February ? 1 : 0));
}

unsigned short DaysBefore(Month month, bool leap) {
    if (!IsMonth(month)) return 0;
    return static_cast<unsigned short>(daysBeforeMonth[month] + (leap && month >= March ? 1 : 0));
}

Month MonthOf(unsigned short dayOfYear, bool leap) {
    if (leap && dayOfYear >= 59) --dayOfYear;
    for (unsigned m = February; m <= December; ++m) {
        if (dayOfYear < daysBeforeMonth[m]) return static_cast<Month>(m - 1);
    }
    return December;
}

char const* MonthToText(Month month) {
    return IsMonth(month) ? shortMonthNames[month] : "";
}

char const* FullNameOfMonth(Month month) {
    return IsMonth(month) ? longMonthNames[month] : "";
}

char const* MonthToTwoDigits(Month month) {
    return IsMonth(month) ? twoDigitMonths[month] : "";
}

char const* DayOfWeekToText(DayOfWeek day) {
    return day <= Saturday ? shortDayNames[day] : "";
}

char const* FullNameOfDayOfWeek(DayOfWeek day) {
    return day <= Saturday ? longDayNames[day] : "";
}
