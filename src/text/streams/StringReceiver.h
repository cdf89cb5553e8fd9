#pragma once
// Collects a byte stream in a std::string: Start empties the string, Receive appends.

#include <string>

#include "text/bytes/ConstData.h"
#include "text/streams/DataReceiver.h"

class StringReceiver : public DataReceiver {
  public:
    using DataReceiver::Receive;

    StringReceiver() : target(nullptr) {}
    // The string must outlive the receiver's use.
    explicit StringReceiver(std::string& text) : target(&text) {}

    // Aims the receiver at a new string.
    void operator()(std::string& text) { target = &text; }

    void Start() override { target->clear(); }
    void Receive(ConstData data) override {
        if (!data.Empty()) target->append(data.Chars(), data.Size());
    }
    void ReceiveEnd() override {}

  private:
    std::string* target;
};
