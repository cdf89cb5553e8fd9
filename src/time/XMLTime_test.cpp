#include "time/XMLTime.h"

#include <gtest/gtest.h>

#include <limits>
#include <random>
#include <stdexcept>
#include <string>

#include "testing/ScopedSettings.h"
#include "testing/TestText.h"
#include "text/bytes/AsciiNumerals.h"
#include "text/bytes/BytesErrors.h"
#include "time/TimeErrors.h"
#include "time/TimeObject.h"

namespace {

std::int64_t const second = 1000000;
// 2000-03-04T07:05:09Z, in microseconds since the epoch.
std::int64_t const reference = 952153509 * second;

std::int64_t Read(std::string const& text) {
    return XMLDateTimeToInstant(U8(text)).Microseconds();
}

// Returns the text of the ExceptionPL that reading the duration throws, or "none".
std::string DurationFailure(std::string const& text) {
    try {
        XMLDurationToTimeInterval(U8(text));
    } catch (ExceptionPL const& failure) {
        return failure.what();
    }
    return "none";
}

char const general[] = "Could not convert XMLDuration to TimeInterval";
char const overflow[] = "Could not convert XMLDuration to TimeInterval due to integer overflow.";
char const precision[] =
    "Could not convert XMLDuration to TimeInterval: cannot handle more than microsecond "
    "precision.";

}  // namespace

TEST(XMLDateTimeToInstant, ZonesFractionsAndFixedPlaces) {
    std::int64_t const local = std::int64_t(TimeZone::Local().seconds) * second;
    struct {
        char const* text;
        std::int64_t expected;
    } const cases[] = {
        {"2000-03-04T07:05:09Z", reference},
        {"2000-03-04T07:05:09+00:00", reference},
        {"2000-03-04T07:05:09-00:00", reference},
        {"2000-03-04T07:05:09+01:00", reference - 3600 * second},
        {"2000-03-04T07:05:09-01:30", reference + 5400 * second},
        {"2000-03-04T07:05:09", reference - local},
        {"2000-03-04T07:05:09+01", reference - local},
        {"2000-03-04T07:05:09.5Z", reference + 500000},
        {"2000-03-04T07:05:09.123456789Z", reference + 123456},
        {"2000-03-04T07:05:09.25+01:00", reference + 250000 - 3600 * second},
        {"2000-03-04T07:05:09.", reference - local},
        {"2000x03x04 07x05x09Z", reference},
        {"2000-02-31T00:00:00Z", Read("2000-03-02T00:00:00Z")},
        {"2000-03-04T25:00:00Z", Read("2000-03-05T01:00:00Z")},
        {"1969-12-31T23:59:59Z", -second},
    };
    for (auto const& c : cases) EXPECT_EQ(Read(c.text), c.expected) << c.text;

    EXPECT_THROW(Read("-2000-03-04T07:05:09Z"), InvalidDateTimeNegativeYear);
    EXPECT_THROW(Read("2000-13-04T07:05:09Z"), InvalidDateTimeString);
    EXPECT_THROW(Read("2000-00-04T07:05:09Z"), InvalidDateTimeString);
    EXPECT_THROW(Read("2000-03-04T07:05:0"), InvalidDateTimeString);
    EXPECT_THROW(Read("2000-03-04T07:05:xxZ"), NotANumeral);
    EXPECT_THROW(Read("2000-03-04T07:05:09.5x+01:00"), NotANumeral);
}

TEST(XMLDateToDateRecord, FixedPlacesAndShortTexts) {
    EXPECT_EQ(XMLDateToDateRecord(U8("2000-03-04")), DateRecord(4, March, 2000));
    EXPECT_EQ(XMLDateToDateRecord(U8("2000x13x45+01:00")),
              DateRecord(45, static_cast<Month>(13), 2000));
    // Texts too short for the fixed places fail in the cutting, an empty day as no numeral.
    EXPECT_THROW(XMLDateToDateRecord(U8("2000")), std::out_of_range);
    EXPECT_THROW(XMLDateToDateRecord(U8("2000-03")), std::out_of_range);
    EXPECT_THROW(XMLDateToDateRecord(U8("2000-03-")), NotANumeral);
    EXPECT_THROW(XMLDateToDateRecord(U8("")), NotANumeral);
    EXPECT_THROW(XMLDateToDateRecord(U8("2000-3-04")), NotANumeral);
}

