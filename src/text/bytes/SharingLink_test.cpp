#include <gtest/gtest.h>

#include <atomic>
#include <thread>
#include <vector>

#include "text/bytes/SharingLink.h"
#include "text/bytes/SharingPtr.h"

namespace {

struct Counted {
    explicit Counted(std::atomic<int>& deaths) : deaths(deaths) {}
    ~Counted() { ++deaths; }
    std::atomic<int>& deaths;
};

}  // namespace

TEST(SharingLink, CountsHoldersInOneThread) {
    SharingLink first;
    EXPECT_TRUE(first.Alone());
    {
        SharingLink second(first);
        EXPECT_FALSE(first.Alone());
        SharingLink third;
        third = second;
        SharingLink other;
        other.swap(third);
        EXPECT_TRUE(third.Alone());
        EXPECT_FALSE(other.Alone());
        // Assigned to itself (through a reference, as it happens in real code) it stays alone.
        SharingLink const& same = third;
        third = same;
        EXPECT_TRUE(third.Alone());
    }
    EXPECT_TRUE(first.Alone());
}

TEST(SharingPtr, LastHolderDeletesOnce) {
    std::atomic<int> deaths{0};
    {
        SharingPtr<Counted> a(new Counted(deaths));
        SharingPtr<Counted> b = a;
        SharingPtr<Counted> c(new Counted(deaths));
        c = b;
        EXPECT_EQ(1, deaths.load());
        EXPECT_EQ(a.get(), c.get());
    }
    EXPECT_EQ(2, deaths.load());
}

TEST(SharingLink, ReleaseReportsTheLastHolderExactlyOnceAcrossThreads) {
    for (int round = 0; round < 50; ++round) {
        std::vector<SharingLink> links(8);
        for (std::size_t i = 1; i < links.size(); ++i) links[i] = links[0];
        std::atomic<int> last{0};
        std::vector<std::thread> threads;
        for (SharingLink& link : links) {
            threads.emplace_back([&link, &last] { last += link.Release() ? 1 : 0; });
        }
        for (std::thread& thread : threads) thread.join();
        EXPECT_EQ(1, last.load());
    }
}
