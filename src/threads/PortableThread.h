#pragma once
// A detached POSIX thread whose object lives until both sides have let go: the thread marks it
// completed, the owner marks it abandoned, and the thread then deletes it. Nothing joins.

#include <pthread.h>

#include <atomic>

#include "threads/Event.h"

class PortableThread {
  public:
    // Does not start anything. runToCompletion chooses the entry function: true lets the
    // thread delete itself as soon as its function returns; false waits for Abandon first.
    PortableThread(void (*function)(void*), void* argument, bool runToCompletion);
    ~PortableThread() {}
    PortableThread(PortableThread const&) = delete;
    PortableThread& operator=(PortableThread const&) = delete;

    // Returns null for a null function, else a new object that waits for Abandon, not started.
    static PortableThread* CreatePortableThreadSuspended(void (*function)(void*), void* argument);
    // Returns the same as above, started; null if it could not start (the object is deleted).
    static PortableThread* CreatePortableThread(void (*function)(void*), void* argument);
    // Returns whether a self-deleting thread was started; false for a null function.
    static bool RunPortableThread(void (*function)(void*), void* argument);

    // Returns true when the thread exists, or when Start was called before (even if that
    // earlier call failed). Failures print one of five messages on stderr.
    bool Start();
    // Lets go of the object. The owner must not touch it afterwards.
    void Abandon() { m_abandoned.store(true); }
    // Marks the function as returned; called by the thread itself.
    void Complete() { m_completed.store(true); }
    bool Completed() const { return m_completed.load(); }
    bool Abandoned() const { return m_abandoned.load(); }

    static void* WaitForAbandon(void* block);
    static void* WaitForCompletion(void* block);

    // The floor for a new thread's stack; a larger default is left alone.
    static unsigned long const minimumStackSize;

  private:
    // One writer each, the other side only waits for the change; atomic so that the wait is
    // well defined under the C++ memory model.
    std::atomic<bool> m_abandoned{false};
    std::atomic<bool> m_completed{false};
    void (*m_function)(void*);
    void* m_argument;
    bool m_suspended = true;
    bool m_runToCompletion;
    pthread_t m_threadId = 0;
};

// A process-wide stop switch that long-running thread loops read, and an event beside it. Nothing
// in this program sets either, and nothing waits on the event; a library user may set them, to
// make the pipe loops end. The switch is set on one thread and read on others, hence atomic.
struct ThreadKiller {
    static std::atomic<bool> m_kill;
    static EventMaster m_Event;
};

// Sleeps ms milliseconds: whole seconds with sleep(), the remainder with usleep(). The plain
// sleep of the pipe threads, the abandon handshake and the file retries.
void MilliSecondSleep(unsigned long ms);
