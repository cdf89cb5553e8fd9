#pragma once
// How a program run through the agent simulator ended, checked in one call; for tests that
// link the simulator.

#include <gtest/gtest.h>

#include "AgentSimulator.h"

// Waits for the program to end and checks that it exited by itself, with the given status.
inline void ExpectExitStatus(AgentSimulator& agent, int status, int timeoutMs = 20000) {
    std::optional<ProcessEnd> end = agent.WaitForExit(timeoutMs);
    ASSERT_TRUE(end.has_value()) << "the process did not end";
    EXPECT_TRUE(end->exited) << "ended by signal " << end->status;
    EXPECT_EQ(end->status, status);
}
