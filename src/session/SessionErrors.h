#pragma once
// The failures of the session library. The pipe's and the queue's own empty failure types
// stand beside their classes (UnixPipe.h, FiFoQueue.h), since they have no base by design.

#include "threads/DebuggableException.h"

// Thrown by the action store for an ID it does not hold.
class NoSuchActionRequestID : public DebuggableException {};

// Thrown when the session directory named by the agent is a symbolic link: it is neither
// emptied through the link nor used, and the process waits for a better first document.
class SessionDirectoryIsLink : public DebuggableException {};
