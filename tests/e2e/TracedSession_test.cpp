// The built program with its trace for integrators on: what its first document does to the
// session directory and to the wait for it, and a stream of broken frames that must not stop
// it from reading the good ones behind them.

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <algorithm>
#include <string>

#include "AgentSimulator.h"
#include "testing/AgentExit.h"
#include "testing/PipeFrames.h"
#include "testing/TemporaryDirectory.h"
#include "testing/XvfbServer.h"

namespace {

// Starts the program with the trace on and its standard error captured, and takes the greeting.
// Once set up, the program opens its display: a private server of the test program's own.
void LaunchTracedAndGreeted(AgentSimulator& agent) {
    static XvfbServer server;
    agent.SetEnvironment("DISPLAY", server.DisplayName());
    agent.SetEnvironment("ZOLCLIENTUI_TRACE", "1");
    agent.CaptureErrorOutput();
    agent.Launch(ZOLCLIENTUI_PATH);
    ASSERT_TRUE(agent.ReceiveFrame(5000).has_value()) << "no greeting";
}

std::string TracedDocument(std::string const& children) {
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?><ClientToUI>" + children + "</ClientToUI>";
}

std::string TracedAction(int id) {
    return "<ActionRequest><ID>" + std::to_string(id) + "</ID><Title>t</Title></ActionRequest>";
}

// "aGVsbG8K" is "hello\n", "AP8=" the two bytes 0x00 0xff.
std::string FirstDocumentFor(std::string const& directory) {
    return TracedDocument(
        "<InitializationInfo><SupportFiles><FileName>notes.txt</FileName><SubFolder></SubFolder>"
        "<Content>aGVsbG8K</Content></SupportFiles><SupportFiles><FileName>logo.bin</FileName>"
        "<SubFolder>images</SubFolder><Content>AP8=</Content></SupportFiles><BaseDirectory>" +
        directory +
        "</BaseDirectory><InitialUISettings><RemindInterval>PT10M</RemindInterval>"
        "</InitialUISettings></InitializationInfo>");
}

int TraceLines(std::string const& output) {
    return static_cast<int>(std::count(output.begin(), output.end(), '\n'));
}

class TracedSession : public TemporaryDirectory {};

}  // namespace

TEST_F(TracedSession, TheFirstDocumentFillsTheDirectoryEndsTheWaitAndASecondIsSkipped) {
    WriteText(Path("stale"), "from the last session");
    AgentSimulator agent;
    LaunchTracedAndGreeted(agent);
    // The first document and an action in two frames of one batch: the action waits for the
    // first tick after the wait loop.
    agent.SendRaw(Frame(FirstDocumentFor(m_root)) + Frame(TracedDocument(TracedAction(5))));

    ASSERT_TRUE(agent.WaitForErrorOutput("handled InitializationInfo", 8000))
        << agent.ErrorOutput();
    EXPECT_EQ(ReadText(Path("notes.txt")), "hello\n");
    EXPECT_EQ(ReadText(Path("logo.bin")), std::string("\0\xff", 2)) << "files land flat";
    EXPECT_FALSE(Exists(Path("stale"))) << "the directory was not emptied";
    struct stat file;
    ASSERT_EQ(0, ::stat(Path("notes.txt").c_str(), &file));
    EXPECT_EQ(file.st_mode & 0777, 0600u);
    EXPECT_TRUE(agent.WaitForErrorOutput("handled ActionRequest 5", 5000)) << agent.ErrorOutput();

    std::string const other = MakeTree(RootParent());
    WriteText(other + "/kept", "x");
    agent.SendFrame(FirstDocumentFor(other));
    agent.SendFrame(TracedDocument(TracedAction(6)));
    EXPECT_TRUE(agent.WaitForErrorOutput("handled ActionRequest 6", 5000)) << agent.ErrorOutput();
    EXPECT_NE(agent.ErrorOutput().find("skipped InitializationInfo: already initialized"),
              std::string::npos)
        << agent.ErrorOutput();
    EXPECT_TRUE(Exists(other + "/kept")) << "a second first document emptied its directory";
    EXPECT_FALSE(Exists(other + "/notes.txt"));
    EXPECT_EQ(ReadText(Path("notes.txt")), "hello\n");
    agent.CloseToProcess();
    ExpectExitStatus(agent, 0);
}

TEST_F(TracedSession, ABaseDirectoryThatIsALinkKeepsTheProcessWaiting) {
    MakeDirectory(Path("target"));
    ASSERT_EQ(0, ::symlink(Path("target").c_str(), Path("link").c_str()));
    AgentSimulator agent;
    LaunchTracedAndGreeted(agent);
    agent.SendFrame(FirstDocumentFor(Path("link")));
    ASSERT_TRUE(agent.WaitForErrorOutput("SessionDirectoryIsLink", 8000)) << agent.ErrorOutput();
    EXPECT_FALSE(Exists(Path("target/notes.txt")));

    agent.SendFrame(FirstDocumentFor(Path("real")));
    EXPECT_TRUE(agent.WaitForErrorOutput("handled InitializationInfo", 8000))
        << agent.ErrorOutput();
    EXPECT_EQ(ReadText(Path("real/notes.txt")), "hello\n");
    agent.CloseToProcess();
    ExpectExitStatus(agent, 0);
}

TEST(TracedDispatch, BrokenFramesNeverStopTheReadingAndAGoodDocumentBehindThemIsHandled) {
    std::string nesting;
    while (nesting.size() + 3 <= 2097152) nesting += "<a>";
    struct Broken {
        char const* what;
        std::string frame;
    };
    Broken const frames[] = {
        {"no element at all", "just text, no tag"},
        {"broken UTF-8", TracedDocument("<ActionRequest><ID>\xC3\x28\xFF</ID></ActionRequest>")},
        {"a value that cannot be read",
         TracedDocument("<ActionRequest><ID>x</ID></ActionRequest>")},
        {"2 MiB of nesting", nesting},
        {"unknown children",
         TracedDocument("<Unknown x=\"1\"><ActionRequest><ID>2</ID></ActionRequest></Unknown>"
                        "<actionrequest><ID>1</ID></actionrequest>")},
        {"an empty frame", ""},
    };
    AgentSimulator agent;
    LaunchTracedAndGreeted(agent);
    for (Broken const& broken : frames) {
        SCOPED_TRACE(broken.what);
        int const before = TraceLines(agent.ErrorOutput());
        agent.SendFrame(broken.frame);
        // Each frame is its own batch: one line (or more) tells how it was dropped or skipped.
        for (int waited = 0; TraceLines(agent.ErrorOutput(100)) == before && waited < 8000;)
            waited += 100;
        EXPECT_GT(TraceLines(agent.ErrorOutput()), before) << agent.ErrorOutput();
        EXPECT_TRUE(agent.Running());
    }
    std::string const output = agent.ErrorOutput();
    EXPECT_NE(output.find("dropped a frame"), std::string::npos) << output;
    EXPECT_NE(output.find("ignored element Unknown"), std::string::npos) << output;
    EXPECT_NE(output.find("ignored element actionrequest"), std::string::npos) << output;
    EXPECT_NE(output.find("ignored element a\n"), std::string::npos) << output;
    EXPECT_EQ(output.find("handled ActionRequest"), std::string::npos) << output;

    agent.SendFrame(TracedDocument(TracedAction(77)));
    EXPECT_TRUE(agent.WaitForErrorOutput("handled ActionRequest 77", 5000)) << agent.ErrorOutput();
    agent.CloseToProcess();
    ExpectExitStatus(agent, 0);
}
