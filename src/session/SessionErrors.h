#pragma once
// The failures of the session's pipe and queues: empty types with no base and no text, caught
// by class where the pipe threads end.

// Thrown by the read side at end of stream or on a frame that is too long.
struct UnixPipeReadMessageError {};
// Thrown by the write side on a short or failed write.
struct UnixPipeWriteMessageError {};

// Thrown when the first element of an empty queue is taken.
struct FiFoQueueIsEmpty {};
