#pragma once
// The action details dialog: the preview text of one action in a read-only box, with one OK
// button that closes it and gives the action dialog back to the user. Its seam calls are in
// session/DialogCalls.h; this header adds what only the dialogs use.

// Destroys the dialog if it is up.
void HideActionDetailsDialog();
// Does nothing: the dialog does not follow the pending actions once it is up. Kept as the
// place where it would.
void UpdateActionDetailsDialog();
