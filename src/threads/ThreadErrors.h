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

}  // namespace UnixPlatform
