#pragma once
// The push interface for bytes: a source calls Start, then Receive with chunks of any size, then
// ReceiveEnd. No receiver may depend on how its input is cut into chunks.

#include "text/bytes/ConstData.h"

// Anything that bytes can be written to.
class DataWriter {
  public:
    virtual DataWriter& operator<<(ConstData data) = 0;

  protected:
    ~DataWriter() = default;
};

class DataReceiver : public DataWriter {
  public:
    // Passes the data to Receive.
    DataWriter& operator<<(ConstData data) override;
    virtual ~DataReceiver();
    // Called once before the first chunk.
    virtual void Start() = 0;
    // Called with each chunk; an empty one may come and means nothing.
    virtual void Receive(ConstData data) = 0;
    // Called once after the last chunk.
    virtual void ReceiveEnd() = 0;

    // Calls Receive once for each part of the rope, empty parts included.
    void Receive(ConstDataRopeReference rope);

    // Returns the shared receiver that drops everything it is given.
    static DataReceiver& Ignore();
};

// A receiver that drops everything; DataReceiver::Ignore() gives the shared one.
class IgnoreDataReceiver : public DataReceiver {
  public:
    using DataReceiver::Receive;
    void Start() override {}
    void Receive(ConstData) override {}
    void ReceiveEnd() override {}
};
