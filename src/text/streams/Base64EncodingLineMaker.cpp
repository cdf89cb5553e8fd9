#include "text/streams/Base64EncodingLineMaker.h"

void Base64EncodingLineMaker::Start() {
    encoder = Base64Encoder();
    lineEnd = line;
    position = 0;
    target->Start(0);
}

void Base64EncodingLineMaker::SendLine() {
    target->Receive(ConstData(line, lineLength));
    position += lineLength;
    lineEnd = line;
    target->ReceiveLineBreak(Range<unsigned long long>(position, position));
}

void Base64EncodingLineMaker::Receive(ConstData data) {
    ConstBuffer input(data);
    while (!input.Empty()) {
        Buffer output(lineEnd, line + lineLength);
        encoder(input, output);
        lineEnd = output.cursor;
        if (lineEnd == line + lineLength) SendLine();
    }
}

void Base64EncodingLineMaker::ReceiveEnd() {
    // The last characters and their padding may not fit on the current line; they are staged
    // first and then placed like any others.
    unsigned char tail[8];
    Buffer tailCursor(tail, tail + sizeof tail);
    while (!encoder.Flushed()) encoder.Flush(tailCursor);
    for (unsigned char const* p = tail; p != tailCursor.cursor; ++p) {
        *lineEnd++ = *p;
        if (lineEnd == line + lineLength) SendLine();
    }
    if (lineEnd != line) {
        target->Receive(ConstData(line, static_cast<unsigned char const*>(lineEnd)));
        position += static_cast<unsigned long long>(lineEnd - line);
        lineEnd = line;
    }
    target->ReceiveLineBreak(Range<unsigned long long>(position, position));
    target->ReceiveEnd(position);
}
