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

// Thrown when the session directory named by the agent could lead elsewhere than it says or
// cannot be used: it is empty or relative, has a "." or ".." component, a component that is no
// directory or cannot be examined, or is too long. Nothing has been deleted or made, and the
// process waits for a better first document.
class SessionDirectoryRefused : public DebuggableException {};

// Thrown when the session directory named by the agent, or a directory on its way, is a
// symbolic link: nothing is emptied through the link.
class SessionDirectoryIsLink : public SessionDirectoryRefused {};

// Thrown when a support file has no name, a name or sub-folder that is no name, or would have
// a path too long for the system. Nothing has been deleted or made.
class SupportFileRefused : public DebuggableException {};

// Thrown when the session is to follow the user's locale and the environment names one for the
// character type that the system does not have.
class NoCharacterTypeLocale : public DebuggableException {};
