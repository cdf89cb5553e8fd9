#pragma once
// Appends a byte stream to the end of a std::vector<unsigned char>, keeping what it held.
// ReceiveEnd forgets the vector, so each stream needs its own operator().

#include <vector>

#include "text/bytes/ConstData.h"
#include "text/streams/DataReceiver.h"

class VectorAppender : public DataReceiver {
  public:
    using DataReceiver::Receive;

    VectorAppender() : target(nullptr) {}
    // The vector must outlive the stream.
    explicit VectorAppender(std::vector<unsigned char>& bytes) : target(&bytes) {}

    // Aims the appender at a new vector.
    void operator()(std::vector<unsigned char>& bytes) { target = &bytes; }

    // Leaves the vector as it is: new bytes go after what it holds.
    void Start() override {}
    void Receive(ConstData data) override { target->insert(target->end(), data.begin, data.end); }
    void ReceiveEnd() override { target = nullptr; }

  private:
    std::vector<unsigned char>* target;
};
