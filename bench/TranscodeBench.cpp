// Throughput of the UTF-8 <-> UTF-32 stream transcoders against glibc's iconv doing the same
// conversions on the same 1 MiB of mixed-script text (ASCII, Latin, Cyrillic, CJK, emoji). Both
// write into a preallocated output buffer. Rates are in bytes of UTF-8 per second for both
// directions, and the run ends with the ratio of ours to iconv's.

#include <benchmark/benchmark.h>
#include <iconv.h>

#include <cstdio>
#include <cstring>
#include <map>
#include <stdexcept>
#include <string>
#include <vector>

#include "text/unicode/StreamTranscoder.h"

namespace {

std::string const& MixedText() {
    static std::string const text = [] {
        char const* const pieces[] = {
            "The quick brown fox jumps over the lazy dog while the agent waits. ",
            "Fran\xc3\xa7ois a d\xc3\xa9j\xc3\xa0 pr\xc3\xa9vu \xc3\xa7"
            "a: gr\xc3\xb6\xc3\x9f"
            "er M\xc3\xbc"
            "ll, na\xc3\xafve caf\xc3\xa9. ",
            "\xd0\x9f\xd1\x80\xd0\xb8\xd0\xb2\xd0\xb5\xd1\x82, \xd0\xbc\xd0\xb8\xd1\x80! "
            "\xd0\x9e\xd0\xb1\xd0\xbd\xd0\xbe\xd0\xb2\xd0\xbb\xd0\xb5\xd0\xbd\xd0\xb8\xd0\xb5 "
            "\xd0\xb3\xd0\xbe\xd1\x82\xd0\xbe\xd0\xb2\xd0\xbe. ",
            "\xe6\x9b\xb4\xe6\x96\xb0\xe5\xb7\xb2\xe5\x87\x86\xe5\xa4\x87\xe5\xa5\xbd\xef\xbc\x8c"
            "\xe8\xaf\xb7\xe4\xbf\x9d\xe5\xad\x98\xe6\x82\xa8\xe7\x9a\x84\xe5\xb7\xa5\xe4\xbd\x9c"
            "\xe3\x80\x82\xe5\x86\x8d\xe8\xb5\xb7\xe5\x8b\x95\xe3\x81\x97\xe3\x81\xbe\xe3\x81\x99"
            "\xe3\x80\x82 ",
            "\xf0\x9f\x98\x80\xf0\x9f\x9a\x80\xf0\x9f\x8e\x89 done \xf0\x9f\x91\x8d ",
        };
        std::string all;
        while (all.size() < (1u << 20)) {
            for (char const* piece : pieces) all += piece;
        }
        // Cut back to 1 MiB at a character boundary.
        std::size_t size = 1u << 20;
        while ((static_cast<unsigned char>(all[size]) & 0xC0) == 0x80) --size;
        all.resize(size);
        return all;
    }();
    return text;
}

// Copies what it receives into a preallocated buffer, as iconv writes into its output buffer.
template <class E>
class CopySink : public UTextReceiver<E> {
  public:
    typedef typename E::Unit Unit;
    explicit CopySink(std::size_t capacity) : m_buffer(capacity), m_cursor(m_buffer.data()) {}
    void Start(E) override { m_cursor = m_buffer.data(); }
    void Receive(ConstArrayOf<Unit> chunk) override {
        std::memcpy(m_cursor, chunk.begin, chunk.Count() * sizeof(Unit));
        m_cursor += chunk.Count();
    }
    std::vector<Unit> Content() const {
        return std::vector<Unit>(m_buffer.begin(), m_buffer.begin() + Used());
    }
    std::size_t Used() const { return static_cast<std::size_t>(m_cursor - &m_buffer[0]); }

  private:
    std::vector<Unit> m_buffer;
    Unit* m_cursor;
};

std::vector<UTF32::Unit> const& MixedCodes() {
    static std::vector<UTF32::Unit> const codes = [] {
        std::string const& text = MixedText();
        CopySink<UTF32> sink(text.size());
        StreamTranscoder<UTF32, UTF8> transcoder(sink);
        transcoder.Start(UTF8());
        auto const* begin = reinterpret_cast<UTF8::Unit const*>(text.data());
        transcoder.Receive(ConstArrayOf<UTF8::Unit>(begin, begin + text.size()));
        transcoder.ReceiveEnd();
        return sink.Content();
    }();
    return codes;
}

// Converts the whole input with iconv into the output buffer; returns the bytes written.
std::size_t IconvWhole(iconv_t cd, char const* input, std::size_t inputBytes, char* output,
                       std::size_t outputBytes) {
    iconv(cd, nullptr, nullptr, nullptr, nullptr);
    char* in = const_cast<char*>(input);
    char* out = output;
    std::size_t inLeft = inputBytes;
    std::size_t outLeft = outputBytes;
    if (iconv(cd, &in, &inLeft, &out, &outLeft) == static_cast<std::size_t>(-1)) {
        throw std::runtime_error("iconv failed");
    }
    return outputBytes - outLeft;
}

void ZolUTF8ToUTF32(benchmark::State& state) {
    std::string const& text = MixedText();
    auto const* begin = reinterpret_cast<UTF8::Unit const*>(text.data());
    CopySink<UTF32> sink(text.size());
    StreamTranscoder<UTF32, UTF8> transcoder(sink);
    for (auto _ : state) {
        transcoder.Start(UTF8());
        transcoder.Receive(ConstArrayOf<UTF8::Unit>(begin, begin + text.size()));
        transcoder.ReceiveEnd();
        benchmark::DoNotOptimize(sink.Used());
    }
    if (sink.Content() != MixedCodes()) state.SkipWithError("wrong output");
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * text.size()));
}

