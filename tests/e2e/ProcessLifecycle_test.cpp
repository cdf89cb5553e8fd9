// The built program over real pipes: greeting, waiting, framing limits and every way the
// waiting process ends.

#include <gtest/gtest.h>
#include <time.h>

#include <cstdint>
#include <string>

#include "AgentSimulator.h"
#include "testing/AgentExit.h"
#include "testing/PipeFrames.h"

namespace {

char const greeting[] =
    "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<ClientToUI>\n\t<ReadyForData></ReadyForData>\n"
    "</ClientToUI>";

double MonotonicSeconds() {
    timespec now;
    clock_gettime(CLOCK_MONOTONIC, &now);
    return now.tv_sec + now.tv_nsec / 1e9;
}

// Starts the program and takes its greeting.
void StartAndGreet(AgentSimulator& agent) {
    agent.Launch(ZOLCLIENTUI_PATH);
    auto frame = agent.ReceiveFrame(5000);
    ASSERT_TRUE(frame.has_value()) << "no greeting";
    EXPECT_EQ(*frame, greeting);
}

}  // namespace

TEST(ProcessLifecycle, GreetsFirstThenEndsCleanlyAfterThePauseWhenThePipeCloses) {
    AgentSimulator agent;
    double started = MonotonicSeconds();
    StartAndGreet(agent);
    EXPECT_LT(MonotonicSeconds() - started, 5.0)
        << "the greeting should leave within about a second";

    // Nothing further arrives while the process waits for its first document.
    EXPECT_FALSE(agent.ReceiveFrame(1500).has_value());
    EXPECT_TRUE(agent.Running());

    double closed = MonotonicSeconds();
    agent.CloseToProcess();
    ExpectExitStatus(agent, 0);
    EXPECT_GE(MonotonicSeconds() - closed, 2.0) << "exit without the two-second pause";
}

TEST(ProcessLifecycle, TheLargestFrameIsTakenAndOneByteMoreEndsTheSession) {
    AgentSimulator agent;
    StartAndGreet(agent);
    agent.SendFrame(std::string(2097152, 'x'));
    EXPECT_FALSE(agent.WaitForExit(3000).has_value()) << "a frame of the largest size ended it";

    agent.SendRaw(FrameHeader(2097153));
    ExpectExitStatus(agent, 0);
}

// Bytes one at a time and empty frames do no harm; a stream that then ends inside a header ends
// the session.
TEST(ProcessLifecycle, BytesOneAtATimeAndEmptyFramesDoNoHarmAndAStreamEndingInAHeaderEndsIt) {
    AgentSimulator agent;
    StartAndGreet(agent);
    std::string document = "<ClientToUI><QuietModeEnd></QuietModeEnd></ClientToUI>";
    std::string stream =
        FrameHeader(0) + FrameHeader(static_cast<uint32_t>(document.size())) + document;
    for (char byte : stream) ASSERT_TRUE(agent.SendRaw(std::string(1, byte)));
    EXPECT_FALSE(agent.WaitForExit(2500).has_value());
    agent.SendRaw(std::string("\x10\x00", 2));
    agent.CloseToProcess();
    ExpectExitStatus(agent, 0);
}

// With no reader on descriptor 1 the greeting fails to go out, although SIGPIPE is at its
// default disposition when the process starts: the pipe dies, and the process ends with status
// 0 after the pause, as whenever the pipe dies.
TEST(ProcessLifecycle, NoReaderOnDescriptorOneEndsItWithZeroAfterThePause) {
    AgentSimulator agent;
    double const started = MonotonicSeconds();
    agent.Launch(ZOLCLIENTUI_PATH, {}, /*closeReadEnd=*/true);
    ExpectExitStatus(agent, 0);
    EXPECT_GE(MonotonicSeconds() - started, 2.0) << "exit without the two-second pause";
}

// A parent may leave the pipe non-blocking: reading must wait for data, not end the session.
TEST(ProcessLifecycle, ANonBlockingDescriptorZeroStillGivesANormalSession) {
    AgentSimulator agent;
    agent.MakeInputNonBlocking();
    agent.SetEnvironment("ZOLCLIENTUI_TRACE", "1");
    agent.CaptureErrorOutput();
    StartAndGreet(agent);
    EXPECT_FALSE(agent.WaitForExit(2500).has_value()) << "an empty non-blocking pipe ended it";

    agent.SendFrame("<ClientToUI><RemoveRequest><ID>31</ID></RemoveRequest></ClientToUI>");
    EXPECT_TRUE(agent.WaitForErrorOutput("handled RemoveRequest 31", 5000)) << agent.ErrorOutput();
    EXPECT_TRUE(agent.Running());
    agent.CloseToProcess();
    ExpectExitStatus(agent, 0);
}
