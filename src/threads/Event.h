#pragma once
// Waitable events that stay set until they are reset: a thread waits on one event or on either
// of two, with a timeout, and any number of threads may set them. A waiting thread sleeps on an
// EventSignal of its own, tied to each event it waits on by an EventLink in the event's list;
// setting an event fires every signal linked to it.
//
// Lock order: an event's lock, then a signal's mutex.

#include <pthread.h>
#include <time.h>

#include "threads/List.h"
#include "threads/Mutex.h"
#include "time/TimeInterval.h"

namespace UnixPlatform {

class EventLink;

// What one waiting thread sleeps on: fired once, it stays fired.
class EventSignal {
  public:
    // Throws EventError if the mutex or the condition cannot be made.
    EventSignal();
    ~EventSignal();
    EventSignal(EventSignal const&) = delete;
    EventSignal& operator=(EventSignal const&) = delete;

    // Returns true at once if the signal has fired; otherwise waits for it up to the interval
    // and returns false on timeout. An interval of 0xFFFFFFFF milliseconds or more waits without
    // a limit. A wake-up without a Fire counts as fired. Throws EventError.
    bool WaitOnSignal(TimeInterval interval);
    // Marks the signal fired and wakes every thread waiting on it. Throws EventError.
    void Fire();

  private:
    pthread_mutex_t m_mutex;
    pthread_cond_t m_condition;
    bool m_fired;
};

// A manual-reset event. Any thread may set, reset or wait on it.
class Event {
  public:
    // Throws MutexError if its lock cannot be made.
    Event();
    Event(Event const&) = delete;
    Event& operator=(Event const&) = delete;

    // Sets the event and fires the signal of every link waiting on it; the links stay listed,
    // since each waiter removes its own.
    void SetEvent();
    void ResetEvent();

    // Lists the link. Throws AlreadySignaled if the event is set: that is how a waiter learns
    // that it needn't wait.
    void AddSignal(EventLink& link) const;
    void RemoveSignal(EventLink& link) const;
    // Returns the number of links now listed, that is of waits in progress.
    unsigned long LinkCount() const;

  private:
    mutable Mutex m_lock;
    bool m_signalled;
    mutable List m_links;
};

// Ties a signal to an event for as long as it exists.
class EventLink : public ListNode {
  public:
    // Throws AlreadySignaled if the event is set; nothing is listed then.
    EventLink(EventSignal& signal, Event const& event);
    ~EventLink() override;
    EventLink(EventLink const&) = delete;
    EventLink& operator=(EventLink const&) = delete;

    EventSignal& Signal() const { return m_signal; }

  private:
    EventSignal& m_signal;
    Event const& m_event;
};

// Returns true if the event was set or became set within the interval, false on timeout. An
// event already set returns at once, without reading the clock. Throws EventError.
bool WaitForSingleEvent(Event const& event, TimeInterval interval);
// Returns true if either event was or became set within the interval, without telling which.
bool WaitForTwoEvents(Event const& first, Event const& second, TimeInterval interval);
void SetEvent(Event& event);
void ResetEvent(Event& event);

// Returns the absolute CLOCK_REALTIME time that lies the interval ahead of now, for
// pthread_cond_timedwait. A negative interval counts as 0, and the seconds are held at
// 0x7FFFFFFE. The clock's result (0, or errno after a failure) goes to errorHandler.
timespec ConvertToTimeout(TimeInterval interval, void (*errorHandler)(int));

}  // namespace UnixPlatform

// An event with a static life, as ThreadKiller keeps one.
class EventMaster : public UnixPlatform::Event {};
