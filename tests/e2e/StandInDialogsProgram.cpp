// The program itself (its main and its X shell) with dialogs that show nothing, except that
// removing the timed-out message dialogs, which every tick of a set-up session does, throws:
// nothing in the real dialogs throws there, and the test needs an exception inside a tick.

#include <stdexcept>

#include "session/DialogCalls.h"

void RemoveTimedoutMessageDialogs() {
    throw std::runtime_error("thrown inside a tick");
}

void ShowActionRequestDialog(bool, TimeInterval const&, bool) {}
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
