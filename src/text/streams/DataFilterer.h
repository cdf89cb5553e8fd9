#pragma once
// Runs a DataFilter in a push stream: what it receives goes through the filter, in pieces of up
// to 1024 bytes staged on the stack, to the target; at the end the filter is flushed.

#include "text/bytes/ConstData.h"
#include "text/streams/DataFilter.h"
#include "text/streams/DataReceiver.h"

class DataFilterer : public DataReceiver {
  public:
    using DataReceiver::Receive;

    DataFilterer() : filter(nullptr), target(nullptr) {}
    // The filter and the target must outlive the filterer's use.
    DataFilterer(DataFilter& dataFilter, DataReceiver& dataTarget)
        : filter(&dataFilter), target(&dataTarget) {}

    // Aims the filterer at a new filter and target.
    void operator()(DataFilter& dataFilter, DataReceiver& dataTarget) {
        filter = &dataFilter;
        target = &dataTarget;
    }

    void Start() override { target->Start(); }
    // Throws DataOverflow if the filter makes no headway into an empty staging buffer.
    void Receive(ConstData data) override;
    // Flushes the filter until it says it is Flushed, then ends the target.
    void ReceiveEnd() override;

  private:
    DataFilter* filter;
    DataReceiver* target;
};
