#pragma once
// Joins the pull side to the push side: a reader is read to its end and pushed into a receiver,
// in chunks of up to 2048 bytes staged on the stack.

#include <string>

#include "text/streams/DataReader.h"
#include "text/streams/DataReceiver.h"
#include "text/streams/LineReceiver.h"
#include "text/streams/MessageReceiver.h"

// Calls Start, then Receive with what each read brings while the reader is unfinished, then
// ReceiveEnd.
void ReadReader(DataReader& reader, DataReceiver& receiver);
// Returns everything the reader gives.
std::string ReadReader(DataReader& reader);
// The same, split into lines by a LineMaker.
void ReadReader(DataReader& reader, LineReceiver& receiver);
// The same, split into lines and then into headers and body by a MessageMaker.
void ReadReader(DataReader& reader, MessageReceiver& receiver);
