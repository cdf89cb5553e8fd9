#pragma once
// Reading a whole file, or a range of it, into a push receiver.

#include "files/FileLocation.h"
#include "text/streams/DataReceiver.h"
#include "text/streams/LineReceiver.h"
#include "text/streams/MessageReceiver.h"

// Push the bytes from start to end (the file's length when not given) to the receiver: Start,
// a Receive for each chunk of at most 2048 bytes, ReceiveEnd. An empty range gives Start and
// ReceiveEnd only. Throw EmptyFileLocationError, the mapped FileIOError of opening and
// reading, FileReadingLoopEndOfFileError when the file ends before the given end, and whatever
// the receiver throws. Without an end, a pipe is read until its writers are gone.
void ReadFile(FileLocation const& location, DataReceiver& receiver, unsigned long long start);
void ReadFile(FileLocation const& location, DataReceiver& receiver, unsigned long long start,
              unsigned long long end);
// The same, split into lines by a LineMaker.
void ReadFile(FileLocation const& location, LineReceiver& receiver, unsigned long long start);
void ReadFile(FileLocation const& location, LineReceiver& receiver, unsigned long long start,
              unsigned long long end);
// The same, split into lines and then into header fields and body by a MessageMaker.
void ReadFile(FileLocation const& location, MessageReceiver& receiver, unsigned long long start);
void ReadFile(FileLocation const& location, MessageReceiver& receiver, unsigned long long start,
              unsigned long long end);
