#include "localized/LocalizedStrings.h"

#include "localized/DeadlineText.h"
#include "localized/UFormat.h"
#include "time/TimeObject.h"
#include "time/TimeZone.h"

// The build's version and the year of its copyright line, set by the build.
#ifndef ZOL_VERSION
#error "ZOL_VERSION must be defined by the build"
#endif
#ifndef ZOL_COPYRIGHT_YEAR
#error "ZOL_COPYRIGHT_YEAR must be defined by the build"
#endif

namespace {

// The text as key and default format, through the global context.
FormatPlusArguments<0u> Text(char const* text) {
    UStringRef<UTF8> const view = EncodingCast<UStringRef<UTF8> >(text);
    return UFormat(view, view);
}

AutoNullTerminated<char> Platform(char const* text) {
    return MakePlatformString(Text(text));
}

AutoUString<UTF8> Unicode(char const* text) {
    return MakeUString(Text(text));
}

// Returns the time of day of the instant in the local zone, without the date.
AutoUString<UTF8> LocalTimeOfDay(Instant const& instant) {
    return UnixPlatform::FormattedTimeOfDay(TimeObject(instant, TimeZone::Local()).timeOfDay);
}

}  // namespace

namespace LocalizedStrings {
AutoNullTerminated<char> MenuHelp() {
    return Platform("&Help");
}
AutoNullTerminated<char> MenuExit() {
    return Platform("E&xit Helmstead");
}
AutoNullTerminated<char> MenuFile() {
    return Platform("&File");
}
AutoNullTerminated<char> PreviewAction() {
    return Platform("Preview Action...");
}
AutoNullTerminated<char> ConfirmationCaption() {
    return Platform("This action requires you to acknowledge the following confirmation message:");
}
AutoNullTerminated<char> PreActionTitle() {
    return Platform("Confirmation Required");
}
AutoNullTerminated<char> SnoozeCaption() {
    return Platform("Click Snooze to be reminded again:");
}
AutoNullTerminated<char> TakeAllActions() {
    return Platform("Take All Actions");
}
AutoNullTerminated<char> ActionRequestTitle() {
    return Platform("Action Requests");
}
AutoNullTerminated<char> Dismiss() {
    return Platform("Dismiss");
}
AutoNullTerminated<char> AcceptOffersButton() {
    return Platform("Accept");
}
AutoNullTerminated<char> HideOffersButton() {
    return Platform("Hide");
}
AutoNullTerminated<char> ToggleHiddenOffersCheck() {
    return Platform("Show Hidden Offers");
}
AutoNullTerminated<char> SearchCaption() {
    return Platform("Search:");
}
AutoNullTerminated<char> ProgressCaption() {
    return Platform("The following actions are currently running on this computer:");
}
AutoNullTerminated<char> ViewPostponed() {
    return Platform("View Postponed Actions");
}
AutoNullTerminated<char> AboutTitle() {
    return Platform("About Quorvane Helmstead");
}
AutoNullTerminated<char> MainDialogTitle() {
    return Platform("Quorvane Helmstead");
}
AutoNullTerminated<char> AboutMenu() {
    return Platform("&About Quorvane Helmstead...");
}
AutoNullTerminated<char> Cancel() {
    return Platform("Cancel");
}
AutoNullTerminated<char> OK() {
    return Platform("OK");
}
AutoUString<UTF8> ShutdownNowDescription() {
    return Unicode(
        "Your system administrator is requesting that you shutdown your computer.  Please save any "
        "unsaved work and then take this action to shutdown your computer.");
}
AutoUString<UTF8> RestartNowDescription() {
    return Unicode(
        "Your system administrator is requesting that you restart your computer.  Please save any "
        "unsaved work and then take this action to restart your computer.");
}
AutoUString<UTF8> ShutdownNow() {
    return Unicode("Shutdown Now");
}
AutoUString<UTF8> RestartNow() {
    return Unicode("Restart Now");
}
AutoUString<UTF8> Progress() {
    return Unicode("Progress");
}
AutoUString<UTF8> TechnicianTab() {
    return Unicode("Technician");
}
AutoUString<UTF8> SupportDashboard() {
    return Unicode("Dashboard");
}
AutoUString<UTF8> Offers() {
    return Unicode("Offers");
}
AutoNullTerminated<char> EnteringQuietModeTitle() {
    return Platform("Entering Restricted Mode");
}
AutoNullTerminated<char> PreviewDialogTitle() {
    return Platform("Action Script Preview");
}
AutoNullTerminated<char> LastChangeCap() {
    return Platform("Last Status Change:");
}
AutoNullTerminated<char> IssueTimeCap() {
    return Platform("Issued Time:");
}
AutoNullTerminated<char> CategoryCap() {
    return Platform("Category:");
}
AutoNullTerminated<char> IssuerCap() {
    return Platform("Action Issuer:");
}
AutoNullTerminated<char> LineCap() {
    return Platform("Last Complete Line Number:");
}
AutoNullTerminated<char> TypeCap() {
    return Platform("Script Type:");
}
AutoNullTerminated<char> QuietModeTitle() {
    return Platform("Not Currently Available");
}
AutoNullTerminated<char> ScriptBoxCap() {
    return Platform("Action Script");
}
AutoNullTerminated<char> RetryCap() {
    return Platform("Retry Count:");
}
AutoNullTerminated<char> TryCap() {
    return Platform("Application Count:");
}
AutoNullTerminated<char> IDCap() {
    return Platform("Action ID:");
}
AutoNullTerminated<char> NameCap() {
    return Platform("Action Name:");
}
AutoNullTerminated<char> ActionHistoryTitle() {
    return Platform("Action Details");
}
AutoNullTerminated<char> Loading() {
    return Platform("Loading...");
}
AutoNullTerminated<char> MenuViewPostponed() {
    return Platform("&View Postponed Actions...");
}
AutoNullTerminated<char> MenuPaste() {
    return Platform("&Paste{_tab}Ctrl-V");
}
AutoNullTerminated<char> MenuCopy() {
    return Platform("&Copy{_tab}Ctrl-C");
}
AutoNullTerminated<char> MenuCut() {
    return Platform("Cu&t{_tab}Ctrl-X");
}
AutoNullTerminated<char> MenuEdit() {
    return Platform("&Edit");
}
AutoNullTerminated<char> MenuOpen() {
    return Platform("&Open Quorvane Helmstead");
}
AutoNullTerminated<char> MenuViewActionDialog() {
    return Platform("Open &Action Requests");
}
AutoNullTerminated<char> MenuHelpAbout() {
    return Platform("&About Helmstead");
}
AutoNullTerminated<char> MenuHelpContents() {
    return Platform("Quorvane Helmstead &Help Topics");
}

AutoNullTerminated<char> AboutVersion() {
    return MakePlatformString(Text("Quorvane Helmstead version {version}")
                                  .With(EncodingCast<UStringRef<UTF8> >(ZOL_VERSION)));
}

AutoNullTerminated<char> AboutCopyright() {
    return MakePlatformString(Text("Copyright (c) {year} Quorvane. All rights reserved.")
                                  .With(EncodingCast<UStringRef<UTF8> >(ZOL_COPYRIGHT_YEAR)));
}

AutoNullTerminated<char> EnteringQuietModeExplanation(Instant const& start, Instant const& end) {
    AutoUString<UTF8> const from = LocalTimeOfDay(start);
    AutoUString<UTF8> const to = LocalTimeOfDay(end);
    return MakePlatformString(
        Text("Your administrator has disabled the Quorvane Helmstead between {start} and {end}.  "
             "The application will now close.")
            .With(from)
            .With(to));
}

AutoNullTerminated<char> QuietModeExplanation(Instant const& start, Instant const& end) {
    AutoUString<UTF8> const from = LocalTimeOfDay(start);
    AutoUString<UTF8> const to = LocalTimeOfDay(end);
    return MakePlatformString(
        Text("Your administrator has disabled this feature between {start} and {end}.")
            .With(from)
            .With(to));
}

AutoNullTerminated<char> TrayTip(unsigned long count) {
    if (count == 0) return Platform("Click to open Quorvane Helmstead");
    if (count == 1) return Platform("You have 1 pending action.");
    AutoUString<UTF8> const number = FormattedNumber(count);
    return MakePlatformString(Text("You have {number} pending actions.").With(number));
}

AutoUString<UTF8> AnnounceOffers(unsigned long count) {
    if (count == 1) return Unicode("You Have 1 New Offer");
    AutoUString<UTF8> const number = FormattedNumber(count);
    return MakeUString(Text("You Have {number} New Offers").With(number));
}

}  // namespace LocalizedStrings
