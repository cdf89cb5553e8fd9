#pragma once
// A receiver that drops everything; DataReceiver::Ignore() gives the shared one.

#include "text/DataReceiver.h"

class IgnoreDataReceiver : public DataReceiver {
  public:
    using DataReceiver::Receive;
    void Start() override {}
    void Receive(ConstData) override {}
    void ReceiveEnd() override {}
};
