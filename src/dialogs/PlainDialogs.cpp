// The dialogs of a build without a display: every call shows nothing, and InitXApp stands in
// for the X loop, driving the session once a second as the X loop's tick will. The program
// links this until the X shell and the dialogs exist.

#include <unistd.h>

#include "session/DialogCalls.h"
#include "session/SessionCalls.h"

void InitXApp(int, char**) {
    for (;;) {
        sleep(1);
        if (clientPipe && clientPipe->Killed()) ExitCleanup(0, "CLOSED");
        ProcessMessagesFromClient();
    }
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
void RemoveTimedoutMessageDialogs() {}
void ShowQuietModeDialog(Instant const&, Instant const&) {}
void RemoveQuietModeDialog() {}
