#pragma once
// Splits lines into a message for a MessageReceiver: header lines up to the first empty line go
// through a HeaderMaker, and every line after it to the body's LineReceiver. A message without
// an empty line still reports an empty body, and an empty first line makes a message without
// headers.

#include "text/bytes/ConstData.h"
#include "text/bytes/Range.h"
#include "text/streams/HeaderMaker.h"
#include "text/streams/LineReceiver.h"
#include "text/streams/MessageReceiver.h"

class MessageMaker : public LineReceiver {
  public:
    MessageMaker() : receiver(nullptr), current(nullptr), atLineStart(true), inHeaders(true) {}
    // The receiver must outlive the maker's use.
    explicit MessageMaker(MessageReceiver& messageTarget)
        : receiver(&messageTarget), current(nullptr), atLineStart(true), inHeaders(true) {}

    // Aims the maker at a new receiver.
    void operator()(MessageReceiver& messageTarget) { receiver = &messageTarget; }

    void Start(unsigned long long position) override;
    void Receive(ConstData part) override;
    // The first break at the start of a line ends the headers; others go to the current stage.
    void ReceiveLineBreak(Range<unsigned long long> positions) override;
    void ReceiveEnd(unsigned long long position) override;

  private:
    MessageReceiver* receiver;
    HeaderMaker headerMaker;
    // The header maker, or after the empty line the body's receiver.
    LineReceiver* current;
    bool atLineStart;
    bool inHeaders;
};
