#pragma once
// The action request dialog, the program's main window: the pending actions in a list, what
// taking them entails, and the buttons to take, cancel, inspect or snooze them. The tree is
// built when the dialog is shown and destroyed whole when it is hidden; the dialog's state
// (selection, snooze choices, text slots) outlives the tree. The session reaches it through
// ShowActionRequestDialog and its siblings in session/DialogCalls.h. All of it runs on the
// main thread.

#include <X11/Intrinsic.h>

// Destroys the tree if there is one. Only the snooze button closes the dialog.
void HideActionRequestDialog();
// Returns false while a decision the user made in the dialog is being carried out.
bool IsActionRequestDialogEnabled();
// Returns the dialog's shell, or null while it is hidden. Widgets below it are found by name.
Widget ActionRequestDialogShell();

// The action bound to a release of the first button in the action list, after the list's own
// Notify: takes the highlighted row as the selection and redraws the controls. Does nothing
// while the dialog is disabled.
void PostponeListSelect(Widget list, XEvent* event, String* parameters, Cardinal* parameterCount);
