// The process: greet the agent, wait for the first document, then (once the dialogs exist) run
// the X loop. It ends through ExitCleanup when the pipe dies.

#include <unistd.h>

#include "session/ClientSender.h"
#include "session/ExitCleanup.h"
#include "session/ProcessMessagesFromClient.h"
#include "session/ReadyForData.h"
#include "session/SessionState.h"

int main(int, char**) {
    clientPipe = new UnixPipe(readQ, writeQ);
    UnixPipeRef* mainReference = new UnixPipeRef(clientPipe);
    clientPipe->Start(0, 1);  // a pipe that could not start shows up through Killed()

    ReadyForData greeting;
    WriteXMLToClient(greeting);

    for (;;) {
        if (initialized) break;
        if (clientPipe && clientPipe->Killed()) ExitCleanup(0, "CLOSED");
        sleep(1);
        ProcessMessagesFromClient();
    }

    try {
        delete mainReference;
    } catch (...) {
    }
    return 0;
}
