#include "localized/DeadlineText.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <string>

#include "testing/ScopedSettings.h"
#include "testing/ScopedTranslation.h"
#include "testing/TestText.h"
#include "text/unicode/UnicodeErrors.h"

TEST(FormattedDeadline, WordsEachRangeAndItsEdges) {
    struct Row {
        std::int64_t microseconds;
        bool forceRun;
        bool fromNow;
        char const* expected;
    };
    std::int64_t const minute = 60000000;
    Row const rows[] = {
        // Past deadlines.
        {-1, false, false, "Overdue"},
        {-1, false, true, "Overdue"},
        {-1, true, true, "Running..."},
        {-1, true, false, "0 seconds"},
        {std::numeric_limits<std::int64_t>::min(), true, false, "0 seconds"},
        // Up to five minutes: "Now", or minutes and seconds when forced.
        {0, false, false, "Now"},
        {0, false, true, "Now"},
        {300000000, false, true, "Now"},
        {0, true, false, "0 seconds"},
        {999999, true, false, "0 seconds"},
        {1000000, true, false, "1 second"},
        {2000000, true, false, "2 seconds"},
        {59999999, true, false, "59 seconds"},
        {minute, true, false, "1 minute, 0 seconds"},
        {61000000, true, false, "1 minute, 1 second"},
        {62000000, true, false, "1 minute, 2 seconds"},
        {2 * minute + 1000000, true, false, "2 minutes, 1 second"},
        {4 * minute + 30000000, true, false, "4 minutes, 30 seconds"},
        {300000000, true, false, "5 minutes, 0 seconds"},
        {0, true, true, "0 seconds from now"},
        {61000000, true, true, "1 minute, 1 second from now"},
        // Whole minutes up to an hour; the forced form ends at five minutes.
        {300000001, false, false, "5 minutes"},
        {300000001, true, false, "5 minutes"},
        {300000001, false, true, "5 minutes from now"},
        {3599999999, false, false, "59 minutes"},
        {3600000000, false, false, "60 minutes"},
        // Rounded hours up to a day; half an hour doesn't round up.
        {3600000001, false, false, "1 hour"},
        {5400000000, false, false, "1 hour"},
        {5400000001, true, false, "2 hours"},
        {86400000000, false, false, "24 hours"},
        {82800000000 + 1800000001, false, false, "24 hours"},
        {7200000000, false, true, "2 hours from now"},
        // Rounded days beyond.
        {86400000001, false, false, "1 day"},
        {129600000000, false, false, "1 day"},
        {129600000001, false, false, "2 days"},
        {86400000001, false, true, "1 day from now"},
        {std::numeric_limits<std::int64_t>::max(), false, false, "106751991 days"},
    };
    for (Row const& row : rows) {
        SCOPED_TRACE(::testing::Message() << row.microseconds << (row.forceRun ? " forced" : "")
                                          << (row.fromNow ? " from now" : ""));
        EXPECT_EQ(Str(FormattedDeadline(TimeInterval(row.microseconds), row.forceRun, row.fromNow)),
                  row.expected);
    }
    // A deadline already past is worded by the key "0 seconds", under a second ahead by the
    // counting form: a translation of either changes only its own case.
    {
        ScopedTranslation const translation("0 seconds\tvorbei\n{seconds} seconds\t{seconds} s\n");
        EXPECT_EQ(Str(FormattedDeadline(TimeInterval(-1), true, false)), "vorbei");
        EXPECT_EQ(Str(FormattedDeadline(TimeInterval(999999), true, false)), "0 s");
    }
    // The instant form subtracts now from the deadline.
    EXPECT_EQ(Str(FormattedDeadline(Instant(7200000000 + 5), Instant(5), false, false)), "2 hours");
    EXPECT_EQ(Str(FormattedDeadline(Instant(5), Instant(6), false, false)), "Overdue");
}

TEST(FormattedNumber, GivesPlainDecimalDigits) {
    struct Row {
        unsigned long long number;
        char const* expected;
    };
    Row const rows[] = {
        {0, "0"},
        {7, "7"},
        {1234567, "1234567"},
        {18446744073709551615ULL, "18446744073709551615"},
    };
    for (Row const& row : rows) {
        EXPECT_EQ(Str(FormattedNumber(row.number)), row.expected);
        EXPECT_EQ(Str(UnixPlatform::FormattedNumber(row.number)), row.expected);
    }
    unsigned char const high[] = {'1', 0xB2};
    EXPECT_THROW(UnixPlatform::FormattedNumber(UStringRef<USAscii>(high, high + 2), 0),
                 InvalidTextEncoding);
}

TEST(FormattedDayOfWeek, NamesEachDayAndNothingElse) {
    char const* const longNames[] = {"Sunday",   "Monday", "Tuesday", "Wednesday",
                                     "Thursday", "Friday", "Saturday"};
    char const* const shortNames[] = {"Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"};
    for (unsigned day = 0; day < 7; ++day) {
        EXPECT_EQ(Str(UnixPlatform::FormattedLongDayOfWeek(static_cast<DayOfWeek>(day))),
                  longNames[day]);
        EXPECT_EQ(Str(UnixPlatform::FormattedShortDayOfWeek(static_cast<DayOfWeek>(day))),
                  shortNames[day]);
    }
    for (unsigned day : {7u, 0xFFFFFFFFu}) {
        EXPECT_EQ(Str(UnixPlatform::FormattedLongDayOfWeek(static_cast<DayOfWeek>(day))), "???");
        EXPECT_EQ(Str(UnixPlatform::FormattedShortDayOfWeek(static_cast<DayOfWeek>(day))), "???");
    }
}

TEST(FormattedLocalTime, ReadsTheInstantInTheLocalZone) {
    EXPECT_EQ(Str(UnixPlatform::FormattedTimeOfDay(TimeOfDay(7, 5, 9))), "07:05:09");
    EXPECT_EQ(Str(UnixPlatform::FormattedDateRecord(DateRecord(4, March, 2000))),
              "Sat, 04 Mar 2000");
    {
        ScopedTimeZone utc("UTC0");
        EXPECT_EQ(Str(UnixPlatform::FormattedLocalTime(Instant(0))), "Thu, 01 Jan 1970 00:00:00");
    }
    {
        // Five hours west, with no daylight saving time to depend on the date.
        ScopedTimeZone west("EST5");
        EXPECT_EQ(Str(UnixPlatform::FormattedLocalTime(Instant(0))), "Wed, 31 Dec 1969 19:00:00");
    }
}
