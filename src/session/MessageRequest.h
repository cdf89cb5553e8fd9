#pragma once
// A notification from the agent, shown in a message dialog of its own; it has nothing to do
// with the pending actions.

#include "text/bytes/NullOr.h"
#include "text/unicode/SharedUString.h"
#include "time/TimeInterval.h"

class XMLElement;

struct MessageRequest {
    SharedUString<UTF8> m_title;
    SharedUString<UTF8> m_message;
    bool m_isCompletionMessage = false;
    NullOr<TimeInterval> m_timeout;  // null: the dialog stays until the user closes it
    unsigned long long m_id = 0;     // names the dialog for a later removal
};

// Loads "IsCompletionMessage", "Timeout", "Title", "Message" and "ID". Throws what the value
// forms throw: a "Timeout" that is present but empty is no duration.
void XMLSerialize(XMLElement const& element, MessageRequest& request);
