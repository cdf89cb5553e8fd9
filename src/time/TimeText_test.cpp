#include "time/TimeText.h"

#include <gtest/gtest.h>

#include <string>

#include "testing/TestText.h"

TEST(TimeText, FormsOfKnownValues) {
    DateRecord const date(4, March, 2000);
    TimeOfDay const time(7, 5, 9);
    EXPECT_EQ(Str(DateToText(date)), "Sat, 04 Mar 2000");
    EXPECT_EQ(Str(DateToText(DateRecord(1, January, 12))), "Sun, 01 Jan 0012");
    EXPECT_EQ(Str(DateToExcelText(date)), "2000-03-04");
    EXPECT_EQ(Str(TimeOfDayToText(time)), "07:05:09");
    EXPECT_EQ(Str(ZonedTimeOfDayToText(ZonedTimeOfDay(time, TimeZone(-19800)))), "07:05:09 -0530");
    EXPECT_EQ(Str(TimeToText(TimeObject(date, time, TimeZone(-19800)))),
              "Sat, 04 Mar 2000 07:05:09 -0530");
    EXPECT_EQ(Str(TimeToExcelText(TimeObject(date, time, TimeZone(-19800)))),
              "2000-03-04 07:05:09");
    EXPECT_EQ(Str(TimeToText(Instant(952153509000000LL), TimeZone(3600))),
              "Sat, 04 Mar 2000 08:05:09 +0100");

    struct {
        std::int32_t seconds;
        char const* text;
    } const zones[] = {{0, "+0000"},     {-1, "-0000"},     {59, "+0000"},
                       {60, "+0001"},    {3600, "+0100"},   {-19800, "-0530"},
                       {50400, "+1400"}, {-43200, "-1200"}, {359940, "+9959"}};
    for (auto const& z : zones) EXPECT_EQ(Str(TimeZoneToText(TimeZone(z.seconds))), z.text);
}

TEST(TimeText, FiveDigitYearsExceedTheCapacity) {
    DateRecord const date(4, March, 20000);
    EXPECT_THROW(DateToText(date), ConstDataCapacityExceeded);
    EXPECT_THROW(DateToExcelText(date), ConstDataCapacityExceeded);
    EXPECT_THROW(TimeToText(TimeObject(date, TimeOfDay(), TimeZone())), ConstDataCapacityExceeded);
    EXPECT_THROW(TimeToExcelText(TimeObject(date, TimeOfDay(), TimeZone())),
                 ConstDataCapacityExceeded);
    EXPECT_THROW(TimeZoneToText(TimeZone(360000)), ConstDataCapacityExceeded);
}

TEST(TimeText, StreamingCutsPiecesAndOverflowsAtSeparators) {
    unsigned char room[8];
    // "Sat, 04 " fills the room exactly; the month name then finds no room and is cut to nothing,
    // and the blank after it overflows.
    Buffer target(room, room + 8);
    EXPECT_THROW(target << DateRecord(4, March, 2000), DataOverflow);
    EXPECT_EQ(MakeString(ConstData(room, target.cursor)), "Sat, 04 ");

    Buffer small(room, room + 2);
    small << Wednesday;
    EXPECT_EQ(MakeString(ConstData(room, small.cursor)), "We");
    small = Buffer(room, room + 3);
    small << static_cast<Month>(0) << November;
    EXPECT_EQ(MakeString(ConstData(room, small.cursor)), "Nov");

    unsigned char wide[40];
    Buffer all(wide, wide + sizeof wide);
    all << TimeObject(DateRecord(4, March, 20000), TimeOfDay(7, 5, 9), TimeZone(3600));
    EXPECT_EQ(MakeString(ConstData(wide, all.cursor)), "Sat, 04 Mar 20000 07:05:09 +0100");
}
