#include "text/streams/LineMaker.h"

namespace {

unsigned char const cr = '\r';
unsigned char const lf = '\n';

// Returns the first CR or LF in [from, end), or end.
unsigned char const* FindBreak(unsigned char const* from, unsigned char const* end) {
    for (; from != end; ++from) {
        // Every byte above LF is plain text; the comparison first keeps the loop cheap.
        if (*from <= cr && (*from == cr || *from == lf)) return from;
    }
    return end;
}

}  // namespace

void LineMaker::Start(unsigned long long start) {
    position = start;
    pendingBreak = 0;
    target->Start(start);
}

bool LineMaker::ResolvePendingBreak(unsigned char next) {
    bool const pair = (pendingBreak == cr && next == lf) || (pendingBreak == lf && next == cr);
    unsigned long long const length = pair ? 2 : 1;
    target->ReceiveLineBreak(Range<unsigned long long>(position, position + length));
    position += length;
    pendingBreak = 0;
    return pair;
}

void LineMaker::Receive(ConstData data) {
    unsigned char const* p = data.begin;
    unsigned char const* const end = data.end;
    if (p == end) return;
    if (pendingBreak != 0 && ResolvePendingBreak(*p)) ++p;
    while (p != end) {
        unsigned char const* const lineEnd = FindBreak(p, end);
        if (lineEnd != p) {
            target->Receive(ConstData(p, lineEnd));
            position += static_cast<unsigned long long>(lineEnd - p);
        }
        if (lineEnd == end) return;
        pendingBreak = *lineEnd;
        p = lineEnd + 1;
        if (p != end && ResolvePendingBreak(*p)) ++p;
    }
}

void LineMaker::ReceiveEnd() {
    if (pendingBreak != 0) ResolvePendingBreak(0);
    target->ReceiveEnd(position);
}
