#include <gtest/gtest.h>

#include <atomic>
#include <string>
#include <thread>
#include <vector>

#include "time/TextToTime.h"
#include "time/TimeText.h"

// The grammars are linked on first use; threads that all start with a first use must each see a
// whole grammar and read every text alike.
TEST(TextToTime, ThreadsShareTheGrammarsFromTheirFirstUse) {
    std::vector<std::string> texts;
    for (unsigned long day = 730000; day < 730000 + 400; ++day) {
        TimeObject reading;
        reading.date.SetAbsoluteDay(day);
        reading.timeOfDay.SetSecondOfDay(day * 7919 % 86400);
        reading.zone = TimeZone(static_cast<std::int32_t>(day % 29) * 1800 - 25200);
        texts.push_back(MakeString(TimeToText(reading)));
    }
    std::atomic<bool> go(false);
    std::atomic<int> mismatches(0);
    std::vector<std::thread> threads;
    for (int t = 0; t < 4; ++t) {
        threads.emplace_back([&, t] {
            while (!go) std::this_thread::yield();
            for (std::size_t i = 0; i < texts.size(); ++i) {
                std::string const& text = texts[(i + t * 100) % texts.size()];
                if (MakeString(TimeToText(TextToTime(ConstData(text)))) != text) ++mismatches;
                std::string const date = text.substr(0, 16);
                if (MakeString(DateToText(TextToDate(ConstData(date)))) != date) ++mismatches;
                std::string const time = text.substr(17);
                if (MakeString(ZonedTimeOfDayToText(TextToZonedTimeOfDay(ConstData(time)))) != time)
                    ++mismatches;
                std::string const clock = text.substr(17, 8);
                if (MakeString(TimeOfDayToText(TextToTimeOfDay(ConstData(clock)))) != clock)
                    ++mismatches;
            }
        });
    }
    go = true;
    for (auto& thread : threads) thread.join();
    EXPECT_EQ(mismatches, 0);
}
