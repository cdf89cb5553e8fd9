// The dialog calls whose dialogs do not exist yet: each shows nothing. A dialog's own module
// replaces its functions here.

#include "session/DialogCalls.h"

void ShowActionRequestDialog(bool, TimeInterval const&, bool) {}
void UpdateActionRequestDialog() {}
bool IsActionRequestDialogShown() {
    return false;
}
void DisableActionRequestDialog() {}
void EnableActionRequestDialog() {}
