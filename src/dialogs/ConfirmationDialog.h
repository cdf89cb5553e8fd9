#pragma once
// The confirmation dialog: an action's message that the user must acknowledge before the action
// is taken, under the action's title, with OK and Cancel. The answer goes back as a command for
// the action last handed to the dialog; the dialog decides nothing. Its seam call is in
// session/DialogCalls.h; this header adds what only the dialogs use.

// The action the dialog was last built for; its buttons answer for this one.
extern unsigned long long m_confirmedAction;
// The width of the message box: 500 at first, then the widest explanation so far. It only
// grows, across showings, so a dialog is never narrower than one shown before it.
extern int m_confirmationWidth;

// Destroys the dialog if it is up.
void HideConfirmationRequestDialog();
// Does nothing: the dialog keeps what it showed when it was built. Kept as the place where a
// refresh would go.
void UpdateConfirmationRequestDialog();
