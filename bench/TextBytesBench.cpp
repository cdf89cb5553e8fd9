// Speed of the byte-level helpers against the standard library doing the same job: numerals
// both ways, short-string building, and growth of the arrays that never move their elements.

#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstdlib>
#include <random>
#include <string>
#include <vector>

#include "text/bytes/AsciiNumerals.h"
#include "text/bytes/ExtensibleArray.h"
#include "text/bytes/StackBase.h"
#include "text/bytes/Stringy.h"

namespace {

std::vector<unsigned long long> Values() {
    std::mt19937_64 random(1);
    std::vector<unsigned long long> values(1024);
    for (auto& value : values) value = random() >> (random() % 64);
    return values;
}

void MakeDecimal64(benchmark::State& state) {
    auto values = Values();
    std::size_t i = 0;
    for (auto _ : state) {
        auto text = MakeAsciiDecimalNumeral64(values[i++ & 1023], 1);
        benchmark::DoNotOptimize(text);
    }
}
BENCHMARK(MakeDecimal64);

void SnprintfDecimal64(benchmark::State& state) {
    auto values = Values();
    std::size_t i = 0;
    char text[24];
    for (auto _ : state) {
        benchmark::DoNotOptimize(std::snprintf(text, sizeof text, "%llu", values[i++ & 1023]));
    }
}
BENCHMARK(SnprintfDecimal64);

std::vector<std::string> Texts() {
    std::vector<std::string> texts;
    for (unsigned long long value : Values()) texts.push_back(std::to_string(value));
    return texts;
}

void TryReadDecimal64(benchmark::State& state) {
    auto texts = Texts();
    std::size_t i = 0;
    for (auto _ : state) {
        unsigned long long value;
        benchmark::DoNotOptimize(TryReadAsciiDecimalNumeral(ConstData(texts[i++ & 1023]), value));
        benchmark::DoNotOptimize(value);
    }
}
BENCHMARK(TryReadDecimal64);

void StrtoullDecimal64(benchmark::State& state) {
    auto texts = Texts();
    std::size_t i = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(std::strtoull(texts[i++ & 1023].c_str(), nullptr, 10));
    }
}
BENCHMARK(StrtoullDecimal64);

// Builds a string of state.range(0) bytes in 8-byte appends.
void StringyAppend(benchmark::State& state) {
    for (auto _ : state) {
        Stringy text;
        for (long n = 0; n < state.range(0); n += 8) text += "abcdefgh";
        benchmark::DoNotOptimize(text.CString());
    }
}
BENCHMARK(StringyAppend)->Arg(64)->Arg(120)->Arg(1024);

void StdStringAppend(benchmark::State& state) {
    for (auto _ : state) {
        std::string text;
        for (long n = 0; n < state.range(0); n += 8) text += "abcdefgh";
        benchmark::DoNotOptimize(text.c_str());
    }
}
BENCHMARK(StdStringAppend)->Arg(64)->Arg(120)->Arg(1024);

void ExtensibleArrayAppend(benchmark::State& state) {
    for (auto _ : state) {
        ExtensibleArray<long, 16> array;
        for (long n = 0; n < state.range(0); ++n) array.Append(n);
        benchmark::DoNotOptimize(&array[0]);
    }
}
BENCHMARK(ExtensibleArrayAppend)->Arg(16)->Arg(10000);

void VectorPushBack(benchmark::State& state) {
    for (auto _ : state) {
        std::vector<long> array;
        for (long n = 0; n < state.range(0); ++n) array.push_back(n);
        benchmark::DoNotOptimize(array.data());
    }
}
BENCHMARK(VectorPushBack)->Arg(16)->Arg(10000);

void StackPushPop(benchmark::State& state) {
    long initial[16];
    StackBase stack(Data(reinterpret_cast<unsigned char*>(initial), sizeof initial), sizeof(long));
    for (auto _ : state) {
        for (long n = 0; n < state.range(0); ++n) *static_cast<long*>(stack.Allocate()) = n;
        stack.PopAll();
    }
}
BENCHMARK(StackPushPop)->Arg(16)->Arg(10000);

}  // namespace

BENCHMARK_MAIN();
