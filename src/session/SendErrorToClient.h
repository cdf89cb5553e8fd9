#pragma once
// Reports a fatal condition to the agent before the process ends, and waits for what is queued
// for the agent to leave.

#include "session/ClientUIErrorMessage.h"

// Queues the report twice in a row (the agent sees it twice, deliberately), then waits for it
// to leave with WaitForWriteQueue. Callers end the process with ExitCleanup afterwards.
void SendErrorToClient(ClientUIErrorMessage& message);

// Returns once the write thread has taken everything queued for the agent or the pipe is
// killed, looking at once and then once a second, after at most 300 seconds in any case.
void WaitForWriteQueue();
