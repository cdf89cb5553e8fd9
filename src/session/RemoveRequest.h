#pragma once
// The agent withdraws something it asked to show: a pending action, a message dialog, or both.

#include <cstdint>

class XMLElement;
class XMLWriter;

// What a removal concerns. On the wire it is one of the words "Action", "Offer", "Message",
// "All", compared as exact bytes.
enum RemoveType : uint32_t { Action = 0, Offer = 1, Message = 2, All = 3 };

struct RemoveRequest {
    unsigned long long m_id = 0;
    RemoveType m_type = All;  // also what an unknown word or none at all means
};

// Loads "RemoveType" and "ID". A word other than the four leaves the type as it stood, so
// "action" in lower case removes everything of that ID. Throws what the value forms throw.
void XMLLoad(XMLElement const& element, RemoveRequest& request);
// Writes "RemoveType", then "ID". For whoever composes the document; this process only reads it.
void XMLSave(XMLWriter& writer, RemoveRequest const& request);
