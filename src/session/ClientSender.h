#pragma once
// How the main thread sends documents to the agent: it puts them into the write queue, and the
// pipe's write thread sends them within about 100 ms.

#include "text/unicode/UString.h"
#include "xml/ConvertToXML.h"

// A tag without state that marks the overloads of SendToClient.
struct PipeWriter {};

extern PipeWriter pipeWriter;

// Copies the text into a message and appends it to the write queue. The trace names the
// document by messageName when it is given.
void QueueDocumentForClient(UStringRef<UTF8> text, char const* messageName);

// Copies the text into a message and appends it to the write queue.
void SendToClient(PipeWriter& writer, UStringRef<UTF8> text);

// Writes the whole document of a decision (ActionTaken, RemindTime, RemindInterval: the root
// is "UIToClient") and queues it.
template <class T, class = decltype(T::messageElementName)>
void SendToClient(PipeWriter&, T const& message) {
    AutoUString<UTF8> const text = ConvertToXML(message);
    QueueDocumentForClient(text, T::messageElementName);
}

// Writes the whole document for a record whose root is "ClientToUI" (the greeting and the
// error report) and queues it.
template <class T>
void WriteXMLToClient(T& message) {
    AutoUString<UTF8> const text = ConvertToXML(message);
    QueueDocumentForClient(text, T::messageElementName);
}
