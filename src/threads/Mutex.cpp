#include "threads/Mutex.h"

namespace UnixPlatform {

Mutex::Mutex() : m_owner() {
    ThrowError<MutexError>(pthread_mutex_init(&m_guard, nullptr));
    try {
        InitializeConditionVariable<MutexError>(m_released);
    } catch (...) {
        pthread_mutex_destroy(&m_guard);
        throw;
    }
}

Mutex::~Mutex() {
    pthread_cond_destroy(&m_released);
    pthread_mutex_destroy(&m_guard);
}

bool Mutex::Available() const {
    return m_count == 0 || pthread_equal(m_owner, pthread_self());
}

void Mutex::Acquire() {
    ++m_count;
    m_owner = pthread_self();
}

Mutex* WaitForMutex(Mutex& mutex) {
    ThrowError<MutexError>(pthread_mutex_lock(&mutex.m_guard));
    while (!mutex.Available()) {
        int result = pthread_cond_wait(&mutex.m_released, &mutex.m_guard);
        if (result != 0) {
            pthread_mutex_unlock(&mutex.m_guard);
            ThrowError<MutexError>(result);
        }
    }
    mutex.Acquire();
    ThrowError<MutexError>(pthread_mutex_unlock(&mutex.m_guard));
    return &mutex;
}

Mutex* TryMutex(Mutex& mutex) {
    ThrowError<MutexError>(pthread_mutex_lock(&mutex.m_guard));
    Mutex* token = nullptr;
    if (mutex.Available()) {
        mutex.Acquire();
        token = &mutex;
    }
    ThrowError<MutexError>(pthread_mutex_unlock(&mutex.m_guard));
    return token;
}

void ReleaseMutex(Mutex* token) {
    if (!token) return;
    ThrowError<MutexError>(pthread_mutex_lock(&token->m_guard));
    if (token->m_count != 0 && --token->m_count == 0) pthread_cond_signal(&token->m_released);
    ThrowError<MutexError>(pthread_mutex_unlock(&token->m_guard));
}

}  // namespace UnixPlatform
