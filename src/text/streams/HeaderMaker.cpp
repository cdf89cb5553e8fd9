#include "text/streams/HeaderMaker.h"

#include <cstring>

HeaderMaker::HeaderMaker()
    : receiver(nullptr),
      linearWhiteSpace(Ascii::LinearWhiteSpace()),
      state(&HeaderMaker::StartHeaderLine),
      nameCursor(name, name + nameCapacity),
      current(&DataReceiver::Ignore()),
      fieldOpen(false),
      fieldStart(0) {}

HeaderMaker::HeaderMaker(MessageReceiver& messageTarget) : HeaderMaker() {
    receiver = &messageTarget;
}

void HeaderMaker::Start(unsigned long long position) {
    nameCursor = Buffer(name, name + nameCapacity);
    current = &DataReceiver::Ignore();
    fieldOpen = false;
    lastBreak = Range<unsigned long long>(position, position);
    fieldStart = position;
    state = &HeaderMaker::StartHeaderLine;
}

void HeaderMaker::Receive(ConstData part) {
    ConstBuffer input(part);
    while (!input.Empty()) (this->*state)(input);
}

void HeaderMaker::ReceiveLineBreak(Range<unsigned long long> positions) {
    lastBreak = positions;
    state = &HeaderMaker::StartHeaderLine;
}

void HeaderMaker::ReceiveEnd(unsigned long long position) {
    current->ReceiveEnd();
    current = &DataReceiver::Ignore();
    if (fieldOpen) {
        fieldOpen = false;
        receiver->EndHeaderField(position == lastBreak.end ? lastBreak.start : position);
    }
}

void HeaderMaker::StartHeaderLine(ConstBuffer& input) {
    if (linearWhiteSpace.Contains(*input.cursor)) {
        // A continuation: the line break and the leading white space become one blank.
        current->Receive(ConstData(" ", 1));
        state = &HeaderMaker::EatWhiteSpace;
        return;
    }
    current->ReceiveEnd();
    current = &DataReceiver::Ignore();
    nameCursor = Buffer(name, name + nameCapacity);
    fieldStart = lastBreak.end;
    state = &HeaderMaker::HandleFieldName;
    if (fieldOpen) {
        fieldOpen = false;
        receiver->EndHeaderField(lastBreak.start);
    }
}

void HeaderMaker::HandleFieldName(ConstBuffer& input) {
    void const* const colon = std::memchr(input.cursor, ':', input.Size());
    unsigned char const* const nameEnd =
        colon ? static_cast<unsigned char const*>(colon) : input.end;
    // Bytes beyond the buffer's capacity are read and dropped; the full buffer marks the name
    // as too long.
    std::size_t const room = nameCursor.Size();
    std::size_t const length = static_cast<std::size_t>(nameEnd - input.cursor);
    ConstBuffer piece(input.cursor, input.cursor + (length < room ? length : room));
    Ascii::LowerCase(piece, nameCursor);
    input.cursor = nameEnd;
    if (!colon) return;
    ++input.cursor;
    state = &HeaderMaker::EatWhiteSpace;
    if (nameCursor.Full()) return;
    DataReceiver& valueReceiver = receiver->StartHeaderField(
        fieldStart, ConstData(name, static_cast<unsigned char const*>(nameCursor.cursor)));
    current = &valueReceiver;
    fieldOpen = true;
    valueReceiver.Start();
}

void HeaderMaker::EatWhiteSpace(ConstBuffer& input) {
    while (!input.Empty() && linearWhiteSpace.Contains(*input.cursor)) ++input.cursor;
    if (!input.Empty()) state = &HeaderMaker::PassText;
}

void HeaderMaker::PassText(ConstBuffer& input) {
    current->Receive(input.Remaining());
    input.cursor = input.end;
}
