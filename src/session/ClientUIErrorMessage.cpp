#include "session/ClientUIErrorMessage.h"

#include "xml/XMLSave.h"

char const* const ClientUIErrorMessage::rootElementName = "ClientToUI";
char const* const ClientUIErrorMessage::messageElementName = "ClientUIErrorMessage";

void XMLSerialize(XMLWriter& writer, ClientUIErrorMessage& message) {
    XMLSerialize(writer, "DebugString", message.m_debugString);
    XMLSerialize(writer, "ErrorCode", static_cast<unsigned long>(message.m_code));
}
