#pragma once
// What the session calls in the dialogs. The program links the dialogs library for these; the
// session's tests link a recording double instead. Every call comes from the main thread. Until
// the display is open the calls do nothing, and IsActionRequestDialogShown is false: documents
// that arrive before the first one are dispatched all the same, and their effect on the pending
// actions shows when the dialogs can.

struct MessageRequest;
class TimeInterval;
class Instant;

// Opens the display and runs the X loop, which drives the session from then on. Returns only
// if the loop ends without ending the process.
void InitXApp(int argc, char** argv);

// Brings up the action dialog, unless it is up already. The first argument is not used.
void ShowActionRequestDialog(bool, TimeInterval const& remindInterval, bool snoozable);
// Redraws the action dialog from the pending actions, if it is up.
void UpdateActionRequestDialog();
bool IsActionRequestDialogShown();
// Grey out and restore the action dialog; only while it is shown.
void DisableActionRequestDialog();
void EnableActionRequestDialog();

void ShowActionDetailsDialog(unsigned long long actionID);
// Asks the user to accept the action's message before it is taken.
void ShowConfirmationRequestDialog(unsigned long long actionID);

void ShowMessageDialog(MessageRequest const& request);
void RemoveMessageDialog(unsigned long long id);
// Closes the message dialogs whose timeout has passed; called on every tick.
void RemoveTimedoutMessageDialogs();

void ShowQuietModeDialog(Instant const& start, Instant const& end);
void RemoveQuietModeDialog();
