#include "session/ClientSender.h"

#include "session/SessionState.h"

PipeWriter pipeWriter;

void SendToClient(PipeWriter&, UStringRef<UTF8> text) {
    UIMessage message;
    message.m_type = 0;
    message.m_text = MakeUString(text);
    writeQ.WriteMessage(message);
}
