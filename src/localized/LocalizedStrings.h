#pragma once
// The shared texts of the dialogs, one function each. A function knows its own default text,
// which is also its key in the translation files; it renders the text anew at every call, with
// the overrides of the global context. Platform strings are in the locale's encoding, for the
// toolkit, and fail as MakeLocalString does for a text the locale can't express; the UTF-8
// results are for text that goes on through other formats. The catalogue holds more than the
// dialogs here use (a main window, menus, tabs), as part of the interface.

#include "text/unicode/AutoNullTerminated.h"
#include "text/unicode/UString.h"
#include "time/Instant.h"

namespace LocalizedStrings {
// Texts without arguments, in the locale's encoding.
AutoNullTerminated<char> MenuHelp();
AutoNullTerminated<char> MenuExit();
AutoNullTerminated<char> MenuFile();
AutoNullTerminated<char> PreviewAction();
AutoNullTerminated<char> ConfirmationCaption();
AutoNullTerminated<char> PreActionTitle();
AutoNullTerminated<char> SnoozeCaption();
AutoNullTerminated<char> TakeAllActions();
AutoNullTerminated<char> ActionRequestTitle();
AutoNullTerminated<char> Dismiss();
AutoNullTerminated<char> AcceptOffersButton();
AutoNullTerminated<char> HideOffersButton();
AutoNullTerminated<char> ToggleHiddenOffersCheck();
AutoNullTerminated<char> SearchCaption();
AutoNullTerminated<char> ProgressCaption();
AutoNullTerminated<char> ViewPostponed();
AutoNullTerminated<char> AboutTitle();
AutoNullTerminated<char> MainDialogTitle();
AutoNullTerminated<char> AboutMenu();
AutoNullTerminated<char> Cancel();
AutoNullTerminated<char> OK();

// Texts without arguments, in UTF-8.
AutoUString<UTF8> ShutdownNowDescription();
AutoUString<UTF8> RestartNowDescription();
AutoUString<UTF8> ShutdownNow();
AutoUString<UTF8> RestartNow();
AutoUString<UTF8> Progress();
AutoUString<UTF8> TechnicianTab();
AutoUString<UTF8> SupportDashboard();
AutoUString<UTF8> Offers();

// More texts without arguments, in the locale's encoding. "{_tab}" in the edit entries
// becomes a tab between the label and its shortcut; "&" marks a menu's access key.
AutoNullTerminated<char> EnteringQuietModeTitle();
AutoNullTerminated<char> PreviewDialogTitle();
AutoNullTerminated<char> LastChangeCap();
AutoNullTerminated<char> IssueTimeCap();
AutoNullTerminated<char> CategoryCap();
AutoNullTerminated<char> IssuerCap();
AutoNullTerminated<char> LineCap();
AutoNullTerminated<char> TypeCap();
AutoNullTerminated<char> QuietModeTitle();
AutoNullTerminated<char> ScriptBoxCap();
AutoNullTerminated<char> RetryCap();
AutoNullTerminated<char> TryCap();
AutoNullTerminated<char> IDCap();
AutoNullTerminated<char> NameCap();
AutoNullTerminated<char> ActionHistoryTitle();
AutoNullTerminated<char> Loading();
AutoNullTerminated<char> MenuViewPostponed();
AutoNullTerminated<char> MenuPaste();
AutoNullTerminated<char> MenuCopy();
AutoNullTerminated<char> MenuCut();
AutoNullTerminated<char> MenuEdit();
AutoNullTerminated<char> MenuOpen();
AutoNullTerminated<char> MenuViewActionDialog();
AutoNullTerminated<char> MenuHelpAbout();
AutoNullTerminated<char> MenuHelpContents();

// Return "Quorvane Helmstead version {version}" and the copyright line with the build's year.
AutoNullTerminated<char> AboutVersion();
AutoNullTerminated<char> AboutCopyright();
// Return the quiet-mode notices with the times of day of start and end in the local zone.
AutoNullTerminated<char> EnteringQuietModeExplanation(Instant const& start, Instant const& end);
AutoNullTerminated<char> QuietModeExplanation(Instant const& start, Instant const& end);
// Returns the tray's tip for the count of pending actions: for 0, 1 and more, three texts.
AutoNullTerminated<char> TrayTip(unsigned long count);
// Returns the announcement of new offers: for 1 and any other count, two texts.
AutoUString<UTF8> AnnounceOffers(unsigned long count);

}  // namespace LocalizedStrings
