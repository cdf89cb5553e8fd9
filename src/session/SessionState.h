#pragma once
// The process-wide objects of a session. All are made before main runs and belong to the main
// thread, except the two queues (shared with the pipe threads under their own locks) and the
// pipe object, whose threads use it directly.

#include <X11/Intrinsic.h>

#include "session/ClientSender.h"
#include "session/UIMessageQueue.h"
#include "session/UnixPipe.h"

extern UIMessageQueue readQ;   // frames received from the agent; the read thread appends
extern UIMessageQueue writeQ;  // frames to send to the agent; the write thread drains
extern bool initialized;       // set as the last step of processing the first document
extern bool inQuietMode;       // between the agent's quiet-mode start and end
extern bool international;     // the session runs in a real locale
extern bool m_snoozable;       // the action dialog offers snoozing
extern XtAppContext app_context;
extern Display* display;
extern Widget zolHidden;          // the hidden shell that other X clients talk to
extern UnixPipe* clientPipe;      // the one pipe; main also holds a reference on it
extern bool hiddenWindowPending;  // the hidden shell is still to be made
