#include "threads/PortableThread.h"

#include <unistd.h>

#include <cstdio>

#include "threads/AtThreadExit.h"

unsigned long const PortableThread::minimumStackSize = 0x80000;

std::atomic<bool> ThreadKiller::m_kill{false};
EventMaster ThreadKiller::m_Event;

void MilliSecondSleep(unsigned long ms) {
    if (ms / 1000 != 0) sleep(static_cast<unsigned>(ms / 1000));
    usleep(static_cast<useconds_t>((ms % 1000) * 1000));
}

namespace {

// What the new thread receives; owned by the thread once it runs.
struct StartBlock {
    void (*function)(void*);
    void* argument;
    PortableThread* thread;
};

}  // namespace

PortableThread::PortableThread(void (*function)(void*), void* argument, bool runToCompletion)
    : m_function(function), m_argument(argument), m_runToCompletion(runToCompletion) {}

PortableThread* PortableThread::CreatePortableThreadSuspended(void (*function)(void*),
                                                              void* argument) {
    if (!function) return nullptr;
    return new PortableThread(function, argument, false);
}

PortableThread* PortableThread::CreatePortableThread(void (*function)(void*), void* argument) {
    PortableThread* thread = CreatePortableThreadSuspended(function, argument);
    if (thread && !thread->Start()) {
        delete thread;
        return nullptr;
    }
    return thread;
}

bool PortableThread::RunPortableThread(void (*function)(void*), void* argument) {
    if (!function) return false;
    PortableThread* thread = new PortableThread(function, argument, true);
    if (!thread->Start()) {
        delete thread;
        return false;
    }
    return true;
}

bool PortableThread::Start() {
    if (!m_suspended) return true;
    m_suspended = false;

    pthread_attr_t attributes;
    int result = pthread_attr_init(&attributes);
    if (result != 0) {
        fprintf(stderr, "Unable to pthread_attr_init (%d)\n", result);
        return false;
    }
    bool started = false;
    size_t stackSize = 0;
    if ((result = pthread_attr_setdetachstate(&attributes, PTHREAD_CREATE_DETACHED)) != 0) {
        fprintf(stderr, "Unable to pthread_attr_setdetachstate (%d)\n", result);
    } else if ((result = pthread_attr_getstacksize(&attributes, &stackSize)) != 0) {
        fprintf(stderr, "Unable to pthread_attr_getstacksize (%d)\n", result);
    } else if (stackSize < minimumStackSize &&
               (result = pthread_attr_setstacksize(&attributes, minimumStackSize)) != 0) {
        fprintf(stderr, "Unable to pthread_attr_setstacksize (%d)\n", result);
    } else {
        StartBlock* block = new StartBlock{m_function, m_argument, this};
        result = pthread_create(&m_threadId, &attributes,
                                m_runToCompletion ? WaitForCompletion : WaitForAbandon, block);
        if (result != 0) {
            fprintf(stderr, "Unable to pthread_create (%d)\n", result);
            delete block;
        } else {
            started = true;
        }
    }
    pthread_attr_destroy(&attributes);
    return started;
}

void* PortableThread::WaitForAbandon(void* argument) {
    StartBlock* block = static_cast<StartBlock*>(argument);
    if (!block) return nullptr;
    PortableThread* thread = block->thread;
    if (!thread) {
        delete block;
        return nullptr;
    }
    try {
        block->function(block->argument);
    } catch (...) {
        // A thread's failure ends the thread and nothing else.
    }
    thread->Complete();
    while (!thread->Abandoned()) MilliSecondSleep(1);
    delete thread;
    delete block;
    DoThreadExitRoutines();
    return nullptr;
}

void* PortableThread::WaitForCompletion(void* argument) {
    StartBlock* block = static_cast<StartBlock*>(argument);
    if (!block) return nullptr;
    try {
        block->function(block->argument);
    } catch (...) {
        // As above: dropped without a trace.
    }
    delete block->thread;
    delete block;
    DoThreadExitRoutines();
    return nullptr;
}
