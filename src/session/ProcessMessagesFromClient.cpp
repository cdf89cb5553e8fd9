#include "session/ProcessMessagesFromClient.h"

#include "session/SessionState.h"

void ProcessMessagesFromClient() {
    FiFoQueue<UIMessage> batch;
    try {
        readQ.ReadMessages(batch);
        // The documents are not interpreted yet: the batch is taken and dropped.
        batch.Clear();
    } catch (...) {
    }
}
