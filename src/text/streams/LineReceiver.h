#pragma once
// The push interface for text split into lines. A source calls Start once, then Receive and
// ReceiveLineBreak in the order of the text, then ReceiveEnd once. Positions are byte offsets in
// the underlying stream, so a receiver can tell where each line and each break stood.

#include "text/bytes/ConstData.h"
#include "text/bytes/Range.h"

class LineReceiver {
  public:
    virtual ~LineReceiver() = default;

    // Begins a stream whose first byte stands at position.
    virtual void Start(unsigned long long position) = 0;
    // Receives part of a line; the bytes never hold CR or LF. One line may come in many parts.
    virtual void Receive(ConstData part) = 0;
    // Receives a line break that took the given byte positions (one or two bytes, or none for a
    // break that a stage made up).
    virtual void ReceiveLineBreak(Range<unsigned long long> positions) = 0;
    // Ends the stream; position is the offset just past its last byte.
    virtual void ReceiveEnd(unsigned long long position) = 0;
};
