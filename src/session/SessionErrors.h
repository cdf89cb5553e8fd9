#pragma once
// The failures of the session library. The pipe's and the queue's failures are empty types with
// no base and no text, caught by class where the pipe threads end.

#include "threads/DebuggableException.h"

// Thrown by the read side at end of stream or on a frame that is too long.
struct UnixPipeReadMessageError {};
// Thrown by the write side on a short or failed write.
struct UnixPipeWriteMessageError {};

// Thrown when the first element of an empty queue is taken.
struct FiFoQueueIsEmpty {};

// Thrown by the action store for an ID it does not hold.
class NoSuchActionRequestID : public DebuggableException {};

// Thrown when the session directory named by the agent is a symbolic link: it is neither
// emptied through the link nor used, and the process waits for a better first document.
class SessionDirectoryIsLink : public DebuggableException {};

// Thrown when the session is to follow the user's locale and the environment names one for the
// character type that the system does not have.
class NoCharacterTypeLocale : public DebuggableException {};
