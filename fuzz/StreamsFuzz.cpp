// Feeds arbitrary bytes through the stream stages, cut into chunks chosen by the input's first
// byte, and checks that no stage depends on the chunking: a message split into lines, headers
// and body records the same events whole and in pieces; Base64 decodes the same both ways and
// gives back what it encoded; the checksum agrees. Any disagreement traps.

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "text/streams/Base64.h"
#include "text/streams/Base64Decoder.h"
#include "text/streams/ChecksumReceiver.h"
#include "text/streams/DataFilterer.h"
#include "text/streams/LineMaker.h"
#include "text/streams/MessageMaker.h"
#include "text/streams/VectorAppender.h"

namespace {

// Writes every event of a message, its field values and its body lines into one text. Parts of
// a value or a line are joined, so chunking leaves no trace.
class Recorder : public MessageReceiver, public DataReceiver, public LineReceiver {
  public:
    std::string record;

    void Start(unsigned long long p) override { Mark("S", p); }
    DataReceiver& StartHeaderField(unsigned long long p, ConstData name) override {
        Mark("F", p);
        record += MakeString(name) + "=";
        return *this;
    }
    void EndHeaderField(unsigned long long p) override { Mark("/", p); }
    LineReceiver& StartBody(unsigned long long p) override {
        Mark("B", p);
        return *this;
    }
    void ReceiveEnd(unsigned long long p) override { Mark("E", p); }

    using DataReceiver::Receive;
    void Start() override { record += "{"; }
    void Receive(ConstData data) override { record += MakeString(data); }
    void ReceiveEnd() override { record += "}"; }
    void ReceiveLineBreak(Range<unsigned long long> r) override {
        Mark("[", r.start);
        Mark(",", r.end);
    }

  private:
    void Mark(char const* what, unsigned long long p) { record += what + std::to_string(p) + " "; }
};

std::string Message(ConstData input, std::size_t chunk) {
    Recorder recorder;
    MessageMaker messageMaker(recorder);
    LineMaker lineMaker(messageMaker);
    lineMaker.Start();
    for (unsigned char const* p = input.begin; p != input.end;) {
        std::size_t n = std::min<std::size_t>(chunk, input.end - p);
        lineMaker.Receive(ConstData(p, n));
        p += n;
    }
    lineMaker.ReceiveEnd();
    return recorder.record;
}

std::vector<unsigned char> DecodeInChunks(ConstData input, std::size_t chunk) {
    std::vector<unsigned char> bytes;
    VectorAppender appender(bytes);
    Base64Decoder decoder;
    DataFilterer filterer(decoder, appender);
    filterer.Start();
    for (unsigned char const* p = input.begin; p != input.end;) {
        std::size_t n = std::min<std::size_t>(chunk, input.end - p);
        filterer.Receive(ConstData(p, n));
        p += n;
    }
    filterer.ReceiveEnd();
    return bytes;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(uint8_t const* data, size_t size) {
    if (size == 0) return 0;
    std::size_t const chunk = 1 + data[0] % 16;
    ConstData const input(data + 1, size - 1);

    if (Message(input, chunk) != Message(input, input.Size() + 1)) __builtin_trap();

    std::vector<unsigned char> const decoded = Base64Decode(input);
    if (DecodeInChunks(input, chunk) != decoded) __builtin_trap();
    if (Base64Decode(Base64Encode(input)) != std::vector<unsigned char>(input.begin, input.end)) {
        __builtin_trap();
    }

    ChecksumReceiver whole, pieces;
    whole.Receive(input);
    for (unsigned char const* p = input.begin; p != input.end; ++p) pieces.Receive(ConstData(p, 1));
    if (whole.Value() != pieces.Value()) __builtin_trap();
    return 0;
}
