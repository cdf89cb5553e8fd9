#pragma once
// Joins lines back into a byte stream for a DataReceiver, writing a chosen separator in place of
// each line break. With LineFlattener::nothing the lines run together into one.

#include "text/bytes/ConstData.h"
#include "text/streams/DataReceiver.h"
#include "text/streams/LineReceiver.h"

class LineFlattener : public LineReceiver {
  public:
    // Separators for the common cases: "\r", "\n", "\r\n", " " and the empty one.
    static ConstData const cr;
    static ConstData const lf;
    static ConstData const crlf;
    static ConstData const space;
    static ConstData const nothing;

    LineFlattener() : target(nullptr) {}
    // The separator's bytes and the target must outlive the flattener's use.
    LineFlattener(ConstData lineSeparator, DataReceiver& dataTarget)
        : separator(lineSeparator), target(&dataTarget) {}

    // Aims the flattener at a new target with a new separator.
    void operator()(ConstData lineSeparator, DataReceiver& dataTarget) {
        separator = lineSeparator;
        target = &dataTarget;
    }

    // Starts the target; positions play no part in the flattened stream.
    void Start(unsigned long long) override { target->Start(); }
    void Receive(ConstData part) override { target->Receive(part); }
    // Sends the separator instead of the break.
    void ReceiveLineBreak(Range<unsigned long long>) override { target->Receive(separator); }
    // Ends the target and forgets it: a new operator() is needed before the next stream.
    void ReceiveEnd(unsigned long long) override;

  private:
    ConstData separator;
    DataReceiver* target;
};
