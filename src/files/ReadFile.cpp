#include "files/ReadFile.h"

#include "files/FileReadingLoop.h"
#include "files/FileReadingPath.h"
#include "text/streams/LineMaker.h"
#include "text/streams/MessageMaker.h"

namespace {

// A null end stands for the length of the file.
void ReadRange(FileLocation const& location, DataReceiver& receiver, unsigned long long start,
               unsigned long long const* end) {
    FileReadingPath path(location);
    receiver.Start();
    unsigned char buffer[2048];
    FileReadingLoop loop(buffer);
    if (end) {
        loop.Start(path, start, *end);
    } else {
        loop.Start(path, start);
    }
    for (; loop.Remaining() != 0; ++loop) {
        receiver.Receive(*loop);
    }
    receiver.ReceiveEnd();
}

}  // namespace

void ReadFile(FileLocation const& location, DataReceiver& receiver, unsigned long long start) {
    ReadRange(location, receiver, start, nullptr);
}

void ReadFile(FileLocation const& location, DataReceiver& receiver, unsigned long long start,
              unsigned long long end) {
    ReadRange(location, receiver, start, &end);
}

void ReadFile(FileLocation const& location, LineReceiver& receiver, unsigned long long start) {
    LineMaker lines(receiver);
    ReadRange(location, lines, start, nullptr);
}

void ReadFile(FileLocation const& location, LineReceiver& receiver, unsigned long long start,
              unsigned long long end) {
    LineMaker lines(receiver);
    ReadRange(location, lines, start, &end);
}

void ReadFile(FileLocation const& location, MessageReceiver& receiver, unsigned long long start) {
    MessageMaker message(receiver);
    LineMaker lines(message);
    ReadRange(location, lines, start, nullptr);
}

void ReadFile(FileLocation const& location, MessageReceiver& receiver, unsigned long long start,
              unsigned long long end) {
    MessageMaker message(receiver);
    LineMaker lines(message);
    ReadRange(location, lines, start, &end);
}
