// Feeds arbitrary bytes to the UTF-8 and UTF-16 decoders, whole and cut into random non-empty
// chunks, and checks that the chunking never changes the outcome, and that whatever decodes
// comes back unchanged through the encoders when its values are encodable.

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <vector>

#include "text/unicode/StreamTranscoder.h"

namespace {

void Check(bool condition) {
    if (!condition) std::abort();
}

template <class E>
struct Collector : UTextReceiver<E> {
    std::vector<typename E::Unit> units;
    void Receive(ConstArrayOf<typename E::Unit> chunk) override {
        units.insert(units.end(), chunk.begin, chunk.end);
    }
};

// Runs the units through StreamTranscoder<Target, Source>, cut after every unit whose position
// has its bit set in cuts. Returns false when the transcoder threw InvalidTextEncoding.
template <class Target, class Source>
bool Run(std::vector<typename Source::Unit> const& input, std::uint64_t cuts,
         std::vector<typename Target::Unit>& output) {
    Collector<Target> collector;
    StreamTranscoder<Target, Source> transcoder(collector);
    try {
        transcoder.Start(Source());
        std::size_t from = 0;
        for (std::size_t i = 0; i + 1 < input.size(); ++i) {
            if (cuts >> (i % 64) & 1) {
                transcoder.Receive(
                    ConstArrayOf<typename Source::Unit>(&input[from], &input[i + 1]));
                from = i + 1;
            }
        }
        transcoder.Receive(
            ConstArrayOf<typename Source::Unit>(input.data() + from, input.data() + input.size()));
        transcoder.ReceiveEnd();
    } catch (InvalidTextEncoding const&) {
        return false;
    }
    output = collector.units;
    return true;
}

bool Encodable(std::vector<UTF32::Unit> const& codes) {
    for (UTF32::Unit cp : codes) {
        if (cp >= 0x110000 || (cp >= 0xD800 && cp < 0xE000)) return false;
    }
    return true;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    if (size < 8) return 0;
    std::uint64_t cuts;
    std::memcpy(&cuts, data, 8);
    std::vector<UTF8::Unit> bytes(data + 8, data + size);

    std::vector<UTF32::Unit> whole, chunked;
    bool wholeOk = Run<UTF32, UTF8>(bytes, 0, whole);
    bool chunkedOk = Run<UTF32, UTF8>(bytes, cuts, chunked);
    Check(wholeOk == chunkedOk);
    if (wholeOk) {
        Check(whole == chunked);
        std::vector<UTF8::Unit> encoded;
        bool encodedOk = Run<UTF8, UTF32>(whole, cuts, encoded);
        Check(encodedOk == Encodable(whole));
        std::vector<UTF32::Unit> again;
        if (encodedOk) {
            Check(Run<UTF32, UTF8>(encoded, 0, again) && again == whole);
            Check(encoded.size() <= bytes.size());  // overlong forms only ever shrink
        }
    }

    std::vector<UTF16::Unit> words(bytes.size() / 2);
    if (!words.empty()) std::memcpy(words.data(), bytes.data(), words.size() * 2);
    std::vector<UTF32::Unit> wide, wideChunked;
    bool wideOk = Run<UTF32, UTF16>(words, 0, wide);
    Check(wideOk == Run<UTF32, UTF16>(words, cuts, wideChunked));
    if (wideOk) {
        Check(wide == wideChunked);
        std::vector<UTF16::Unit> back;
        Check(Run<UTF16, UTF32>(wide, cuts, back) && back == words);
    }
    return 0;
}
