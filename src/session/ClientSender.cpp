#include "session/ClientSender.h"

#include <string>

#include "session/SessionState.h"
#include "session/Trace.h"

PipeWriter pipeWriter;

void QueueDocumentForClient(UStringRef<UTF8> text, char const* messageName) {
    UIMessage message;
    message.m_type = 0;
    message.m_text = MakeUString(text);
    writeQ.WriteMessage(message);
    Trace([&] {
        return std::string("sent ") + (messageName ? messageName : "a document") + " (" +
               std::to_string(text.Length()) + " bytes)";
    });
}

void SendToClient(PipeWriter&, UStringRef<UTF8> text) {
    QueueDocumentForClient(text, nullptr);
}
