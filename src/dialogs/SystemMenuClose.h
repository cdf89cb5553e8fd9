#pragma once
// The action that ends the process when the window manager asks a dialog to close. It is
// registered under the name "SystemMenuClose" and, deliberately, bound by no translation of
// the program: only a resource file can bind it. Without such a binding a close request does
// nothing and every dialog stays up until its own buttons are used.

#include <X11/Intrinsic.h>

// Ends the process with status 0 and the reason "CLOSED" when the event is a ClientMessage of
// type WM_PROTOCOLS whose first long is WM_DELETE_WINDOW; ignores everything else.
void SystemMenuClose(Widget widget, XEvent* event, String* parameters, Cardinal* parameterCount);
