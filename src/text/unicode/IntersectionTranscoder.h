#pragma once
// A transcoder between two encodings where the source's text is already valid target text:
// every chunk is checked whole and then forwarded unchanged, with no staging and no copy.

#include "text/unicode/UTextReceiver.h"
#include "text/unicode/UnicodeErrors.h"

// Exists for the pair (UTF8, USAscii). The target must outlive the transcoder.
template <class Target, class Source>
class IntersectionTranscoder : public UTextReceiver<Source> {
  public:
    typedef typename Source::Unit SourceUnit;

    explicit IntersectionTranscoder(UTextReceiver<Target>& receiver)
        : target(receiver), carryCount(0), carry() {}

    void Start(Source) override {
        carryCount = 0;
        target.Start(Target());
    }

    // Throws InvalidTextEncoding if any unit of the chunk lies outside the target's encoding,
    // before anything of the chunk is passed on; otherwise forwards the chunk in one Receive.
    void Receive(ConstArrayOf<SourceUnit> chunk) override;

    void ReceiveEnd() override { target.ReceiveEnd(); }

    UTextReceiver<Target>& target;
    unsigned carryCount;
    SourceUnit carry[3];
};

template <>
inline void IntersectionTranscoder<UTF8, USAscii>::Receive(ConstArrayOf<USAscii::Unit> chunk) {
    carryCount = 0;
    for (USAscii::Unit const* p = chunk.begin; p != chunk.end; ++p) {
        if (*p & 0x80) throw InvalidTextEncoding();
    }
    target.Receive(ConstArrayOf<UTF8::Unit>(chunk.begin, chunk.end));
}
