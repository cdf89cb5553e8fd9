#pragma once
// The handlers through which Xlib and the toolkit report failures. Every failure ends the
// process through ExitCleanup: protocol and toolkit errors with status -1, a lost display and a
// missing font with status 0. Toolkit warnings other than a missing font go on to the handler
// that was installed before ours.

#include <X11/Intrinsic.h>

// The toolkit warning handler that OverrideWarningMsgHandler replaced; null before that.
extern XtErrorMsgHandler defaultWarningMsgHandler;

// Never returns: ends the process with status -1 and the reason "XError: " and the error's
// text. Any protocol error is fatal. For XSetErrorHandler.
int X_ErrorHandler(Display* display, XErrorEvent* event);

// Never returns: ends the process with status 0 and the reason "CLOSED", since a lost
// display counts as a normal end. For XSetIOErrorHandler.
int X_IOErrorHandler(Display* display);

// Never returns: ends the process with status -1 and the reason "XtError: " and the message,
// cut so that the whole fits 2048 bytes with its terminator. For XtAppSetErrorHandler, whose
// handler type carries the X library's noreturn mark; clang accepts only a function with it.
void Xt_ErrorHandler(String message) _X_NORETURN;

// A warning named "noFont" is fatal: reports it to the agent as ClientUIErrorMessage with code 1
// and the text "noFont", or "noFont (<class>)" when the class is given, waits for the report
// to leave, and ends the process with status 0. Every other warning goes, with all six
// arguments unchanged, to defaultWarningMsgHandler if there is one.
void WarningMsgHandler(String name, String type, String errorClass, String defaultText,
                       String* parameters, Cardinal* parameterCount);

// Installs WarningMsgHandler on the context and keeps the handler it replaces in
// defaultWarningMsgHandler. Call it before the display is opened, so that a font failure while
// opening already reaches it.
void OverrideWarningMsgHandler(XtAppContext context);
