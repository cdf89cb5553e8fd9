#pragma once
// The documents that carry the user's decisions to the agent: an action taken or cancelled,
// and a snooze as the time to remind and the interval chosen. Their root element is
// "UIToClient", unlike the greeting and the error report; the agent expects exactly that.

#include "time/TimeInterval.h"
#include "time/TimeObject.h"

class XMLWriter;

struct ActionTaken {
    static char const* const rootElementName;     // "UIToClient"
    static char const* const messageElementName;  // "ActionTaken"
    unsigned long long m_id = 0;
    bool m_isCancel = false;  // true: the user cancelled the action; false: it is to run
    bool m_isOffer = false;   // always false from this process
};

struct RemindTime {
    static char const* const rootElementName;     // "UIToClient"
    static char const* const messageElementName;  // "RemindTime"
    TimeObject m_timeObject;                      // made from an instant in the zone of offset 0
};

struct RemindInterval {
    static char const* const rootElementName;     // "UIToClient"
    static char const* const messageElementName;  // "RemindInterval"
    TimeInterval m_timeInterval;
};

// Write the message's children: "IsCancel", "IsOffer", "ID" (both booleans always, in full);
// "TimeObject"; "TimeInterval".
void XMLSerialize(XMLWriter& writer, ActionTaken const& message);
void XMLSerialize(XMLWriter& writer, RemindTime const& message);
void XMLSerialize(XMLWriter& writer, RemindInterval const& message);
// The same children, for a message written as a named element.
void XMLSave(XMLWriter& writer, ActionTaken const& message);
void XMLSave(XMLWriter& writer, RemindTime const& message);
void XMLSave(XMLWriter& writer, RemindInterval const& message);
