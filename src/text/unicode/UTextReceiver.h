#pragma once
// The push interface for text in encoding E. A source calls Start once, Receive any number of
// times with any chunking, and ReceiveEnd once. The base's operations do nothing.

#include "text/bytes/ArrayOf.h"
#include "text/unicode/Encodings.h"

template <class E>
class UTextReceiver {
  public:
    typedef typename E::Unit Unit;

    virtual ~UTextReceiver() {}
    // Begins a new text.
    virtual void Start(E) {}
    // Takes the next chunk; the units are only valid for the duration of the call.
    virtual void Receive(ConstArrayOf<Unit>) {}
    // Ends the text.
    virtual void ReceiveEnd() {}
};
