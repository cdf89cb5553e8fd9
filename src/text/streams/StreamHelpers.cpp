#include "text/streams/StreamHelpers.h"

#include "text/streams/DataFilterer.h"
#include "text/streams/StringReceiver.h"

void StartReceiveAndEnd(DataReceiver& receiver, ConstData data) {
    receiver.Start();
    receiver.Receive(data);
    receiver.ReceiveEnd();
}

void StartReceiveAndEnd(DataReceiver& receiver, ConstDataRopeReference rope) {
    receiver.Start();
    receiver.Receive(rope);
    receiver.ReceiveEnd();
}

void StartReceiveAndEnd(DataReceiver& receiver, ConstData data, DataFilter& filter) {
    DataFilterer filterer(filter, receiver);
    StartReceiveAndEnd(filterer, data);
}

void StartReceiveAndEnd(DataReceiver& receiver, ConstDataRopeReference rope, DataFilter& filter) {
    DataFilterer filterer(filter, receiver);
    StartReceiveAndEnd(filterer, rope);
}

std::string ApplyFilter(ConstData data, DataFilter& filter) {
    std::string result;
    StringReceiver receiver(result);
    StartReceiveAndEnd(receiver, data, filter);
    return result;
}
