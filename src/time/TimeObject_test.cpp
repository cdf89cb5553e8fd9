#include "time/TimeObject.h"

#include <gtest/gtest.h>

#include <random>

#include "testing/TimeReading.h"
#include "time/Clocks.h"
#include "time/TimeMark.h"
#include "time/ZonedTimeOfDay.h"

TEST(TimeOfDay, WrapsAroundMidnightWithoutCarry) {
    TimeOfDay t(10, 0, 0);
    TimeOfDay u = t;
    t += 90000UL;
    u += 3600UL;
    EXPECT_EQ(t, u);
    TimeOfDay midnight;
    midnight -= 1UL;
    EXPECT_EQ(midnight, TimeOfDay(23, 59, 59));
    midnight += -86401L;
    EXPECT_EQ(midnight, TimeOfDay(23, 59, 58));
    midnight -= -3L;
    EXPECT_EQ(midnight, TimeOfDay(0, 0, 1));
    EXPECT_EQ(TimeOfDay(1, 0, 0) - TimeOfDay(2, 0, 1), -3601);
    EXPECT_FALSE(TimeOfDay(24, 0, 0).Valid());
    EXPECT_FALSE(TimeOfDay(23, 60, 0).Valid());
    EXPECT_FALSE(TimeOfDay(23, 59, 60).Valid());
    EXPECT_TRUE(TimeOfDay(23, 59, 59).Valid());
}

TEST(TimeObject, InstantsOfKnownReadings) {
    EXPECT_EQ(Instant(Reading(1969, December, 31, 23, 59, 59)).Microseconds(), -1000000);
    ExpectSameReading(TimeObject(), Reading(1970, January, 1, 0, 0, 0));
    // 2000-03-04T07:05:09Z is 952153509 seconds after the epoch.
    EXPECT_EQ(Instant(Reading(2000, March, 4, 7, 5, 9)).Microseconds(), 952153509000000LL);
    EXPECT_EQ(Instant(Reading(2000, March, 4, 8, 5, 9, 3600)).Microseconds(), 952153509000000LL);
    // Fractions are dropped towards zero, before and after 1970.
    ExpectSameReading(TimeObject(Instant(1999999), TimeZone()), Reading(1970, January, 1, 0, 0, 1));
    ExpectSameReading(TimeObject(Instant(-1500000), TimeZone()),
                      Reading(1969, December, 31, 23, 59, 59));
}

TEST(TimeObject, ReadingsOfRandomInstantsRoundTripInEveryZone) {
    std::mt19937_64 random(11);
    // Years 13 to 9987, so that the steps below stay within years 0 to 9999.
    std::uniform_int_distribution<std::int64_t> seconds(-61700000000LL, 253000000000LL);
    std::uniform_int_distribution<std::int32_t> zones(-50400, 50400);
    std::uniform_int_distribution<long long> steps(-400000000LL, 400000000LL);
    for (int i = 0; i < 50000; ++i) {
        Instant const instant(seconds(random) * 1000000);
        TimeZone const zone(zones(random));
        TimeObject const reading(instant, zone);
        ASSERT_TRUE(reading.Valid());
        ASSERT_EQ(reading.zone, zone);
        ASSERT_EQ(Instant(reading), instant);
        long long const step = steps(random);
        ASSERT_TRUE((reading + step).Valid());
        ASSERT_EQ(Instant(reading + step), instant + TimeInterval(step * 1000000));
        ASSERT_EQ(Instant(reading - step), instant - TimeInterval(step * 1000000));

        TimeObject other(instant + TimeInterval(step * 1000000), TimeZone(zones(random)));
        ASSERT_EQ(other - reading, step);
        ASSERT_EQ(reading<other, step> 0);
        ASSERT_EQ(reading == other, step == 0);
        TimeObject moved = other;
        moved.SetTimeZone(zone);
        ASSERT_EQ(moved, other);
        ASSERT_EQ(Instant(moved), Instant(other));
    }
}

TEST(ZonedTimeOfDay, ComparesAcrossZonesAndWraps) {
    ZonedTimeOfDay a(TimeOfDay(23, 30, 0), TimeZone(-3600));
    ZonedTimeOfDay b(TimeOfDay(1, 30, 0), TimeZone(3600));
    EXPECT_TRUE(a == b);
    EXPECT_FALSE(a == ZonedTimeOfDay(TimeOfDay(1, 30, 0), TimeZone(0)));
    a.SetTimeZone(TimeZone(7200));
    EXPECT_EQ(a.timeOfDay, TimeOfDay(2, 30, 0));
    EXPECT_EQ(a.zone, TimeZone(7200));
}

TEST(Clocks, AgreeWithTheSystemClock) {
    std::int64_t const before = static_cast<std::int64_t>(std::time(nullptr)) * 1000000;
    Instant const now = Instant::Now();
    std::int64_t const after = static_cast<std::int64_t>(std::time(nullptr)) * 1000000;
    EXPECT_LE(before, now.Microseconds());
    EXPECT_LE(now.Microseconds(), after);
    EXPECT_EQ(now.Microseconds() % 1000000, 0);

    EXPECT_EQ(NowLocalTime().zone, TimeZone::Local());
    EXPECT_LE((Instant(NowLocalTime()) - now).Microseconds(), 2000000);
    TimeObject const gmt = NowGMT();
    EXPECT_EQ(gmt.zone, TimeZone());
    EXPECT_LE((Instant(gmt) - now).Microseconds(), 2000000);
    EXPECT_LE(Today(TimeZone(50400)) - gmt.date, 1);
    EXPECT_GE(Today(TimeZone(50400)) - gmt.date, 0);
    TimeMark const first = TimeMark::Now();
    TimeMark const second = TimeMark::Now();
    EXPECT_LE((second - first).Microseconds(), 2000000);
    EXPECT_GE((second - first).Microseconds(), -1);
}
