#include "localized/LocalizedStrings.h"

#include <gtest/gtest.h>

#include <string>

#include "testing/ScopedSettings.h"
#include "testing/TestText.h"

using namespace LocalizedStrings;

namespace {

// 1970-01-02 at the time of day, in UTC.
Instant SecondDayAt(int hour, int minute) {
    return Instant((86400LL + hour * 3600LL + minute * 60LL) * 1000000);
}

}  // namespace

TEST(LocalizedStrings, CountsChooseTheirOwnTexts) {
    struct Row {
        unsigned long count;
        char const* trayTip;
        char const* offers;
    };
    Row const rows[] = {
        {0, "Click to open Quorvane Helmstead", "You Have 0 New Offers"},
        {1, "You have 1 pending action.", "You Have 1 New Offer"},
        {2, "You have 2 pending actions.", "You Have 2 New Offers"},
        {1000, "You have 1000 pending actions.", "You Have 1000 New Offers"},
    };
    for (Row const& row : rows) {
        SCOPED_TRACE(row.count);
        EXPECT_EQ(Str(TrayTip(row.count)), row.trayTip);
        EXPECT_EQ(Str(AnnounceOffers(row.count)), row.offers);
    }
}

TEST(LocalizedStrings, TheAboutBoxCarriesTheBuildConstants) {
    EXPECT_EQ(Str(AboutVersion()), std::string("Quorvane Helmstead version ") + ZOL_VERSION);
    EXPECT_EQ(Str(AboutCopyright()), std::string("Copyright (c) ") + ZOL_COPYRIGHT_YEAR +
                                         " Quorvane. All rights reserved.");
}

TEST(LocalizedStrings, QuietModeTextsShowLocalTimesOfDay) {
    Instant const start = SecondDayAt(12, 0), end = SecondDayAt(13, 30);
    {
        ScopedTimeZone utc("UTC0");
        EXPECT_EQ(Str(QuietModeExplanation(start, end)),
                  "Your administrator has disabled this feature between 12:00:00 and 13:30:00.");
        EXPECT_EQ(Str(EnteringQuietModeExplanation(start, end)),
                  "Your administrator has disabled the Quorvane Helmstead between 12:00:00 and "
                  "13:30:00.  The application will now close.");
    }
    {
        ScopedTimeZone west("EST5");
        EXPECT_EQ(Str(QuietModeExplanation(start, end)),
                  "Your administrator has disabled this feature between 07:00:00 and 08:30:00.");
    }
}
