#include "session/MessageRequest.h"

#include "xml/XMLLoad.h"

void XMLSerialize(XMLElement const& element, MessageRequest& request) {
    XMLSerialize(element, "IsCompletionMessage", request.m_isCompletionMessage);
    XMLSerialize(element, "Timeout", request.m_timeout);
    XMLSerialize(element, "Title", request.m_title);
    XMLSerialize(element, "Message", request.m_message);
    XMLSerialize(element, "ID", request.m_id);
}
