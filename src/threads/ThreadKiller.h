#pragma once
// A process-wide stop switch that long-running thread loops read. Nothing in this program sets
// it; a library user may, to make the pipe loops end.

struct ThreadKiller {
    static bool m_kill;
};
