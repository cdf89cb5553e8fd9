#include "threads/AccessLock.h"

AccessLock::AccessLock() {
    pthread_mutexattr_t attributes;
    pthread_mutexattr_init(&attributes);
    pthread_mutexattr_settype(&attributes, PTHREAD_MUTEX_RECURSIVE);
    pthread_mutex_init(&m_mutex, &attributes);
    pthread_mutexattr_destroy(&attributes);
}

AccessLock::~AccessLock() {
    pthread_mutex_destroy(&m_mutex);
}

void AccessLock::Lock() {
    pthread_mutex_lock(&m_mutex);
}

void AccessLock::Unlock() {
    pthread_mutex_unlock(&m_mutex);
}
