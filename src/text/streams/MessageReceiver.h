#pragma once
// The push interface for a message made of header fields and a body, as MessageMaker splits it.
// Field names arrive in lower case; each field's value is pushed into the DataReceiver that
// StartHeaderField returns, and the body's lines into the LineReceiver that StartBody returns.

#include "text/bytes/ConstData.h"
#include "text/streams/DataReceiver.h"
#include "text/streams/LineReceiver.h"

class MessageReceiver {
  public:
    virtual ~MessageReceiver() = default;

    // Begins a message whose first byte stands at position.
    virtual void Start(unsigned long long position) = 0;
    // Returns the receiver for the value of the field that begins at position. The name is only
    // valid during the call; the receiver must stay valid until EndHeaderField.
    virtual DataReceiver& StartHeaderField(unsigned long long position, ConstData name) = 0;
    // Ends the field opened last; position is the offset just past its value.
    virtual void EndHeaderField(unsigned long long position) = 0;
    // Returns the receiver for the body, which begins at position; it must stay valid until
    // ReceiveEnd.
    virtual LineReceiver& StartBody(unsigned long long position) = 0;
    // Ends the message; position is the offset just past its last byte.
    virtual void ReceiveEnd(unsigned long long position) = 0;
};
