#pragma once
// The transcoder callers instantiate: StreamTranscoder<Target, Source> is the generic or the
// intersection transcoder that suits its pair, under one name.

#include "text/unicode/GenericTranscoder.h"
#include "text/unicode/IntersectionTranscoder.h"

template <class Target, class Source>
struct StreamTranscoderBase {
    typedef GenericTranscoder<Target, Source> Type;
};

template <>
struct StreamTranscoderBase<UTF8, USAscii> {
    typedef IntersectionTranscoder<UTF8, USAscii> Type;
};

// The target must outlive the transcoder.
template <class Target, class Source>
class StreamTranscoder : public StreamTranscoderBase<Target, Source>::Type {
  public:
    explicit StreamTranscoder(UTextReceiver<Target>& receiver)
        : StreamTranscoderBase<Target, Source>::Type(receiver) {}
};
