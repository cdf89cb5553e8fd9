#pragma once
// Splits a byte stream into lines for a LineReceiver. CR, LF, CR LF and LF CR each count as one
// line break; a break whose two bytes lie in different chunks is still one break, because the
// first byte is held until the next chunk (or the end) shows what follows it. Runs of text are
// passed on in place, without copying.

#include "text/bytes/ConstData.h"
#include "text/streams/DataReceiver.h"
#include "text/streams/LineReceiver.h"

class LineMaker : public DataReceiver {
  public:
    using DataReceiver::Receive;

    LineMaker() : target(nullptr), position(0), pendingBreak(0) {}
    // The target must outlive the maker's use.
    explicit LineMaker(LineReceiver& lineTarget)
        : target(&lineTarget), position(0), pendingBreak(0) {}

    // Aims the maker at a new target.
    void operator()(LineReceiver& lineTarget) { target = &lineTarget; }

    // Starts counting positions at 0.
    void Start() override { Start(0); }
    // Starts counting positions at start, for a stream that doesn't begin at its first byte.
    void Start(unsigned long long start);
    void Receive(ConstData data) override;
    // Reports a held line break byte as a break of its own, then ends the target.
    void ReceiveEnd() override;

  private:
    // Reports the held break: two bytes if next is its partner (CR for LF, LF for CR), else
    // one. Returns whether next was taken into the break.
    bool ResolvePendingBreak(unsigned char next);

    LineReceiver* target;
    unsigned long long position;
    unsigned char pendingBreak;
};
