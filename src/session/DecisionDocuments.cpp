#include "session/DecisionDocuments.h"

#include "xml/XMLSave.h"

char const* const ActionTaken::rootElementName = "UIToClient";
char const* const ActionTaken::messageElementName = "ActionTaken";
char const* const RemindTime::rootElementName = "UIToClient";
char const* const RemindTime::messageElementName = "RemindTime";
char const* const RemindInterval::rootElementName = "UIToClient";
char const* const RemindInterval::messageElementName = "RemindInterval";

void XMLSerialize(XMLWriter& writer, ActionTaken const& message) {
    XMLSerialize(writer, "IsCancel", message.m_isCancel);
    XMLSerialize(writer, "IsOffer", message.m_isOffer);
    XMLSerialize(writer, "ID", message.m_id);
}

void XMLSerialize(XMLWriter& writer, RemindTime const& message) {
    XMLSerialize(writer, "TimeObject", message.m_timeObject);
}

void XMLSerialize(XMLWriter& writer, RemindInterval const& message) {
    XMLSerialize(writer, "TimeInterval", message.m_timeInterval);
}

void XMLSave(XMLWriter& writer, ActionTaken const& message) {
    XMLSerialize(writer, message);
}

void XMLSave(XMLWriter& writer, RemindTime const& message) {
    XMLSerialize(writer, message);
}

void XMLSave(XMLWriter& writer, RemindInterval const& message) {
    XMLSerialize(writer, message);
}
