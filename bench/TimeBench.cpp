// How many deadline texts TextToTime reads per second. The texts are what TimeToText writes for
// readings of this century in zones of either sign, as the agent sends them.

#include <benchmark/benchmark.h>

#include <random>
#include <string>
#include <vector>

#include "time/TextToTime.h"
#include "time/TimeText.h"

namespace {

std::vector<std::string> DeadlineTexts() {
    std::mt19937_64 random(1);
    std::uniform_int_distribution<unsigned long> days(DateRecord::DaysBefore(2000),
                                                      DateRecord::DaysBefore(2100) - 1);
    std::vector<std::string> texts;
    for (int i = 0; i < 256; ++i) {
        TimeObject reading;
        reading.date.SetAbsoluteDay(days(random));
        reading.timeOfDay.SetSecondOfDay(random() % 86400);
        reading.zone = TimeZone((static_cast<int>(random() % 53) - 24) * 1800);
        texts.push_back(MakeString(TimeToText(reading)));
    }
    return texts;
}

void BM_TextToTime(benchmark::State& state) {
    std::vector<std::string> const texts = DeadlineTexts();
    std::size_t next = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(TextToTime(ConstData(texts[next])));
        next = (next + 1) % texts.size();
    }
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_TextToTime);

void BM_TimeToText(benchmark::State& state) {
    std::vector<std::string> const texts = DeadlineTexts();
    std::vector<TimeObject> readings;
    for (auto const& text : texts) readings.push_back(TextToTime(ConstData(text)));
    std::size_t next = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(TimeToText(readings[next]));
        next = (next + 1) % readings.size();
    }
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_TimeToText);

}  // namespace

BENCHMARK_MAIN();
