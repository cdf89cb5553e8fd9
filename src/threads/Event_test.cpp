#include "threads/Event.h"

#include <gtest/gtest.h>
#include <sys/syscall.h>
#include <time.h>
#include <unistd.h>

#include <atomic>
#include <chrono>
#include <cstdint>
#include <thread>
#include <vector>

#include "testing/Eventually.h"

// This program's own clock_gettime stands in front of the C library's, so that a test can see
// whether a wait read the real-time clock. It counts reads of CLOCK_REALTIME made by the calling
// thread while that thread has armed the count, and forwards every call to the kernel.
namespace {
thread_local bool countClockReads = false;
thread_local int realtimeClockReads = 0;
}  // namespace

extern "C" int clock_gettime(clockid_t clock, struct timespec* reading) noexcept {
    if (countClockReads && clock == CLOCK_REALTIME) ++realtimeClockReads;
    return static_cast<int>(syscall(SYS_clock_gettime, clock, reading));
}

using UnixPlatform::Event;
using UnixPlatform::WaitForSingleEvent;
using UnixPlatform::WaitForTwoEvents;

namespace {

TimeInterval SecondsLong(std::int64_t seconds) {
    return TimeInterval(seconds * 1000000);
}

// Returns the realtime clock reads the calls in body made on this thread.
template <class F>
int ClockReadsDuring(F body) {
    realtimeClockReads = 0;
    countClockReads = true;
    body();
    countClockReads = false;
    return realtimeClockReads;
}

}  // namespace

TEST(Event, OneSetEventWakesEveryWaiter) {
    Event event;
    std::atomic<int> woken{0};
    std::vector<std::thread> waiters;
    for (int i = 0; i < 2; ++i) {
        waiters.emplace_back([&] {
            if (WaitForSingleEvent(event, SecondsLong(30))) ++woken;
        });
    }
    ASSERT_TRUE(Eventually([&] { return event.LinkCount() == 2; }));
    // Reset at once: a waiter that only looked at the flag would miss the event; both must
    // have been woken through their signals.
    UnixPlatform::SetEvent(event);
    UnixPlatform::ResetEvent(event);
    for (std::thread& waiter : waiters) waiter.join();
    EXPECT_EQ(woken.load(), 2);
    EXPECT_EQ(event.LinkCount(), 0u);
}

TEST(Event, EitherOfTwoEventsEndsTheWait) {
    Event first, second;
    std::atomic<bool> result{false};
    std::thread waiter([&] { result = WaitForTwoEvents(first, second, SecondsLong(30)); });
    ASSERT_TRUE(Eventually([&] { return first.LinkCount() == 1 && second.LinkCount() == 1; }));
    UnixPlatform::SetEvent(second);
    waiter.join();
    EXPECT_TRUE(result);
    EXPECT_EQ(first.LinkCount(), 0u);
    EXPECT_EQ(second.LinkCount(), 0u);
}

TEST(Event, AnEventAlreadySetReturnsWithoutReadingTheClock) {
    Event set, unset;
    UnixPlatform::SetEvent(set);
    EXPECT_EQ(0, ClockReadsDuring([&] {
                  EXPECT_TRUE(WaitForSingleEvent(set, SecondsLong(10)));
                  EXPECT_TRUE(WaitForTwoEvents(set, unset, SecondsLong(10)));
                  // The first link is already listed when the second finds its event set.
                  EXPECT_TRUE(WaitForTwoEvents(unset, set, SecondsLong(10)));
              }));
    EXPECT_EQ(unset.LinkCount(), 0u);
    // The count does see the clock when a wait has to wait.
    EXPECT_GE(
        ClockReadsDuring([&] { EXPECT_FALSE(WaitForSingleEvent(unset, TimeInterval(1000))); }), 1);
    // An event stays set until it is reset.
    EXPECT_TRUE(WaitForSingleEvent(set, TimeInterval(0)));
    UnixPlatform::ResetEvent(set);
    EXPECT_FALSE(WaitForSingleEvent(set, TimeInterval(1000)));
}

TEST(Event, TheLongestIntervalNeverTimesOut) {
    Event event;
    std::atomic<bool> finished{false};
    std::atomic<bool> result{false};
    std::thread waiter([&] {
        result = WaitForSingleEvent(event, TimeInterval(4294967295000LL));
        finished = true;
    });
    ASSERT_TRUE(Eventually([&] { return event.LinkCount() == 1; }));
    std::this_thread::sleep_for(std::chrono::milliseconds(1500));
    EXPECT_FALSE(finished.load());
    UnixPlatform::SetEvent(event);
    waiter.join();
    EXPECT_TRUE(result);
}

TEST(Event, ConvertToTimeoutAddsTheIntervalToTheClock) {
    struct Row {
        std::int64_t microseconds;
        std::int64_t secondsAhead;  // expected, within one second of carry and clock advance
    };
    Row const rows[] = {
        {-1, 0}, {-5000000, 0}, {0, 0}, {999999, 0}, {1500000, 1}, {3600000000LL, 3600},
    };
    static std::atomic<int> handled{0};
    static std::atomic<int> lastResult{-1};
    for (Row const& row : rows) {
        SCOPED_TRACE(row.microseconds);
        handled = 0;
        timespec before;
        ASSERT_EQ(0, clock_gettime(CLOCK_REALTIME, &before));
        timespec const deadline =
            UnixPlatform::ConvertToTimeout(TimeInterval(row.microseconds), [](int result) {
                ++handled;
                lastResult = result;
            });
        EXPECT_EQ(handled.load(), 1);
        EXPECT_EQ(lastResult.load(), 0);
        EXPECT_GE(deadline.tv_nsec, 0);
        EXPECT_LT(deadline.tv_nsec, 1000000000L);
        std::int64_t const ahead = deadline.tv_sec - before.tv_sec;
        EXPECT_GE(ahead, row.secondsAhead);
        EXPECT_LE(ahead, row.secondsAhead + 2);
        if (row.microseconds <= 0) {
            // Not earlier than the clock: a negative interval is no interval.
            EXPECT_TRUE(deadline.tv_sec > before.tv_sec ||
                        (deadline.tv_sec == before.tv_sec && deadline.tv_nsec >= before.tv_nsec));
        }
    }
    // Far futures are held at the last second a signed 32-bit count can name, less one.
    timespec const far = UnixPlatform::ConvertToTimeout(TimeInterval(INT64_MAX), nullptr);
    EXPECT_GE(far.tv_sec, 0x7FFFFFFE);
    EXPECT_LE(far.tv_sec, 0x7FFFFFFF);
}
