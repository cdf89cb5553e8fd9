#pragma once
// A process-wide stop switch that long-running thread loops read. Nothing in this program sets
// it; a library user may, to make the pipe loops end. It is set on one thread and read on
// others, hence atomic.

#include <atomic>

struct ThreadKiller {
    static std::atomic<bool> m_kill;
};
