#pragma once
// Encodes a byte stream in Base64 and hands it on as lines of exactly 64 characters, the last
// line holding what remains (possibly nothing) and ending with a break as well. Breaks take no
// bytes: positions count only the encoded characters, and each break is the empty range at the
// running position.

#include "text/bytes/ConstData.h"
#include "text/streams/Base64Encoder.h"
#include "text/streams/DataReceiver.h"
#include "text/streams/LineReceiver.h"

class Base64EncodingLineMaker : public DataReceiver {
  public:
    using DataReceiver::Receive;

    static constexpr std::size_t lineLength = 64;

    Base64EncodingLineMaker() : target(nullptr), lineEnd(line), position(0) {}
    // The target must outlive the maker's use.
    explicit Base64EncodingLineMaker(LineReceiver& lineTarget)
        : target(&lineTarget), lineEnd(line), position(0) {}
    // The line cursor points into the object itself.
    Base64EncodingLineMaker(Base64EncodingLineMaker const&) = delete;
    Base64EncodingLineMaker& operator=(Base64EncodingLineMaker const&) = delete;

    // Aims the maker at a new target.
    void operator()(LineReceiver& lineTarget) { target = &lineTarget; }

    void Start() override;
    void Receive(ConstData data) override;
    // Flushes the encoder, sends the last line and its break, and ends the target.
    void ReceiveEnd() override;

  private:
    // Sends the full line and a break, and empties it.
    void SendLine();

    LineReceiver* target;
    Base64Encoder encoder;
    unsigned char line[lineLength];
    unsigned char* lineEnd;
    unsigned long long position;
};
