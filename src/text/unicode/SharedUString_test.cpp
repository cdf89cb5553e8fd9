#include <gtest/gtest.h>

#include <atomic>
#include <cstdlib>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include "testing/TestText.h"
#include "text/unicode/SharedUString.h"

namespace {

SharedUString<UTF8> Shared(std::string const& s) {
    return MakeUString(U8(s));
}

TEST(SharedUString, CopiesShareAndTheLastHolderFrees) {
    SharedUString<UTF8> a = Shared("shared");
    {
        SharedUString<UTF8> b(a);
        EXPECT_EQ(a.begin, b.begin);
        a = Shared("replaced");  // the old text lives on in b
        EXPECT_TRUE(a.link.Alone() && b.link.Alone());
        EXPECT_EQ("shared", Str(b));
    }
    SharedUString<UTF8> c;
    c = a;
    EXPECT_EQ(a.begin, c.begin);
    AutoUString<UTF8> copy = MakeUString(c);
    EXPECT_NE(c.begin, copy.begin);
    EXPECT_TRUE(copy == c);
}

// A move hands the buffer and the share over: the source is left null, and no holder is added
// or dropped on the way (the witness is alone again exactly when the last mover is gone).
TEST(SharedUString, MovingHandsTheBufferOverAndLeavesTheSourceNull) {
    SharedUString<UTF8> source = Shared("moved text");
    SharedUString<UTF8> const witness(source);
    UTF8::Unit const* const buffer = source.begin;
    SharedUString<UTF8> moved(std::move(source));
    EXPECT_EQ(nullptr, source.begin);
    EXPECT_EQ(nullptr, source.end);
    EXPECT_TRUE(source.Empty());
    EXPECT_FALSE(UStringRef<UTF8>(source).nullTerminated);
    EXPECT_EQ(buffer, moved.begin);
    EXPECT_EQ("moved text", Str(moved));
    EXPECT_FALSE(witness.link.Alone());
    {
        SharedUString<UTF8> assigned = Shared("text it held before");
        assigned = std::move(moved);
        EXPECT_EQ(nullptr, moved.begin);
        EXPECT_EQ(buffer, assigned.begin);
        EXPECT_FALSE(witness.link.Alone());
    }
    EXPECT_TRUE(witness.link.Alone());
    // A moved-from string takes a new value and copies as null.
    SharedUString<UTF8> const copyOfMoved(moved);
    EXPECT_EQ(nullptr, copyOfMoved.begin);
    source = Shared("again");
    EXPECT_EQ("again", Str(source));
}

TEST(SharedUString, CopiedAndDroppedAcrossThreads) {
    // Threads copy and drop one shared text, then the last copies are dropped in all threads at
    // once: the buffer must be freed exactly once whoever is last (a double free or a leak
    // shows under the sanitizers, a race on the count under ThreadSanitizer).
    for (int round = 0; round < 20; ++round) {
        SharedUString<UTF8> original = Shared("text shared by every thread");
        std::vector<SharedUString<UTF8>> last(4, original);
        std::atomic<int> ready(0);
        std::vector<std::thread> threads;
        for (int t = 0; t < 4; ++t) {
            threads.emplace_back([&, t] {
                SharedUString<UTF8> mine = Shared("own");
                for (int i = 0; i < 200; ++i) {
                    SharedUString<UTF8> copy(original);
                    mine = copy;
                    if (!(mine == original)) std::abort();
                    mine = Shared(std::to_string(i));
                }
                for (++ready; ready.load() < 5;) {
                }
                last[t] = SharedUString<UTF8>();
            });
        }
        for (++ready; ready.load() < 5;) {
        }
        original = SharedUString<UTF8>();
        for (auto& thread : threads) thread.join();
    }
}

}  // namespace