TEST(XMLTime, WritersOfDatesTimesAndDateTimes) {
    EXPECT_EQ(Str(DateRecordToXMLDate(DateRecord(4, March, 2000))), "2000-03-04");
    EXPECT_EQ(Str(DateRecordToXMLDate(DateRecord(4, March, 12))), "0012-03-04");
    EXPECT_EQ(Str(DateRecordToXMLDate(DateRecord(4, March, 123456))), "123456-03-04");
    EXPECT_EQ(Str(TimeOfDayToXMLTime(TimeOfDay(7, 5, 9))), "07:05:09");
}

TEST(XMLTime, LocalZoneIsTheZoneOfTheCall) {
    struct {
        char const* tz;
        char const* written;
        std::int64_t offset;
    } const zones[] = {{"UTC0", "2000-03-04T07:05:09+00:00", 0},
                       {"XYZ-1", "2000-03-04T08:05:09+01:00", 3600},
                       {"XYZ+5:30", "2000-03-04T01:35:09-05:30", -19800}};
    for (auto const& z : zones) {
        ScopedTimeZone zone(z.tz);
        // The fraction is dropped, not rounded.
        EXPECT_EQ(Str(InstantToXMLDateTime(Instant(reference + 999999))), z.written);
        EXPECT_EQ(Read("2000-03-04T07:05:09"), reference - z.offset * second);
    }
}

TEST(TimeIntervalToXMLDuration, KnownForms) {
    struct {
        std::int64_t microseconds;
        char const* text;
    } const cases[] = {
        {0, "PT0S"},
        {-1000000, "-PT1S"},
        {90061000000, "P1DT1H1M1S"},
        {1500000, "PT1.500000S"},
        {86400000000, "P1D"},
        {3600000000, "PT1H"},
        {86520000000, "P1DT2M"},
        {1, "PT0.000001S"},
        {-86400000001, "-P1DT0.000001S"},
        {std::numeric_limits<std::int64_t>::max(), "P106751991DT4H54.775807S"},
        {std::numeric_limits<std::int64_t>::min(), "-PT"},
    };
    for (auto const& c : cases)
        EXPECT_EQ(Str(TimeIntervalToXMLDuration(TimeInterval(c.microseconds))), c.text);
}

TEST(XMLDurationToTimeInterval, ReadsTheNarrowGrammar) {
    struct {
        char const* text;
        std::int64_t microseconds;
    } const good[] = {
        {"-PT0S", 0},
        {"P0D", 0},
        {"PT100000S", 100000 * second},
        {"PT1.5S", 1500000},
        {"P4294967295D", std::int64_t(4294967295ULL * 86400000000ULL)},
    };
    for (auto const& c : good)
        EXPECT_EQ(XMLDurationToTimeInterval(U8(c.text)).Microseconds(), c.microseconds) << c.text;

    struct {
        char const* text;
        char const* failure;
    } const bad[] = {
        {"", general},
        {"P", general},
        {"PT", general},
        {"P1DT", general},
        {"PT.5S", general},
        {"PT1.S", general},
        {"P1Y", general},
        {"PT1H1H", general},
        {"PT1S1M", general},
        {"+PT1S", general},
        {"PT1S ", general},
        {"P-1D", general},
        {"PT1.1234567S", precision},
        {"PT0.00000000000000000000000000000000001S", precision},
        {"PT4294967296S", overflow},
        {"P99999999999D", overflow},
    };
    for (auto const& c : bad) EXPECT_EQ(DurationFailure(c.text), c.failure) << c.text;
}

TEST(XMLDurationToTimeInterval, EveryIntervalButTheLowestReadsBack) {
    std::mt19937_64 random(13);
    std::uniform_int_distribution<std::int64_t> any(std::numeric_limits<std::int64_t>::min() + 1,
                                                    std::numeric_limits<std::int64_t>::max());
    std::uniform_int_distribution<int> shift(0, 63);
    for (int i = 0; i < 100000; ++i) {
        // Mix values of every size with round ones, which take the short forms.
        std::int64_t value = any(random) >> shift(random);
        if (i % 4 == 1) value -= value % second;
        if (i % 4 == 2) value -= value % 60000000;
        if (i % 4 == 3) value -= value % 86400000000LL;
        std::string const text = Str(TimeIntervalToXMLDuration(TimeInterval(value)));
        ASSERT_EQ(XMLDurationToTimeInterval(U8(text)).Microseconds(), value) << text;
    }
}
