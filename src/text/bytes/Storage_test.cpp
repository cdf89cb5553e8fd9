#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

#include "text/bytes/ExtensibleArray.h"
#include "text/bytes/FiniteStackBase.h"
#include "text/bytes/NullOr.h"
#include "text/bytes/Owned.h"
#include "text/bytes/StackBase.h"

TEST(ExtensibleArray, ElementsNeverMoveAndOneSparePieceStays) {
    ExtensibleArray<std::string, 3> array;
    std::vector<std::string*> addresses;
    for (int i = 0; i < 1000; ++i) addresses.push_back(&array.Append(std::to_string(i)));
    // Every element is still where it was made, with its value; the first ones are inline.
    for (int j = 0; j < 1000; ++j) {
        ASSERT_EQ(addresses[j], &array[j]);
        ASSERT_EQ(std::to_string(j), array[j]);
    }
    EXPECT_GE(reinterpret_cast<char*>(&array[0]), reinterpret_cast<char*>(&array));
    EXPECT_LT(reinterpret_cast<char*>(&array[2]), reinterpret_cast<char*>(&array) + sizeof array);

    // Elements 3, 4..9, 10..21 fill places 0, 1, 2. Popping into place 1 keeps place 2 as the
    // spare, so pushing back into place 2 allocates nothing.
    array.Pop(1000 - 9);
    EXPECT_EQ(9u, array.Count());
    EXPECT_EQ(3u, array.Base().PieceCount());
    array.Append("back");
    EXPECT_EQ(3u, array.Base().PieceCount());
    array.Pop(1);
    array.Pop(6);
    EXPECT_EQ(3u, array.Count());
    EXPECT_EQ(2u, array.Base().PieceCount());
    array.Pop(3);
    EXPECT_EQ(1u, array.Base().PieceCount());
}

TEST(ExtensibleArray, RandomPushesAndPopsKeepValuesAndSpare) {
    std::mt19937 random(17);
    ExtensibleArray<int, 4> array;
    std::vector<int> model;
    for (int step = 0; step < 20000; ++step) {
        if (random() % 3 != 0 || model.empty()) {
            int value = static_cast<int>(random());
            array.Append(value);
            model.push_back(value);
        } else {
            std::size_t n = 1 + random() % std::min<std::size_t>(model.size(), 40);
            array.Pop(n);
            model.resize(model.size() - n);
            // After a pop the piece that would take the next element is always there.
            if (!model.empty()) {
                unsigned pieces = array.Base().PieceCount();
                array.Append(1);
                ASSERT_EQ(pieces, array.Base().PieceCount());
                array.Pop(1);
            }
        }
        ASSERT_EQ(model.size(), array.Count());
    }
    for (std::size_t i = 0; i < model.size(); ++i) ASSERT_EQ(model[i], array[i]);
}

TEST(StackBase, GrowsWithoutMovingAndKeepsOneSpare) {
    unsigned char initial[3 * sizeof(long)];
    StackBase stack(Data(initial), sizeof(long));
    std::vector<long*> addresses;
    for (long i = 0; i < 100; ++i) {
        addresses.push_back(static_cast<long*>(stack.Allocate()));
        *addresses.back() = i;
    }
    // The first elements live in the caller's storage, growing downwards.
    EXPECT_EQ(reinterpret_cast<long*>(initial) + 2, addresses[0]);
    EXPECT_EQ(reinterpret_cast<long*>(initial), addresses[2]);
    for (long i = 99; i >= 0; --i) {
        ASSERT_EQ(addresses[i], stack.Top());
        ASSERT_EQ(i, *static_cast<long*>(stack.Top()));
        stack.Pop();
    }
    EXPECT_EQ(nullptr, stack.Top());
    EXPECT_TRUE(stack.HasSparePiece());

    // Pushing across the boundary reuses the spare: the same addresses come back.
    for (long i = 0; i < 4; ++i) ASSERT_EQ(addresses[i], stack.Allocate());
    EXPECT_FALSE(stack.HasSparePiece());
    stack.Pop(1);
    EXPECT_TRUE(stack.HasSparePiece());
    ASSERT_EQ(addresses[3], stack.Allocate());
}

TEST(FiniteStackBase, FullWhenTheCursorReachesTheBase) {
    unsigned char storage[2 * sizeof(int) + 1];
    FiniteStackBase stack(Data(storage), sizeof(int));
    void* first = stack.Allocate();
    void* second = stack.Allocate();
    EXPECT_EQ(static_cast<unsigned char*>(first) - sizeof(int), second);
    EXPECT_THROW(stack.Allocate(), StackFull);
    EXPECT_EQ(2u, stack.Count());
    stack.Release(second);
    EXPECT_EQ(first, stack.Top());
    EXPECT_EQ(second, stack.Allocate());
    stack.Pop(2);
    EXPECT_EQ(0u, stack.Count());
    EXPECT_EQ(nullptr, stack.Top());
}

TEST(Ownership, NullOrCopiesTheValueAndOwnedMoves) {
    NullOr<std::string> present(std::string("x"));
    NullOr<std::string> copy = present;
    *copy += "y";
    EXPECT_EQ("x", *present);
    EXPECT_EQ("xy", *copy);
    copy = NullOr<std::string>::Null();
    EXPECT_TRUE(copy.IsNull());

    auto owned = Allocate<std::string>(3, nullptr);
    owned[2] = "last";
    auto moved = std::move(owned);
    EXPECT_EQ(nullptr, owned.Get());
    EXPECT_EQ("last", moved[2]);
}
