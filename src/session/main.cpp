// The process: greet the agent, wait for the first document, then hand the main thread to the
// X loop, which runs the session from then on. It ends through ExitCleanup when the pipe dies.

#include <unistd.h>

#include "session/ClientSender.h"
#include "session/DialogCalls.h"
#include "session/ExitCleanup.h"
#include "session/ProcessMessagesFromClient.h"
#include "session/ReadyForData.h"
#include "session/SessionState.h"

int main(int argc, char** argv) {
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
    // The command line is the X toolkit's: the process has no options of its own.
    InitXApp(argc, argv);
    try {
        delete mainReference;
    } catch (...) {
    }
    return 0;
}
