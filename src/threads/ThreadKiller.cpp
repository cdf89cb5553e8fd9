#include "threads/ThreadKiller.h"

std::atomic<bool> ThreadKiller::m_kill{false};
