#include <gtest/gtest.h>
#include <pthread.h>
#include <unistd.h>

#include <atomic>
#include <chrono>
#include <thread>

#include "testing/Eventually.h"
#include "threads/AccessLock.h"
#include "threads/AtThreadExit.h"
#include "threads/Mutex.h"
#include "threads/PortableThread.h"

namespace {

std::atomic<int> exitRoutineRuns{0};
void CountExit() {
    ++exitRoutineRuns;
}

struct Probe {
    std::atomic<bool> ran{false};
    std::atomic<size_t> stackSize{0};
};

void Throwing(void* argument) {
    static_cast<Probe*>(argument)->ran = true;
    throw 42;
}

void MeasureStack(void* argument) {
    pthread_attr_t attributes;
    pthread_getattr_np(pthread_self(), &attributes);
    size_t size = 0;
    pthread_attr_getstacksize(&attributes, &size);
    pthread_attr_destroy(&attributes);
    static_cast<Probe*>(argument)->stackSize = size;
}

// Starts a self-deleting thread under a given default stack size and returns what it saw.
size_t StackSizeWithDefault(size_t defaultSize) {
    pthread_attr_t saved, wanted;
    pthread_getattr_default_np(&saved);
    pthread_attr_init(&wanted);
    pthread_attr_setstacksize(&wanted, defaultSize);
    pthread_setattr_default_np(&wanted);
    Probe probe;
    bool started = PortableThread::RunPortableThread(MeasureStack, &probe);
    pthread_setattr_default_np(&saved);
    pthread_attr_destroy(&wanted);
    pthread_attr_destroy(&saved);
    EXPECT_TRUE(started);
    EXPECT_TRUE(Eventually([&] { return probe.stackSize.load() != 0; }));
    return probe.stackSize;
}

}  // namespace

TEST(PortableThread, ThrowingFunctionStillCompletesAndWaitsForAbandon) {
    Probe probe;
    PortableThread* thread = PortableThread::CreatePortableThread(Throwing, &probe);
    ASSERT_NE(thread, nullptr);
    ASSERT_TRUE(Eventually([&] { return thread->Completed(); }));
    EXPECT_TRUE(probe.ran);
    // The object stays valid until abandoned: reading it again is allowed.
    std::this_thread::sleep_for(std::chrono::milliseconds(20));
    EXPECT_TRUE(thread->Completed());
    thread->Abandon();
}

TEST(PortableThread, SecondStartReportsSuccessAndNullFunctionsStartNothing) {
    EXPECT_FALSE(PortableThread::RunPortableThread(nullptr, nullptr));
    EXPECT_EQ(PortableThread::CreatePortableThreadSuspended(nullptr, nullptr), nullptr);
    EXPECT_EQ(PortableThread::CreatePortableThread(nullptr, nullptr), nullptr);
    Probe probe;
    PortableThread* thread = PortableThread::CreatePortableThreadSuspended(Throwing, &probe);
    ASSERT_NE(thread, nullptr);
    EXPECT_FALSE(probe.ran);
    ASSERT_TRUE(thread->Start());
    ASSERT_TRUE(Eventually([&] { return thread->Completed(); }));
    EXPECT_TRUE(thread->Start());
    thread->Abandon();
}

// Sanitizer runtimes add their own room to every stack, so the sizes are checked as ranges.
TEST(PortableThread, StackSizeIsAFloorNotASetting) {
    size_t const floor = PortableThread::minimumStackSize, large = 8u * 1024 * 1024;
    size_t small = StackSizeWithDefault(256 * 1024);
    EXPECT_GE(small, floor);
    EXPECT_LT(small, 2 * floor);
    size_t big = StackSizeWithDefault(large);
    EXPECT_GE(big, large);
    EXPECT_LT(big, large + floor);
}

TEST(PortableThread, ExitRoutinesRunAtTheEndOfEveryThread) {
    AtThreadExit(CountExit);
    int before = exitRoutineRuns;
    Probe probe;
    ASSERT_TRUE(PortableThread::RunPortableThread(MeasureStack, &probe));
    EXPECT_TRUE(Eventually([&] { return exitRoutineRuns > before; }));
}

TEST(AccessLock, SameThreadTakesItTwice) {
    AccessLock lock;
    std::atomic<bool> gotIt{false};
    std::thread other;
    {
        AccessLocker outer(lock);
        {
            AccessLocker inner(lock);  // would deadlock if the lock were not recursive
        }
        other = std::thread([&] {
            AccessLocker locker(lock);
            gotIt = true;
        });
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
        EXPECT_FALSE(gotIt) << "leaving the inner holder released the lock";
    }
    other.join();
    EXPECT_TRUE(gotIt);
}

TEST(Mutex, ReentryNeedsOneReleasePerAcquisition) {
    UnixPlatform::Mutex mutex;
    UnixPlatform::Mutex* first = UnixPlatform::WaitForMutex(mutex);
    UnixPlatform::Mutex* second = UnixPlatform::WaitForMutex(mutex);
    ASSERT_EQ(first, &mutex);
    ASSERT_EQ(second, &mutex);

    std::atomic<int> stage{0};
    std::thread other([&] {
        EXPECT_EQ(UnixPlatform::TryMutex(mutex), nullptr);
        stage = 1;
        UnixPlatform::Mutex* token = UnixPlatform::WaitForMutex(mutex);
        stage = 2;
        UnixPlatform::ReleaseMutex(token);
    });
    ASSERT_TRUE(Eventually([&] { return stage == 1; }));
    UnixPlatform::ReleaseMutex(first);
    std::this_thread::sleep_for(std::chrono::milliseconds(50));
    EXPECT_EQ(stage, 1) << "one release of two let another thread in";
    UnixPlatform::ReleaseMutex(nullptr);
    std::this_thread::sleep_for(std::chrono::milliseconds(20));
    EXPECT_EQ(stage, 1) << "a null token released something";
    UnixPlatform::ReleaseMutex(second);
    other.join();
    EXPECT_EQ(stage, 2);
    EXPECT_EQ(UnixPlatform::TryMutex(mutex), &mutex);
    UnixPlatform::ReleaseMutex(&mutex);
}
