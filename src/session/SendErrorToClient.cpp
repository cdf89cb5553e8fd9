#include "session/SendErrorToClient.h"

#include <unistd.h>

#include "session/ClientSender.h"
#include "session/SessionState.h"

void SendErrorToClient(ClientUIErrorMessage& message) {
    WriteXMLToClient(message);
    WriteXMLToClient(message);
    WaitForWriteQueue();
}

void WaitForWriteQueue() {
    for (int attempt = 0; attempt < 300; ++attempt) {
        if (writeQ.IsEmpty()) return;
        // A killed pipe never drains the queue: the agent's end is gone, nobody will read.
        if (clientPipe && clientPipe->Killed()) return;
        sleep(1);
    }
}
