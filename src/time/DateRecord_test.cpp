#include "time/DateRecord.h"

#include <gtest/gtest.h>

#include <time.h>

#include <random>
#include <string>

namespace {

// An independent calendar walker: the date after the given one, by month lengths alone.
DateRecord NextDay(DateRecord date) {
    bool const leap = (date.year % 4 == 0 && date.year % 100 != 0) || date.year % 400 == 0;
    static int const lengths[13] = {0, 31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    int const length = lengths[date.month] + (leap && date.month == February ? 1 : 0);
    if (date.day < length) {
        ++date.day;
    } else if (date.month < December) {
        date.day = 1;
        date.month = static_cast<Month>(date.month + 1);
    } else {
        date.day = 1;
        date.month = January;
        ++date.year;
    }
    return date;
}

}  // namespace

TEST(DateRecord, AbsoluteDayAndSetAbsoluteDayAgreeOnEveryDayOfYears0To2400) {
    DateRecord walked(1, January, 0);
    unsigned long const end = DateRecord::DaysBefore(2401);
    for (unsigned long day = 0; day < end; ++day) {
        DateRecord set;
        set.SetAbsoluteDay(day);
        ASSERT_EQ(set, walked) << "day " << day;
        ASSERT_EQ(walked.AbsoluteDay(), day);
        ASSERT_TRUE(set.Valid());
        ASSERT_EQ(set.DayOfWeek(), static_cast<DayOfWeek>((day + 6) % 7));
        walked = NextDay(walked);
    }
    EXPECT_EQ(walked, DateRecord(1, January, 2401));
}

TEST(DateRecord, YearOfAndDaysBeforeAgreeAtTheEdgesOfEveryYear) {
    for (unsigned long year = 0; year <= 100000; ++year) {
        unsigned long const first = DateRecord::DaysBefore(year);
        ASSERT_EQ(DateRecord::YearOf(first), year);
        ASSERT_EQ(DateRecord::YearOf(first + DateRecord::DaysIn(year) - 1), year);
        ASSERT_EQ(DateRecord::DaysBefore(year + 1) - first, DateRecord::DaysIn(year));
    }
}

TEST(DateRecord, LeapYears) {
    struct {
        unsigned long year;
        bool leap;
    } const years[] = {{0, true},    {1, false},    {4, true},    {100, false},
                       {400, true},  {1900, false}, {2000, true}, {2023, false},
                       {2024, true}, {2100, false}, {2400, true}};
    for (auto const& y : years) {
        EXPECT_EQ(DateRecord::IsLeapYear(y.year), y.leap) << y.year;
        EXPECT_EQ(DateRecord::DaysIn(y.year), y.leap ? 366u : 365u) << y.year;
    }
}

TEST(DateRecord, ValidityTable) {
    struct {
        DateRecord date;
        bool valid;
    } const cases[] = {
        {DateRecord(31, January, 2000), true},
        {DateRecord(32, January, 2000), false},
        {DateRecord(29, February, 2000), true},
        {DateRecord(29, February, 1900), false},
        {DateRecord(0, March, 2000), false},
        {DateRecord(31, April, 2000), false},
        {DateRecord(1, static_cast<Month>(0), 2000), false},
        {DateRecord(1, static_cast<Month>(13), 2000), false},
        {DateRecord(31, December, 4000000000u), true},
    };
    for (auto const& c : cases) EXPECT_EQ(c.date.Valid(), c.valid) << int(c.date.day);
}

TEST(DateRecord, MovingAndDifferencesAgreeWithOrder) {
    std::mt19937_64 random(7);
    std::uniform_int_distribution<unsigned long> days(0, DateRecord::DaysBefore(10000));
    std::uniform_int_distribution<long> steps(-100000, 100000);
    for (int i = 0; i < 20000; ++i) {
        DateRecord a, b;
        a.SetAbsoluteDay(days(random));
        b.SetAbsoluteDay(days(random));
        ASSERT_EQ(a - b, static_cast<long>(a.AbsoluteDay()) - static_cast<long>(b.AbsoluteDay()));
        ASSERT_EQ(a < b, a.AbsoluteDay() < b.AbsoluteDay());
        long const step = steps(random);
        if (static_cast<long>(a.AbsoluteDay()) + step < 0) continue;
        DateRecord moved = a;
        moved += step;
        ASSERT_EQ(moved - a, step);
        moved -= step;
        ASSERT_EQ(moved, a);
        if (step >= 0) {
            ASSERT_EQ(a + static_cast<unsigned long>(step), static_cast<unsigned long>(step) + a);
            ASSERT_EQ(a + static_cast<unsigned long>(step) - static_cast<unsigned long>(step), a);
        }
    }
}

// The C library's calendar is the reference: every day of 1900 to 2100 (leap years of every
// kind, both century rules) must agree in month, day of the year, day of the week, absolute day
// and the names and digits of the month and day.
TEST(DateRecord, EveryDayAgreesWithTheCLibraryCalendar) {
    unsigned long const epochDay = DateRecord(1, January, 1970).AbsoluteDay();
    tm first = {};
    first.tm_year = 0;
    first.tm_mday = 1;
    time_t const start = timegm(&first);
    first.tm_year = 201;
    time_t const stop = timegm(&first);
    char text[32];
    for (time_t t = start; t < stop; t += 86400) {
        tm parts;
        ASSERT_NE(gmtime_r(&t, &parts), nullptr);
        unsigned long const year = static_cast<unsigned long>(parts.tm_year) + 1900;
        bool const leap = DateRecord::IsLeapYear(year);
        Month const month = static_cast<Month>(parts.tm_mon + 1);
        DateRecord const date(static_cast<std::uint8_t>(parts.tm_mday), month,
                              static_cast<std::uint32_t>(year));
        SCOPED_TRACE(std::to_string(year) + "-" + std::to_string(month) + "-" +
                     std::to_string(parts.tm_mday));
        ASSERT_EQ(MonthOf(static_cast<unsigned short>(parts.tm_yday), leap), month);
        ASSERT_EQ(date.DayOfYear(), parts.tm_yday);
        ASSERT_EQ(DaysBefore(month, leap) + parts.tm_mday - 1, parts.tm_yday);
        ASSERT_LE(parts.tm_mday, DaysIn(month, leap));
        tm tomorrow;
        time_t const next = t + 86400;
        gmtime_r(&next, &tomorrow);
        ASSERT_EQ(tomorrow.tm_mon != parts.tm_mon, parts.tm_mday == DaysIn(month, leap));
        DateRecord set(1, January, static_cast<std::uint32_t>(year));
        set.SetDayOfYear(static_cast<unsigned short>(parts.tm_yday));
        ASSERT_EQ(set, date);
        ASSERT_EQ(date.DayOfWeek(), static_cast<DayOfWeek>(parts.tm_wday));
        ASSERT_EQ(static_cast<long>(date.AbsoluteDay() - epochDay), t / 86400);
        // The process runs in the C locale, whose names are the English ones.
        strftime(text, sizeof text, "%b %B %m %a %A", &parts);
        ASSERT_EQ(std::string(MonthToText(month)) + " " + FullNameOfMonth(month) + " " +
                      MonthToTwoDigits(month) + " " + DayOfWeekToText(date.DayOfWeek()) + " " +
                      FullNameOfDayOfWeek(date.DayOfWeek()),
                  text);
    }
    for (unsigned notAMonth : {0u, 13u}) {
        EXPECT_STREQ(MonthToText(static_cast<Month>(notAMonth)), "");
        EXPECT_STREQ(FullNameOfMonth(static_cast<Month>(notAMonth)), "");
        EXPECT_EQ(DaysIn(static_cast<Month>(notAMonth), true), 0);
    }
    EXPECT_STREQ(DayOfWeekToText(static_cast<DayOfWeek>(7)), "");
}
