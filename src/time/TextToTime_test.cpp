#include "time/TextToTime.h"

#include <gtest/gtest.h>

#include <cctype>
#include <random>
#include <string>

#include "testing/TimeReading.h"
#include "threads/DebuggableException.h"
#include "time/TimeText.h"

namespace {

// Returns the name of the class of the failure that the call throws, or "none".
template <class Call>
std::string Failure(Call call) {
    try {
        call();
    } catch (DebuggableException const& failure) {
        return failure.what();  // the demangled name of the class
    }
    return "none";
}

}  // namespace

TEST(TextToTime, ReadsTheFormsOfTheLanguage) {
    struct {
        char const* text;
        TimeObject expected;
    } const cases[] = {
        {"Sat, 04 Mar 2000 07:05:09 +0100", Reading(2000, March, 4, 7, 5, 9, 3600)},
        {"sat,4 MAR 2000 07:05 GMT", Reading(2000, March, 4, 7, 5, 0, 0)},
        {"4 Mar 00 07:05:09 +0000", Reading(1900, March, 4, 7, 5, 9, 0)},
        {"4 Mar 99 07:05:09 +0000", Reading(1999, March, 4, 7, 5, 9, 0)},
        {"4 Mar 999 07:05 gmt", Reading(999, March, 4, 7, 5, 0, 0)},
        {"04Mar2000 07:05:09-0530", Reading(2000, March, 4, 7, 5, 9, -19800)},
        {"\t04 mar 2000\r\n07:05:09 EST ", Reading(2000, March, 4, 7, 5, 9, -18000)},
        {"04 Mar 2000 07:05:09 pdt", Reading(2000, March, 4, 7, 5, 9, -25200)},
        {"04 Mar 2000 07:05:09 UT", Reading(2000, March, 4, 7, 5, 9, 0)},
        {"04 Mar 2000 07:05:09 +9999", Reading(2000, March, 4, 7, 5, 9, 362340)},
        {"Tue, 29 Feb 2000 23:59:59 -1200", Reading(2000, February, 29, 23, 59, 59, -43200)},
        {"Sat, 01 Jan 0000 00:00:00 +0000", Reading(0, January, 1, 0, 0, 0, 0)},
    };
    for (auto const& c : cases)
        ExpectSameReading(TextToTime(ConstData(c.text)), c.expected, c.text);
}

TEST(TextToTime, FailsWithTheClassOfTheFault) {
    struct {
        char const* text;
        char const* failure;
    } const cases[] = {
        {"Sun, 04 Mar 2000 07:05:09 +0000", "WrongDayOfWeek"},
        {"31 Feb 2000 07:05:09 +0000", "NoSuchDate"},
        {"29 Feb 1900 07:05:09 +0000", "NoSuchDate"},
        {"00 Mar 2000 07:05:09 +0000", "NoSuchDate"},
        {"Sun, 31 Feb 2000 25:00 +0000", "NoSuchDate"},
        {"Sun, 04 Mar 2000 25:00 +0000", "NoSuchTimeOfDay"},
        {"04 Mar 2000 25:00:00 +0000", "NoSuchTimeOfDay"},
        {"04 Mar 2000 07:05:60 +0000", "NoSuchTimeOfDay"},
        {"04 Mar 2000 7:05:09 +0000", "ParsingFailure"},
        {"04 March 2000 07:05:09 +0000", "ParsingFailure"},
        {"Saturday, 04 Mar 2000 07:05:09 +0000", "ParsingFailure"},
        {"04 Mar 2000 07:05:09 +01", "ParsingFailure"},
        {"04 Mar 2000 07:05:09 +00000", "ParsingFailure"},
        {"04 Mar 2000 07:05:09 Z", "NoTimeZone"},
        {"04 Mar 2000 07:05:09", "NoTimeZone"},
        {"04 Mar 2000 07:05:09 +0000 x", "ParsingFailure"},
        {"04 Mar 2000 07:05:09 j", "ParsingFailure"},
        {"04 Mar 2000 07:05:09 \xc3\xa9", "ParsingFailure"},
        {"Sat 04 Mar 2000 07:05:09 +0000", "ParsingFailure"},
        {"04 Mar 12345 07:05:09 +0000", "ParsingFailure"},
        {"04 Mar 2000 07", "ParsingFailure"},
        {"04 Mar 2000 07:05:", "ParsingFailure"},
        {"2000 Mar 04 07:05:09 +0000", "ParsingFailure"},
        {"", "ParsingFailure"},
        {"1 2 3 4 5 6", "ParsingFailure"},
        {"1 2 3 4 5 6 7", "StackFull"},
        {"Mon Tue Wed Thu Fri Sat Sun", "StackFull"},
    };
    for (auto const& c : cases)
        EXPECT_EQ(Failure([&] { TextToTime(ConstData(c.text)); }), c.failure) << c.text;
}

