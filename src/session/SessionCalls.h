#pragma once
// What the dialogs may use of the session: the pending actions and the state they read, the
// queue for the user's decisions, and the two ways to end the process. Dialog code includes
// this header and no other of the session.

#include <X11/Intrinsic.h>

#include <vector>

#include "session/ActionRequest.h"
#include "session/ActionRequestStore.h"
#include "session/ClientUIErrorMessage.h"
#include "session/UICommand.h"
#include "session/UnixPipe.h"
#include "time/Instant.h"
#include "time/TimeInterval.h"

// All of these belong to the main thread and have no lock.
extern std::vector<ActionRequest> actions;  // pending actions in order of arrival
extern bool initialized;                    // the first document has been processed
extern bool inQuietMode;                    // between the agent's quiet-mode start and end
extern bool international;                  // the session runs in a real locale
extern Instant m_postponedTo;               // the action dialog stays away until then
extern TimeInterval m_remindInterval;       // snooze length handed to the action dialog
extern bool m_snoozable;                    // the action dialog offers snoozing
extern XtAppContext app_context;
extern Display* display;
extern Widget zolHidden;          // the hidden shell that other X clients talk to
extern bool hiddenWindowPending;  // the hidden shell is still to be made
extern UnixPipe* clientPipe;      // the pipe to the agent; Killed() says the session is over

// Reports a fatal condition to the agent and waits, at most 300 seconds, for the report to
// leave. The caller ends the process with ExitCleanup next.
void SendErrorToClient(ClientUIErrorMessage& message);
// Ends the process; see ExitCleanup.h.
[[noreturn]] void ExitCleanup(int status, char const* reason);

// Takes up the documents the agent has sent; throws nothing. The X loop's tick calls it once a
// second.
void ProcessMessagesFromClient();
