#pragma once
// The failures of the threads layer. DebuggableException, the root of every failure class of the
// system, has its own header beside this one.

#include "threads/DebuggableException.h"

namespace UnixPlatform {

// A failed pthread call; carries the error number.
class MutexError : public DebuggableException {
  public:
    explicit MutexError(int error) : m_error(error) {}
    int m_error;
};

// A failed pthread call of an event or a wait; carries the error number.
class EventError : public DebuggableException {
  public:
    explicit EventError(int error) : m_error(error) {}
    int m_error;
};

// Reports to a waiter that the event is already set; it never leaves the wait functions.
class AlreadySignaled : public DebuggableException {};

}  // namespace UnixPlatform