TEST(TextToTime, ConvertsIntoAGivenZoneOrReadsInIt) {
    TimeZone const plusOne(3600);
    ExpectSameReading(TextToTime("04 Mar 2000 07:05:09 +0000", plusOne),
                      Reading(2000, March, 4, 8, 5, 9, 3600), "converted");
    ExpectSameReading(TextToTime("04 Mar 2000 07:05:09", plusOne),
                      Reading(2000, March, 4, 7, 5, 9, 3600), "read in the zone");
    ExpectSameReading(TextToTime("04 Mar 2000 07:05:09 Z", plusOne),
                      Reading(2000, March, 4, 7, 5, 9, 3600), "a letter counts as no zone");
    ExpectSameReading(TextToTime("01 Jan 2000 00:30:00 +0100", TimeZone(0)),
                      Reading(1999, December, 31, 23, 30, 0, 0), "across midnight");
    EXPECT_EQ(Failure([] { TextToTime("31 Apr 2000 07:05:09", TimeZone()); }), "NoSuchDate");
}

// Over years 0 to 9999 and zones of either sign; the text also reads back with its blanks taken
// out or widened wherever they do not keep two words apart, and with letters in either case.
TEST(TextToTime, RandomReadingsRoundTripThroughTheirText) {
    std::mt19937_64 random(5);
    std::uniform_int_distribution<unsigned long> days(0, DateRecord::DaysBefore(10000) - 1);
    std::uniform_int_distribution<std::int32_t> minutes(-5999, 5999);
    char const* const blanks[] = {"", " ", "\t ", "\r\n"};
    auto const alnum = [](char c) { return std::isalnum(static_cast<unsigned char>(c)) != 0; };
    for (int i = 0; i < 20000; ++i) {
        TimeObject reading;
        reading.date.SetAbsoluteDay(days(random));
        reading.timeOfDay.SetSecondOfDay(random() % 86400);
        reading.zone = TimeZone(minutes(random) * 60);
        std::string const plain = MakeString(TimeToText(reading));
        std::string mangled;
        for (std::size_t j = 0; j < plain.size(); ++j) {
            char const c = plain[j];
            if (c == ' ') {
                char const* const blank = blanks[random() % 4];
                mangled += *blank == 0 && alnum(plain[j - 1]) && alnum(plain[j + 1]) ? " " : blank;
            } else {
                mangled += std::isalpha(static_cast<unsigned char>(c)) && random() % 2
                               ? static_cast<char>(c ^ 0x20)
                               : c;
            }
        }
        for (std::string const& text : {plain, mangled}) {
            TimeObject const back = TextToTime(ConstData(text));
            ASSERT_EQ(back.date, reading.date) << text;
            ASSERT_EQ(back.timeOfDay, reading.timeOfDay) << text;
            ASSERT_EQ(back.zone, reading.zone) << text;
        }
    }
}

TEST(TextToTime, NarrowerFormsReadTheirPartOnly) {
    EXPECT_EQ(TextToDate("Sat, 04 Mar 2000"), DateRecord(4, March, 2000));
    EXPECT_EQ(TextToDate("4 mar 00"), DateRecord(4, March, 1900));
    EXPECT_EQ(Failure([] { TextToDate("Sun, 04 Mar 2000"); }), "WrongDayOfWeek");
    EXPECT_EQ(Failure([] { TextToDate("Sun, 31 Apr 2000"); }), "NoSuchDate");
    EXPECT_EQ(Failure([] { TextToDate("04 Mar 2000 07:05"); }), "ParsingFailure");
    EXPECT_EQ(Failure([] { TextToDate("Mar 2000"); }), "ParsingFailure");

    // A time of day alone may have a one-digit hour.
    EXPECT_EQ(TextToTimeOfDay("7:05:09"), TimeOfDay(7, 5, 9));
    EXPECT_EQ(TextToTimeOfDay("23:59"), TimeOfDay(23, 59, 0));
    EXPECT_EQ(Failure([] { TextToTimeOfDay("24:00"); }), "NoSuchTimeOfDay");
    EXPECT_EQ(Failure([] { TextToTimeOfDay("7:5"); }), "ParsingFailure");
    EXPECT_EQ(Failure([] { TextToTimeOfDay("07:05 +0000"); }), "ParsingFailure");
    EXPECT_EQ(Failure([] { TextToTimeOfDay("007:05"); }), "ParsingFailure");

    ZonedTimeOfDay const read = TextToZonedTimeOfDay("07:05:09 -0530");
    EXPECT_EQ(read.timeOfDay, TimeOfDay(7, 5, 9));
    EXPECT_EQ(read.zone, TimeZone(-19800));
    ZonedTimeOfDay const converted = TextToZonedTimeOfDay("7:05 EST", TimeZone(0));
    EXPECT_EQ(converted.timeOfDay, TimeOfDay(12, 5, 0));
    EXPECT_EQ(converted.zone, TimeZone(0));
    ZonedTimeOfDay const assumed = TextToZonedTimeOfDay("23:00", TimeZone(3600));
    EXPECT_EQ(assumed.timeOfDay, TimeOfDay(23, 0, 0));
    EXPECT_EQ(assumed.zone, TimeZone(3600));
    EXPECT_EQ(Failure([] { TextToZonedTimeOfDay("07:05 Z"); }), "NoTimeZone");
    EXPECT_EQ(Failure([] { TextToZonedTimeOfDay("07:05"); }), "NoTimeZone");
    EXPECT_EQ(Failure([] { TextToZonedTimeOfDay("07:61 +0000"); }), "NoSuchTimeOfDay");
    EXPECT_EQ(Failure([] { TextToZonedTimeOfDay("07:05 +0000 GMT"); }), "ParsingFailure");
}
