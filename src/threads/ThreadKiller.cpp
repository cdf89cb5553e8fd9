#include "threads/ThreadKiller.h"

bool ThreadKiller::m_kill = false;
EventMaster ThreadKiller::m_Event;
