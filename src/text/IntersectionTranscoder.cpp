#include "text/IntersectionTranscoder.h"

template <>
void IntersectionTranscoder<UTF8, USAscii>::Receive(ConstArrayOf<USAscii::Unit> chunk) {
    carryCount = 0;
    for (USAscii::Unit const* p = chunk.begin; p != chunk.end; ++p) {
        if (*p & 0x80) throw InvalidTextEncoding();
    }
    target.Receive(ConstArrayOf<UTF8::Unit>(chunk.begin, chunk.end));
}
