#pragma once
// The process's X connection: InitXApp (declared with the other dialog calls in
// session/DialogCalls.h) opens the display and runs the toolkit's main loop, and the
// one-second tick below drives the session from inside that loop. Main thread only.

#include <X11/Intrinsic.h>

// The timer callback: ends the process if the pipe is dead, takes up the agent's documents and
// the user's commands, and once the session is set up makes the hidden shell on its first run
// and does the work on the pending actions. Re-arms itself for 1000 ms on every path, so ticks
// stand a full second apart plus their work. Both arguments are ignored. What a dialog call
// throws travels up through the main loop to InitXApp.
void TimerTick(XtPointer closure, XtIntervalId* id);

// Makes the shell "ZOLClientUIHiddenWindow" (32x32, never mapped) through which other X clients
// ask for the action dialog, realizes it and stores it in zolHidden.
void CreateHiddenWindow();

// The hidden shell's handler of non-maskable events: a ClientMessage whose first four data
// bytes are "open" queues UICommandShowActions. Its format and type are not looked at, and
// every other event is ignored.
void HiddenWindowEventHandler(Widget widget, XtPointer closure, XEvent* event,
                              Boolean* continueToDispatch);
