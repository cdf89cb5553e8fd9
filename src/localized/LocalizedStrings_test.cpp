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

TEST(LocalizedStrings, EachTextWithoutArgumentsIsItsDefault) {
    // The texts as the catalogue publishes them, "{_tab}" rendered as a tab.
    struct PlatformRow {
        AutoNullTerminated<char> (*function)();
        char const* expected;
    };
    PlatformRow const platformRows[] = {
        {MenuHelp, "&Help"},
        {MenuExit, "E&xit Helmstead"},
        {MenuFile, "&File"},
        {PreviewAction, "Preview Action..."},
        {ConfirmationCaption,
         "This action requires you to acknowledge the following confirmation message:"},
        {PreActionTitle, "Confirmation Required"},
        {SnoozeCaption, "Click Snooze to be reminded again:"},
        {TakeAllActions, "Take All Actions"},
        {ActionRequestTitle, "Action Requests"},
        {Dismiss, "Dismiss"},
        {AcceptOffersButton, "Accept"},
        {HideOffersButton, "Hide"},
        {ToggleHiddenOffersCheck, "Show Hidden Offers"},
        {SearchCaption, "Search:"},
        {ProgressCaption, "The following actions are currently running on this computer:"},
        {ViewPostponed, "View Postponed Actions"},
        {AboutTitle, "About Quorvane Helmstead"},
        {MainDialogTitle, "Quorvane Helmstead"},
        {AboutMenu, "&About Quorvane Helmstead..."},
        {Cancel, "Cancel"},
        {OK, "OK"},
        {EnteringQuietModeTitle, "Entering Restricted Mode"},
        {PreviewDialogTitle, "Action Script Preview"},
        {LastChangeCap, "Last Status Change:"},
        {IssueTimeCap, "Issued Time:"},
        {CategoryCap, "Category:"},
        {IssuerCap, "Action Issuer:"},
        {LineCap, "Last Complete Line Number:"},
        {TypeCap, "Script Type:"},
        {QuietModeTitle, "Not Currently Available"},
        {ScriptBoxCap, "Action Script"},
        {RetryCap, "Retry Count:"},
        {TryCap, "Application Count:"},
        {IDCap, "Action ID:"},
        {NameCap, "Action Name:"},
        {ActionHistoryTitle, "Action Details"},
        {Loading, "Loading..."},
        {MenuViewPostponed, "&View Postponed Actions..."},
        {MenuPaste, "&Paste\tCtrl-V"},
        {MenuCopy, "&Copy\tCtrl-C"},
        {MenuCut, "Cu&t\tCtrl-X"},
        {MenuEdit, "&Edit"},
        {MenuOpen, "&Open Quorvane Helmstead"},
        {MenuViewActionDialog, "Open &Action Requests"},
        {MenuHelpAbout, "&About Helmstead"},
        {MenuHelpContents, "Quorvane Helmstead &Help Topics"},
    };
    for (PlatformRow const& row : platformRows) {
        SCOPED_TRACE(row.expected);
        EXPECT_EQ(Str(row.function()), row.expected);
    }
    struct UnicodeRow {
        AutoUString<UTF8> (*function)();
        char const* expected;
    };
    UnicodeRow const unicodeRows[] = {
        {ShutdownNowDescription,
         "Your system administrator is requesting that you shutdown your computer.  Please save "
         "any unsaved work and then take this action to shutdown your computer."},
        {RestartNowDescription,
         "Your system administrator is requesting that you restart your computer.  Please save any "
         "unsaved work and then take this action to restart your computer."},
        {ShutdownNow, "Shutdown Now"},
        {RestartNow, "Restart Now"},
        {Progress, "Progress"},
        {TechnicianTab, "Technician"},
        {SupportDashboard, "Dashboard"},
        {Offers, "Offers"},
    };
    for (UnicodeRow const& row : unicodeRows) {
        SCOPED_TRACE(row.expected);
        EXPECT_EQ(Str(row.function()), row.expected);
    }
}

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