void IconvUTF8ToUTF32(benchmark::State& state) {
    std::string const& text = MixedText();
    iconv_t cd = iconv_open("UTF-32LE", "UTF-8");
    std::vector<UTF32::Unit> output(text.size());
    std::size_t written = 0;
    for (auto _ : state) {
        written = IconvWhole(cd, text.data(), text.size(), reinterpret_cast<char*>(output.data()),
                             output.size() * sizeof(UTF32::Unit));
        benchmark::DoNotOptimize(output.data());
    }
    iconv_close(cd);
    output.resize(written / sizeof(UTF32::Unit));
    if (output != MixedCodes()) state.SkipWithError("wrong output");
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * text.size()));
}

void ZolUTF32ToUTF8(benchmark::State& state) {
    std::string const& text = MixedText();
    std::vector<UTF32::Unit> const& codes = MixedCodes();
    CopySink<UTF8> sink(text.size());
    StreamTranscoder<UTF8, UTF32> transcoder(sink);
    for (auto _ : state) {
        transcoder.Start(UTF32());
        transcoder.Receive(ConstArrayOf<UTF32::Unit>(codes.data(), codes.data() + codes.size()));
        transcoder.ReceiveEnd();
        benchmark::DoNotOptimize(sink.Used());
    }
    std::vector<UTF8::Unit> out = sink.Content();
    if (std::string(out.begin(), out.end()) != text) state.SkipWithError("wrong output");
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * text.size()));
}

void IconvUTF32ToUTF8(benchmark::State& state) {
    std::string const& text = MixedText();
    std::vector<UTF32::Unit> const& codes = MixedCodes();
    iconv_t cd = iconv_open("UTF-8", "UTF-32LE");
    std::string output(text.size(), '\0');
    std::size_t written = 0;
    for (auto _ : state) {
        written = IconvWhole(cd, reinterpret_cast<char const*>(codes.data()),
                             codes.size() * sizeof(UTF32::Unit), &output[0], output.size());
        benchmark::DoNotOptimize(output.data());
    }
    iconv_close(cd);
    output.resize(written);
    if (output != text) state.SkipWithError("wrong output");
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * text.size()));
}

BENCHMARK(ZolUTF8ToUTF32);
BENCHMARK(IconvUTF8ToUTF32);
BENCHMARK(ZolUTF32ToUTF8);
BENCHMARK(IconvUTF32ToUTF8);

// The console report, followed by our throughput over iconv's for each direction.
class RatioReporter : public benchmark::ConsoleReporter {
  public:
    void ReportRuns(std::vector<Run> const& runs) override {
        ConsoleReporter::ReportRuns(runs);
        for (Run const& run : runs) {
            auto rate = run.counters.find("bytes_per_second");
            if (rate == run.counters.end() || run.error_occurred) continue;
            // With repetitions the median stands for the benchmark; otherwise the one run.
            bool median = run.run_type == Run::RT_Aggregate && run.aggregate_name == "median";
            if (run.run_type == Run::RT_Iteration || median) {
                if (median || !m_medians.count(run.run_name.str())) {
                    m_rates[run.run_name.str()] = rate->second.value;
                }
                if (median) m_medians[run.run_name.str()] = true;
            }
        }
    }
    void Finalize() override {
        ConsoleReporter::Finalize();
        Ratio("UTF-8 to UTF-32", "ZolUTF8ToUTF32", "IconvUTF8ToUTF32");
        Ratio("UTF-32 to UTF-8", "ZolUTF32ToUTF8", "IconvUTF32ToUTF8");
    }

  private:
    void Ratio(char const* label, std::string const& ours, std::string const& theirs) {
        if (!m_rates.count(ours) || !m_rates.count(theirs)) return;
        double a = m_rates[ours] / 1e6;
        double b = m_rates[theirs] / 1e6;
        std::printf(
            "%s: transcoder %.0f MB/s, iconv %.0f MB/s (MB = 10^6 bytes of UTF-8), ratio %.2f\n",
            label, a, b, a / b);
    }
    std::map<std::string, double> m_rates;
    std::map<std::string, bool> m_medians;
};

}  // namespace

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    benchmark::Shutdown();
    return 0;
}
