#include "threads/Event.h"

#include <errno.h>

#include <cstdint>

namespace UnixPlatform {

namespace {

// The intervals from this length on wait without a time limit: 0xFFFFFFFF milliseconds.
std::int64_t const infiniteMicroseconds = 4294967295000LL;

// Holds a UnixPlatform::Mutex for a scope.
class MutexHold {
  public:
    explicit MutexHold(Mutex& mutex) : m_token(WaitForMutex(mutex)) {}
    // Releasing a mutex this thread holds cannot fail but by a broken guard; nothing useful can
    // be done about that in a destructor.
    ~MutexHold() {
        try {
            ReleaseMutex(m_token);
        } catch (...) {
        }
    }
    MutexHold(MutexHold const&) = delete;
    MutexHold& operator=(MutexHold const&) = delete;

  private:
    Mutex* m_token;
};

// Holds a locked pthread mutex until the end of the scope.
class PthreadHold {
  public:
    explicit PthreadHold(pthread_mutex_t& mutex) : m_mutex(mutex) {
        ThrowError<EventError>(pthread_mutex_lock(&m_mutex));
    }
    ~PthreadHold() { pthread_mutex_unlock(&m_mutex); }
    PthreadHold(PthreadHold const&) = delete;
    PthreadHold& operator=(PthreadHold const&) = delete;

  private:
    pthread_mutex_t& m_mutex;
};

}  // namespace

EventSignal::EventSignal() : m_fired(false) {
    ThrowError<EventError>(pthread_mutex_init(&m_mutex, nullptr));
    try {
        InitializeConditionVariable<EventError>(m_condition);
    } catch (...) {
        pthread_mutex_destroy(&m_mutex);
        throw;
    }
}

EventSignal::~EventSignal() {
    pthread_cond_destroy(&m_condition);
    pthread_mutex_destroy(&m_mutex);
}

bool EventSignal::WaitOnSignal(TimeInterval interval) {
    int result;
    {
        PthreadHold hold(m_mutex);
        if (m_fired) return true;
        timespec const deadline = ConvertToTimeout(interval, ThrowError<EventError>);
        // No loop around the wait: a spurious wake-up is taken as a signal.
        if (interval.Microseconds() >= infiniteMicroseconds) {
            result = pthread_cond_wait(&m_condition, &m_mutex);
        } else {
            result = pthread_cond_timedwait(&m_condition, &m_mutex, &deadline);
        }
    }
    if (result == ETIMEDOUT) return false;
    ThrowError<EventError>(result);
    return true;
}

void EventSignal::Fire() {
    PthreadHold hold(m_mutex);
    m_fired = true;
    ThrowError<EventError>(pthread_cond_broadcast(&m_condition));
}

Event::Event() : m_signalled(false) {}

void Event::SetEvent() {
    MutexHold hold(m_lock);
    m_signalled = true;
    for (List::Loop loop(m_links); !loop.Done(); loop.Advance()) {
        if (loop.Current()) static_cast<EventLink*>(loop.Current())->Signal().Fire();
    }
}

void Event::ResetEvent() {
    MutexHold hold(m_lock);
    m_signalled = false;
}

void Event::AddSignal(EventLink& link) const {
    MutexHold hold(m_lock);
    if (m_signalled) throw AlreadySignaled();
    m_links.Add(link, AfterEnd());
}

void Event::RemoveSignal(EventLink& link) const {
    MutexHold hold(m_lock);
    m_links.Remove(link);
}

unsigned long Event::LinkCount() const {
    MutexHold hold(m_lock);
    return m_links.Count();
}

EventLink::EventLink(EventSignal& signal, Event const& event) : m_signal(signal), m_event(event) {
    event.AddSignal(*this);
}

EventLink::~EventLink() {
    // Taken out under the event's lock, so that a SetEvent in another thread never fires a
    // signal whose waiter has gone.
    try {
        m_event.RemoveSignal(*this);
    } catch (...) {
    }
}

bool WaitForSingleEvent(Event const& event, TimeInterval interval) {
    EventSignal signal;
    try {
        EventLink link(signal, event);
        return signal.WaitOnSignal(interval);
    } catch (AlreadySignaled const&) {
        return true;
    }
}

bool WaitForTwoEvents(Event const& first, Event const& second, TimeInterval interval) {
    EventSignal signal;
    try {
        EventLink firstLink(signal, first);
        EventLink secondLink(signal, second);
        return signal.WaitOnSignal(interval);
    } catch (AlreadySignaled const&) {
        return true;
    }
}

void SetEvent(Event& event) {
    event.SetEvent();
}

void ResetEvent(Event& event) {
    event.ResetEvent();
}

timespec ConvertToTimeout(TimeInterval interval, void (*errorHandler)(int)) {
    std::int64_t const microseconds = interval.Microseconds() < 0 ? 0 : interval.Microseconds();
    timespec now = {0, 0};
    int const result = clock_gettime(CLOCK_REALTIME, &now);
    if (errorHandler) errorHandler(result == 0 ? 0 : errno);
    std::int64_t seconds = static_cast<std::int64_t>(now.tv_sec) + microseconds / 1000000;
    if (seconds > 0x7FFFFFFE) seconds = 0x7FFFFFFE;
    long nanoseconds = now.tv_nsec + static_cast<long>(microseconds % 1000000) * 1000;
    if (nanoseconds >= 1000000000L) {
        nanoseconds -= 1000000000L;
        seconds += 1;
    }
    timespec deadline;
    deadline.tv_sec = static_cast<time_t>(seconds);
    deadline.tv_nsec = nanoseconds;
    return deadline;
}

}  // namespace UnixPlatform
