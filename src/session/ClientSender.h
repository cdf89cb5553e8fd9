#pragma once
// How the main thread sends documents to the agent: it puts them into the write queue, and the
// pipe's write thread sends them within about 100 ms.

#include "session/ReadyForData.h"
#include "text/UString.h"

// A tag without state that marks the overloads of SendToClient.
struct PipeWriter {};

// Copies the text into a message and appends it to the write queue.
void SendToClient(PipeWriter& writer, UStringRef<UTF8> text);

// Writes the whole document for the record and queues it.
template <class T>
void WriteXMLToClient(T& message);

template <>
void WriteXMLToClient<ReadyForData>(ReadyForData& message);
