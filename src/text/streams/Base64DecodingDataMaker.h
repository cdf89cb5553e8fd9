#pragma once
// Decodes Base64 lines into a byte stream for a DataReceiver, through a staging buffer on the
// stack. Line breaks mean nothing to Base64 and are dropped, like any byte outside the alphabet.

#include "text/bytes/ConstData.h"
#include "text/streams/Base64Decoder.h"
#include "text/streams/DataReceiver.h"
#include "text/streams/LineReceiver.h"

class Base64DecodingDataMaker : public LineReceiver {
  public:
    Base64DecodingDataMaker() : target(nullptr) {}
    // The target must outlive the maker's use.
    explicit Base64DecodingDataMaker(DataReceiver& dataTarget) : target(&dataTarget) {}

    // Aims the maker at a new target.
    void operator()(DataReceiver& dataTarget) { target = &dataTarget; }

    // Starts a fresh decoder and the target.
    void Start(unsigned long long position) override;
    void Receive(ConstData part) override;
    void ReceiveLineBreak(Range<unsigned long long>) override {}
    // Ends the target; bits of an unfinished byte are dropped.
    void ReceiveEnd(unsigned long long) override { target->ReceiveEnd(); }

  private:
    DataReceiver* target;
    Base64Decoder decoder;
};
