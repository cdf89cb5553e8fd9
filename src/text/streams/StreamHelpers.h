#pragma once
// One-call forms for pushing a whole value through a receiver, with or without a filter.

#include <string>

#include "text/bytes/ConstData.h"
#include "text/streams/DataFilter.h"
#include "text/streams/DataReceiver.h"

// Calls Start, Receive with the data (each part of a rope in turn) and ReceiveEnd.
void StartReceiveAndEnd(DataReceiver& receiver, ConstData data);
void StartReceiveAndEnd(DataReceiver& receiver, ConstDataRopeReference rope);
// The same through the filter, which a DataFilterer puts in front of the receiver and flushes
// at the end.
void StartReceiveAndEnd(DataReceiver& receiver, ConstData data, DataFilter& filter);
void StartReceiveAndEnd(DataReceiver& receiver, ConstDataRopeReference rope, DataFilter& filter);

// Returns the data run through the filter, flushed at the end.
std::string ApplyFilter(ConstData data, DataFilter& filter);
