#include "text/streams/MessageMaker.h"

void MessageMaker::Start(unsigned long long position) {
    headerMaker(*receiver);
    current = &headerMaker;
    atLineStart = true;
    inHeaders = true;
    receiver->Start(position);
    headerMaker.Start(position);
}

void MessageMaker::Receive(ConstData part) {
    current->Receive(part);
    atLineStart = false;
}

void MessageMaker::ReceiveLineBreak(Range<unsigned long long> positions) {
    if (atLineStart && inHeaders) {
        headerMaker.ReceiveEnd(positions.start);
        inHeaders = false;
        LineReceiver& body = receiver->StartBody(positions.end);
        current = &body;
        body.Start(positions.end);
    } else {
        current->ReceiveLineBreak(positions);
    }
    atLineStart = true;
}

void MessageMaker::ReceiveEnd(unsigned long long position) {
    current->ReceiveEnd(position);
    if (inHeaders) {
        LineReceiver& body = receiver->StartBody(position);
        body.Start(position);
        body.ReceiveEnd(position);
    }
    receiver->ReceiveEnd(position);
}
