#include "session/ClientSender.h"

#include <cstring>

#include "session/SessionState.h"

void SendToClient(PipeWriter&, UStringRef<UTF8> text) {
    UIMessage message;
    message.m_type = 0;
    message.m_text = MakeUString(text);
    writeQ.WriteMessage(message);
}

template <>
void WriteXMLToClient<ReadyForData>(ReadyForData&) {
    static char const document[] =
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<ClientToUI>\n\t<ReadyForData></ReadyForData>\n"
        "</ClientToUI>";
    SendToClient(pipeWriter, EncodingCast<UStringRef<UTF8>, char>(document));
}
