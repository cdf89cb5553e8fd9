#include "session/SendErrorToClient.h"

#include <unistd.h>

#include "session/ClientSender.h"
#include "session/SessionState.h"

void SendErrorToClient(ClientUIErrorMessage& message) {
    WriteXMLToClient(message);
    WriteXMLToClient(message);
    for (int attempt = 0; attempt < 300; ++attempt) {
        if (writeQ.IsEmpty()) return;
        sleep(1);
    }
}
