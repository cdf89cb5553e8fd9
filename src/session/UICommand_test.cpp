#include "session/UICommand.h"

#include <gtest/gtest.h>

#include "session/SessionState.h"

// The record holds the absolute remind time in 32 bits, read as unsigned by its handler: a
// later time in seconds of the count since 1970 wraps, and a negative one shows as its low bits.
TEST(UICommand, QueuedInOrderKeepingTheLowBitsOfSeconds) {
    FiFoQueue<std::unique_ptr<UICommand>> stale;
    uiCommandQ.ReadMessages(stale);
    QueueCommand(UICommandSnooze, 0, -1, 0x1234567890ll);
    QueueCommand(UICommandTake, 18446744073709551615ull, 5, -1);
    QueueCommand(UICommandShowActions, 0, 0, 0);
    EXPECT_FALSE(uiCommandQ.IsEmpty());
    FiFoQueue<std::unique_ptr<UICommand>> taken;
    uiCommandQ.ReadMessages(taken);
    EXPECT_TRUE(uiCommandQ.IsEmpty());

    std::unique_ptr<UICommand> snooze = taken.TakeFirst();
    EXPECT_EQ(snooze->m_command, UICommandSnooze);
    EXPECT_EQ(snooze->m_minutes, -1);
    EXPECT_EQ(snooze->m_seconds, 0x34567890u);
    std::unique_ptr<UICommand> take = taken.TakeFirst();
    EXPECT_EQ(take->m_command, UICommandTake);
    EXPECT_EQ(take->m_actionID, 18446744073709551615ull);
    EXPECT_EQ(take->m_seconds, 0xffffffffu);
    EXPECT_EQ(taken.TakeFirst()->m_command, UICommandShowActions);
    EXPECT_TRUE(taken.IsEmpty());
}
