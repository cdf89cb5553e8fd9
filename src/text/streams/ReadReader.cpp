#include "text/streams/ReadReader.h"

#include "text/streams/LineMaker.h"
#include "text/streams/MessageMaker.h"
#include "text/streams/StringReceiver.h"

namespace {

constexpr std::size_t stagingSize = 2048;

}  // namespace

void ReadReader(DataReader& reader, DataReceiver& receiver) {
    receiver.Start();
    while (reader.Unfinished()) {
        unsigned char staging[stagingSize];
        Buffer output(staging, staging + stagingSize);
        reader >> output;
        if (output.cursor != staging) {
            receiver.Receive(ConstData(staging, static_cast<unsigned char const*>(output.cursor)));
        }
    }
    receiver.ReceiveEnd();
}

std::string ReadReader(DataReader& reader) {
    std::string text;
    StringReceiver receiver(text);
    ReadReader(reader, receiver);
    return text;
}

void ReadReader(DataReader& reader, LineReceiver& receiver) {
    LineMaker lineMaker(receiver);
    ReadReader(reader, lineMaker);
}

void ReadReader(DataReader& reader, MessageReceiver& receiver) {
    MessageMaker messageMaker(receiver);
    LineMaker lineMaker(messageMaker);
    ReadReader(reader, lineMaker);
}
