#pragma once
// Reports a fatal condition to the agent before the process ends.

#include "session/ClientUIErrorMessage.h"

// Queues the report twice in a row (the agent sees it twice, deliberately), then waits until
// the write thread has taken the queue or the pipe is killed, looking once a second, for at
// most 300 seconds. Callers end the process with ExitCleanup afterwards.
void SendErrorToClient(ClientUIErrorMessage& message);
