#pragma once
// The process-wide objects of a session. All are made before main runs and belong to the main
// thread, except the two queues of documents (shared with the pipe threads under their own
// locks) and the pipe object, whose threads use it directly. What the dialogs may see of them
// is in SessionCalls.h.

#include "files/FileLocation.h"
#include "session/ClientSender.h"
#include "session/SessionCalls.h"
#include "session/UICommand.h"
#include "session/UIMessageQueue.h"
#include "session/UnixPipe.h"

// The two queues live on the heap and are never destroyed: the pipe's threads are detached and
// may still use them while exit() runs the static destructors.
extern UIMessageQueue& readQ;         // frames received from the agent; the read thread appends
extern UIMessageQueue& writeQ;        // frames to send to the agent; the write thread drains
extern UICommandQueue uiCommandQ;     // decisions made in the dialogs
extern FileLocation m_baseDirectory;  // the session directory
