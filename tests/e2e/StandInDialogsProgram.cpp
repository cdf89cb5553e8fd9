// The program itself (its main and its X shell) with dialogs that show nothing, except that
// removing the timed-out message dialogs, which every tick of a set-up session does, throws:
// nothing in the real dialogs throws there, and the test needs an exception inside a tick. A
// user who takes all actions the moment the dialog is asked for stands behind the dialog, so
// that a decision is queued on the tick that throws.

#include <stdexcept>

#include "session/DialogCalls.h"
#include "session/UICommand.h"

void RemoveTimedoutMessageDialogs() {
    throw std::runtime_error("thrown inside a tick");
}

void ShowActionRequestDialog(bool, TimeInterval const&, bool) {
    QueueCommand(UICommandTakeAll, 0, 0, 0);
}
void UpdateActionRequestDialog() {}
bool IsActionRequestDialogShown() {
    return false;
}
void DisableActionRequestDialog() {}
void EnableActionRequestDialog() {}
void ShowActionDetailsDialog(unsigned long long) {}
void ShowConfirmationRequestDialog(unsigned long long) {}
void ShowMessageDialog(MessageRequest const&) {}
void RemoveMessageDialog(unsigned long long) {}
void ShowQuietModeDialog(Instant const&, Instant const&) {}
void RemoveQuietModeDialog() {}
