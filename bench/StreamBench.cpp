// Base64 decoding and the CRC over a support file of 1.5 MiB, each beside a well-known
// implementation measured in the same run: OpenSSL's EVP_DecodeBlock and EVP_EncodeBlock for
// Base64, zlib's crc32 for the CRC (a different polynomial and bit order, so a yardstick of
// speed only). Throughput counts the bytes of the file, not of its Base64 text.

#include <benchmark/benchmark.h>
#include <openssl/evp.h>
#include <zlib.h>

#include <random>
#include <string>
#include <vector>

#include "text/streams/Base64.h"
#include "text/streams/Base64DecodingDataMaker.h"
#include "text/streams/Base64Encoder.h"
#include "text/streams/ChecksumReceiver.h"
#include "text/streams/StreamHelpers.h"

namespace {

constexpr std::size_t fileSize = 3 * 512 * 1024;

std::vector<unsigned char> const& SupportFile() {
    static std::vector<unsigned char> const file = [] {
        std::vector<unsigned char> bytes(fileSize);
        std::mt19937 random(42);
        for (auto& byte : bytes) byte = static_cast<unsigned char>(random());
        return bytes;
    }();
    return file;
}

// The file as it travels in a FileTransfer: Base64 without line breaks.
std::string const& SupportFileText() {
    static std::string const text = Base64Encode(SupportFile());
    return text;
}

// Touches what it receives, as a file sink would, without the cost of a file.
class CountingReceiver : public DataReceiver {
  public:
    using DataReceiver::Receive;
    void Start() override { count = 0; }
    void Receive(ConstData data) override {
        count += data.Size();
        benchmark::DoNotOptimize(data.begin);
    }
    void ReceiveEnd() override {}
    std::size_t count = 0;
};

void Base64DecodeOurs(benchmark::State& state) {
    std::string const& text = SupportFileText();
    for (auto _ : state) {
        std::vector<unsigned char> bytes = Base64Decode(text);
        benchmark::DoNotOptimize(bytes.data());
    }
    state.SetBytesProcessed(state.iterations() * fileSize);
}
BENCHMARK(Base64DecodeOurs);

void Base64DecodingDataMakerOurs(benchmark::State& state) {
    std::string const& text = SupportFileText();
    CountingReceiver sink;
    Base64DecodingDataMaker maker(sink);
    for (auto _ : state) {
        maker.Start(0);
        maker.Receive(text);
        maker.ReceiveEnd(text.size());
    }
    if (sink.count != fileSize) state.SkipWithError("wrong length");
    state.SetBytesProcessed(state.iterations() * fileSize);
}
BENCHMARK(Base64DecodingDataMakerOurs);

void Base64DecodeOpenSSL(benchmark::State& state) {
    std::string const& text = SupportFileText();
    std::vector<unsigned char> bytes(text.size() / 4 * 3);
    for (auto _ : state) {
        int n = EVP_DecodeBlock(bytes.data(), reinterpret_cast<unsigned char const*>(text.data()),
                                static_cast<int>(text.size()));
        benchmark::DoNotOptimize(n);
    }
    state.SetBytesProcessed(state.iterations() * fileSize);
}
BENCHMARK(Base64DecodeOpenSSL);

void Base64EncodeOurs(benchmark::State& state) {
    std::vector<unsigned char> const& file = SupportFile();
    for (auto _ : state) {
        std::string text = Base64Encode(file);
        benchmark::DoNotOptimize(text.data());
    }
    state.SetBytesProcessed(state.iterations() * fileSize);
}
BENCHMARK(Base64EncodeOurs);

void Base64EncodeOpenSSL(benchmark::State& state) {
    std::vector<unsigned char> const& file = SupportFile();
    std::vector<unsigned char> text(fileSize / 3 * 4 + 5);
    for (auto _ : state) {
        int n = EVP_EncodeBlock(text.data(), file.data(), static_cast<int>(file.size()));
        benchmark::DoNotOptimize(n);
    }
    state.SetBytesProcessed(state.iterations() * fileSize);
}
BENCHMARK(Base64EncodeOpenSSL);

void ChecksumOurs(benchmark::State& state) {
    std::vector<unsigned char> const& file = SupportFile();
    ChecksumReceiver checksum;
    for (auto _ : state) {
        StartReceiveAndEnd(checksum, file);
        benchmark::DoNotOptimize(checksum.Value());
    }
    state.SetBytesProcessed(state.iterations() * fileSize);
}
BENCHMARK(ChecksumOurs);

void ChecksumZlib(benchmark::State& state) {
    std::vector<unsigned char> const& file = SupportFile();
    for (auto _ : state) {
        uLong crc = crc32(crc32(0L, Z_NULL, 0), file.data(), static_cast<uInt>(file.size()));
        benchmark::DoNotOptimize(crc);
    }
    state.SetBytesProcessed(state.iterations() * fileSize);
}
BENCHMARK(ChecksumZlib);

}  // namespace

BENCHMARK_MAIN();
