#pragma once
// A transcoder that sits between a source of text in encoding Source and a receiver of text in
// encoding Target. The output goes through a 4096-byte staging area on the stack, flushed to the
// target whenever the area can't take the next character and at the end of every Receive, so
// Receive keeps no output back, only an unfinished character of input (the carry).
//
// The decoders are lenient in value and strict in pattern: UTF-8 overlong forms, encoded
// surrogates and values up to 0x1FFFFF decode; only the encoders from UTF-32 check values. Bad
// input raises InvalidTextEncoding; nothing is ever replaced or skipped.

#include "text/unicode/UTextReceiver.h"
#include "text/unicode/UnicodeErrors.h"

// Exists for the pairs (UTF32, UTF8), (UTF32, UTF16), (UTF8, UTF32), (UTF16, UTF32) and
// (UTF16, USAscii). The target must outlive the transcoder. One thread at a time.
template <class Target, class Source>
class GenericTranscoder : public UTextReceiver<Source> {
  public:
    typedef typename Source::Unit SourceUnit;
    typedef typename Target::Unit TargetUnit;

    explicit GenericTranscoder(UTextReceiver<Target>& receiver)
        : target(receiver), carryCount(0), carry() {}

    // Forgets any carry and starts the target.
    void Start(Source) override {
        carryCount = 0;
        target.Start(Target());
    }

    // Converts the chunk, passing all complete characters on before it returns. An empty chunk
    // deliberately drops a carried partial character without a word, so that a later ReceiveEnd
    // succeeds. Throws InvalidTextEncoding; output staged in this call is then not sent, what was
    // flushed earlier stays at the target.
    void Receive(ConstArrayOf<SourceUnit> chunk) override;

    // Throws InvalidTextEncoding when a partial character is carried (only UTF-8 and UTF-16
    // sources ever carry one); otherwise ends the target.
    void ReceiveEnd() override {
        if (carryCount != 0) throw InvalidTextEncoding();
        target.ReceiveEnd();
    }

    UTextReceiver<Target>& target;
    unsigned carryCount;
    SourceUnit carry[3];
};

template <>
void GenericTranscoder<UTF32, UTF8>::Receive(ConstArrayOf<UTF8::Unit> chunk);
template <>
void GenericTranscoder<UTF32, UTF16>::Receive(ConstArrayOf<UTF16::Unit> chunk);
template <>
void GenericTranscoder<UTF8, UTF32>::Receive(ConstArrayOf<UTF32::Unit> chunk);
template <>
void GenericTranscoder<UTF16, UTF32>::Receive(ConstArrayOf<UTF32::Unit> chunk);
template <>
void GenericTranscoder<UTF16, USAscii>::Receive(ConstArrayOf<USAscii::Unit> chunk);
