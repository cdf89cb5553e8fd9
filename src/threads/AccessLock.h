#pragma once
// A recursive lock and its scoped holder: the only locks the pipe and the queues use.

#include <pthread.h>

// One recursive pthread mutex: the thread that holds it may take it again. Results of the
// pthread calls are not examined.
class AccessLock {
  public:
    AccessLock();
    ~AccessLock();
    AccessLock(AccessLock const&) = delete;
    AccessLock& operator=(AccessLock const&) = delete;

    void Lock();
    void Unlock();

  private:
    pthread_mutex_t m_mutex;
};

// Locks in the constructor, unlocks in the destructor. The lock must outlive the holder.
class AccessLocker {
  public:
    explicit AccessLocker(AccessLock& lock) : m_lock(&lock) { m_lock->Lock(); }
    explicit AccessLocker(AccessLock const& lock) : AccessLocker(const_cast<AccessLock&>(lock)) {}
    ~AccessLocker() { m_lock->Unlock(); }
    AccessLocker(AccessLocker const&) = delete;
    AccessLocker& operator=(AccessLocker const&) = delete;

  private:
    AccessLock* m_lock;
};
