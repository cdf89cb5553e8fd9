// The process: greet the agent, wait for the first document, then hand the main thread to the
// X loop, which runs the session from then on. It ends through ExitCleanup when the pipe dies.

#include <signal.h>
#include <unistd.h>

#include "session/ClientSender.h"
#include "session/DialogCalls.h"
#include "session/ExitCleanup.h"
#include "session/ProcessMessagesFromClient.h"
#include "session/ReadyForData.h"
#include "session/SendErrorToClient.h"
#include "session/SessionState.h"

int main(int argc, char** argv) {
    // A write to a pipe whose reader has gone must fail with EPIPE instead of ending the
    // process on the spot: the write thread then kills the pipe, and the process ends with
    // status 0 two seconds later, as it does whenever the pipe dies. This is the one signal
    // disposition the process sets; whatever the agent left in place is overridden here.
    signal(SIGPIPE, SIG_IGN);
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
    // The X loop has ended by an exception. A decision a tick queued before it must still
    // reach the agent: the write thread is given the time the error report is given.
    WaitForWriteQueue();
    try {
        delete mainReference;
    } catch (...) {
    }
    return 0;
}
