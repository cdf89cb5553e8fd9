#pragma once
// The greeting: the first document the process sends, before it has received anything.

class XMLWriter;

struct ReadyForData {
    static char const* const rootElementName;     // "ClientToUI"
    static char const* const messageElementName;  // "ReadyForData"
};

// The greeting has no fields: writes nothing.
void XMLSerialize(XMLWriter& writer, ReadyForData& message);
