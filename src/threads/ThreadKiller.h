#pragma once
// A process-wide stop switch that long-running thread loops read, and an event beside it. Nothing
// in this program sets either, and nothing waits on the event; a library user may set them, to
// make the pipe loops end.

#include "threads/Event.h"

struct ThreadKiller {
    static bool m_kill;
    static EventMaster m_Event;
};
