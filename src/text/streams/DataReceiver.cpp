#include "text/streams/DataReceiver.h"

DataWriter& DataReceiver::operator<<(ConstData data) {
    Receive(data);
    return *this;
}

DataReceiver::~DataReceiver() = default;

void DataReceiver::Receive(ConstDataRopeReference rope) {
    for (ConstData const* part = rope.begin; part != rope.end; ++part) Receive(*part);
}

DataReceiver& DataReceiver::Ignore() {
    static IgnoreDataReceiver ignore;
    return ignore;
}
