#pragma once
// A lock that its owning thread may take several times and that is released by a token, one
// release per acquisition. It guards the shared count of shared values.

#include <pthread.h>

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

class Mutex {
public:
    // Throws MutexError if the guard or the condition cannot be made.
    Mutex();
    ~Mutex();
    Mutex(Mutex const&) = delete;
    Mutex& operator=(Mutex const&) = delete;

    // Returns whether the calling thread may take the lock now. Call with the guard held.
    bool Available() const;
    // Adds one acquisition for the calling thread. Call with the guard held.
    void Acquire();

private:
    friend Mutex* WaitForMutex(Mutex&);
    friend Mutex* TryMutex(Mutex&);
    friend void ReleaseMutex(Mutex*);

    pthread_mutex_t m_guard;
    pthread_cond_t m_released;
    pthread_t m_owner;
    unsigned int m_count = 0;
};

// Returns the mutex as a token once the calling thread holds it; blocks while another holds it.
Mutex* WaitForMutex(Mutex& mutex);
// Returns the token, or null at once if another thread holds the mutex.
Mutex* TryMutex(Mutex& mutex);
// Releases one acquisition; a null token does nothing.
void ReleaseMutex(Mutex* token);

}  // namespace UnixPlatform

// Throws E carrying the number when a pthread call's result is not 0.
template <class E>
void ThrowError(int error) {
    if (error != 0) throw E(error);
}

// Makes a condition variable with default attributes; throws E on failure.
template <class E>
void InitializeConditionVariable(pthread_cond_t& condition) {
    pthread_condattr_t attributes;
    ThrowError<E>(pthread_condattr_init(&attributes));
    int result = pthread_cond_init(&condition, &attributes);
    pthread_condattr_destroy(&attributes);
    ThrowError<E>(result);
}
