// The built program with a real X server: how the running session ends when the display is
// missing, goes away or has no fonts, or the agent stops reading, how other X clients reach it
// through its hidden window, that an exception inside a tick ends it normally after its answers
// have left, and that titles it cannot show as they stand do not end it or hide other actions.

// GoogleTest comes before the X headers, whose macros (None, Bool) would break it.
#include <gtest/gtest.h>

#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <fcntl.h>
#include <stdlib.h>
#include <unistd.h>

#include <chrono>
#include <cstring>
#include <fstream>
#include <optional>
#include <sstream>
#include <string>

#include "AgentSimulator.h"
#include "ScenarioRunner.h"
#include "testing/AgentExit.h"
#include "testing/Eventually.h"
#include "testing/TemporaryDirectory.h"
#include "testing/XvfbServer.h"

// The sanitizer settings that every test program using the X libraries carries
// (src/testing/XLibraryLeaks.cpp); the program is handed them through its environment.
extern "C" char const* __asan_default_options();
extern "C" char const* __lsan_default_suppressions();

namespace {

std::string const hiddenWindowName = "ZOLClientUIHiddenWindow";

// Returns the top-level window whose class hint names it hiddenWindowName, or 0.
Window FindHiddenWindow(Display* connection) {
    Window root, parent, *children = nullptr;
    unsigned count = 0;
    Window found = 0;
    if (!XQueryTree(connection, DefaultRootWindow(connection), &root, &parent, &children, &count))
        return 0;
    for (unsigned i = 0; i < count && !found; ++i) {
        XClassHint hint;
        if (!XGetClassHint(connection, children[i], &hint)) continue;
        if (hint.res_name && hiddenWindowName == hint.res_name) found = children[i];
        XFree(hint.res_name);
        XFree(hint.res_class);
    }
    if (children) XFree(children);
    return found;
}

// Sends the window a ClientMessage whose data starts with text, as a client asking for the
// action dialog would.
void SendClientMessageText(Display* connection, Window window, char const* text) {
    XEvent event;
    std::memset(&event, 0, sizeof event);
    event.xclient.type = ClientMessage;
    event.xclient.window = window;
    event.xclient.message_type = XInternAtom(connection, "ZOL_TEST_REQUEST", False);
    event.xclient.format = 8;
    std::strncpy(event.xclient.data.b, text, sizeof event.xclient.data.b);
    XSendEvent(connection, window, False, NoEventMask, &event);
    XFlush(connection);
}

class XSessionTest : public TemporaryDirectory {
  protected:
    void TearDown() override {
        unsetenv("ZOLCLIENTUI_TRACE");
        unsetenv("ASAN_OPTIONS");
        unsetenv("LSAN_OPTIONS");
        TemporaryDirectory::TearDown();
    }

    // Starts the program on the display with its standard error going to a file of the test
    // directory, takes the greeting and sends the first document.
    void StartSession(AgentSimulator& agent, std::string const& displayName,
                      std::string const& program = ZOLCLIENTUI_PATH) {
        setenv("DISPLAY", displayName.c_str(), 1);
        PassSanitizerSettings();
        int const saved = dup(2);
        int const log = open(Path("stderr").c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
        dup2(log, 2);
        agent.Launch(program);
        dup2(saved, 2);
        close(log);
        close(saved);
        ASSERT_TRUE(agent.ReceiveFrame(5000).has_value()) << "no greeting";
        agent.SendFrame("<ClientToUI><InitializationInfo><BaseDirectory>" + m_root +
                        "/session</BaseDirectory><InitialUISettings><RemindInterval>PT10M"
                        "</RemindInterval></InitialUISettings></InitializationInfo></ClientToUI>");
    }

    std::string Path(std::string const& name) const { return m_root + "/" + name; }

    // Hands the sanitizer settings of the X libraries to the programs started from here on.
    void PassSanitizerSettings() {
        std::ofstream(Path("leaks.supp")) << __lsan_default_suppressions();
        setenv("ASAN_OPTIONS", __asan_default_options(), 1);
        setenv("LSAN_OPTIONS", ("suppressions=" + Path("leaks.supp")).c_str(), 1);
    }

    std::string StandardError() const {
        std::ifstream file(Path("stderr"));
        std::stringstream text;
        text << file.rdbuf();
        return text.str();
    }
};

}  // namespace

TEST_F(XSessionTest, ADisplayThatCannotBeOpenedEndsWith255) {
    // A display number with no server behind it: the socket does not exist.
    AgentSimulator agent;
    StartSession(agent, ":4093");
    ExpectExitStatus(agent, 255);
}

TEST_F(XSessionTest, TheServerGoingAwayEndsWithZero) {
    XvfbServer server;
    AgentSimulator agent;
    StartSession(agent, server.DisplayName());
    Display* connection = XOpenDisplay(server.DisplayName().c_str());
    ASSERT_NE(connection, nullptr);
    EXPECT_TRUE(Eventually([&] { return FindHiddenWindow(connection) != 0; }))
        << "the hidden window never appeared";
    XCloseDisplay(connection);
    server.Kill();
    ExpectExitStatus(agent, 0);
}

// The start-up leaves a server without fonts as it is; the first widget that needs a font
// then meets the toolkit's "noFont" warning, which is reported and ends the process.
TEST_F(XSessionTest, AServerWithoutFontsIsReportedTwiceThenEndsWithZero) {
    std::ofstream(Path("fonts.dir")) << "0\n";
    XvfbServer server(m_root);
    AgentSimulator agent;
    StartSession(agent, server.DisplayName());
    agent.SendFrame("<ClientToUI><ActionRequest><ID>1</ID></ActionRequest></ClientToUI>");
    std::string const report =
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<ClientToUI>\n\t<ClientUIErrorMessage>\n"
        "\t\t<DebugString>noFont (XtToolkitError)</DebugString>\n\t\t<ErrorCode>1</ErrorCode>\n"
        "\t</ClientUIErrorMessage>\n</ClientToUI>";
    EXPECT_EQ(agent.ReceiveFrame(15000), report);
    EXPECT_EQ(agent.ReceiveFrame(5000), report);
    auto const reported = std::chrono::steady_clock::now();
    ExpectExitStatus(agent, 0);
    EXPECT_GE(std::chrono::steady_clock::now() - reported, std::chrono::milliseconds(1500))
        << "ended without the pause that lets the reports leave";
}

TEST_F(XSessionTest, AnOpenMessageToTheHiddenWindowAsksForTheActionDialogOnTheNextTick) {
    setenv("ZOLCLIENTUI_TRACE", "1", 1);
    XvfbServer server;
    AgentSimulator agent;
    StartSession(agent, server.DisplayName());
    Display* connection = XOpenDisplay(server.DisplayName().c_str());
    ASSERT_NE(connection, nullptr);
    Window hidden = 0;
    EXPECT_TRUE(Eventually([&] { return (hidden = FindHiddenWindow(connection)) != 0; }));
    ASSERT_NE(hidden, 0u);

    // Other texts, and "open" past the first four bytes, are ignored.
    SendClientMessageText(connection, hidden, "close");
    SendClientMessageText(connection, hidden, "xopen");
    SendClientMessageText(connection, hidden, "open");
    char const handled[] = "handled command ShowActions";
    EXPECT_TRUE(Eventually([&] { return StandardError().find(handled) != std::string::npos; }))
        << StandardError();
    std::string const trace = StandardError();
    EXPECT_EQ(trace.find(handled), trace.rfind(handled)) << "one command per open message";
    EXPECT_EQ(trace.find("handled command "), trace.find(handled)) << trace;
    XCloseDisplay(connection);
    agent.CloseToProcess();
    ExpectExitStatus(agent, 0);
}

// The stand-in's user takes the action as soon as it arrives; the tick that answers it then
// throws. The answer still leaves before the process ends.
TEST_F(XSessionTest, AnExceptionInsideATickEndsTheProcessNormallyAfterTheAnswersLeave) {
    XvfbServer server;
    AgentSimulator agent;
    StartSession(agent, server.DisplayName(), STANDIN_PATH);
    agent.SendFrame(
        "<ClientToUI><ActionRequest><ID>7</ID><Title>t</Title></ActionRequest>"
        "</ClientToUI>");
    std::optional<std::string> const answer = agent.ReceiveFrame(15000);
    ASSERT_TRUE(answer.has_value()) << "the answer queued before the exception was lost";
    EXPECT_NE(answer->find("<ActionTaken>"), std::string::npos) << *answer;
    EXPECT_NE(answer->find("<ID>7</ID>"), std::string::npos) << *answer;
    ExpectExitStatus(agent, 0);
}

// An agent that stops reading: the answer of a binding deadline fails to go out, the pipe dies,
// and the process ends with status 0 like any session whose pipe dies, not by a signal.
TEST_F(XSessionTest, TheAgentClosingItsReadEndEndsTheSessionWithZero) {
    XvfbServer server;
    AgentSimulator agent;
    StartSession(agent, server.DisplayName());
    agent.CloseFromProcess();
    agent.SendFrame(
        "<ClientToUI><ActionRequest><ID>8</ID><Title>t</Title><ForceRun>true"
        "</ForceRun><Deadline>1 Jan 2001 00:00 +0000</Deadline></ActionRequest>"
        "</ClientToUI>");
    ExpectExitStatus(agent, 0);
}

// A title of two million characters, and one with bytes that are not UTF-8 in a Latin-1
// session, each before two ordinary actions: a row draws only the start of the first, so no
// drawing passes the size limit of an X request, and the second is shown with replacement
// characters. The process lives, the list shows three rows, and Take All answers the three.
TEST_F(XSessionTest, TitlesThatCannotBeShownAsTheyStandKeepTheirRowsAndAreAnswered) {
    struct Case {
        char const* what;
        char const* locale;
        std::string title;
    };
    Case const cases[] = {
        {"two million characters", "C", std::string(2000000, 'W')},
        {"bytes that are not UTF-8", "de_DE.ISO-8859-1",
         "Broken \xFF bytes \xC0\xAF and \xE2\x82 cut"},
    };
    XvfbServer server;
    PassSanitizerSettings();
    for (Case const& c : cases) {
        SCOPED_TRACE(c.what);
        std::ofstream(Path("title.xml")) << "<ClientToUI><ActionRequest><ID>9</ID><Title>"
                                         << c.title << "</Title></ActionRequest></ClientToUI>";
        auto const action = [](std::string const& id) {
            return "send-text <ClientToUI><ActionRequest><ID>" + id + "</ID><Title>Action " + id +
                   "</Title></ActionRequest></ClientToUI>\n";
        };
        std::string const scenario =
            "start LANG=" + std::string(c.locale) + " LC_ALL=" + c.locale +
            "\nexpect ReadyForData\n"
            "send-text <ClientToUI><InitializationInfo><BaseDirectory>" +
            Path("session") +
            "</BaseDirectory><InitialUISettings><UseLocale>true</UseLocale></InitialUISettings>"
            "</InitializationInfo></ClientToUI>\n"
            "send title.xml\n" +
            action("10") + action("11") +
            "wait-window \"Action Requests\" within=20000\n"
            "expect-rows \"Action Requests\" viewport 3\n"
            "click \"Action Requests\" viewport row=0\n"
            "click \"Action Requests\" takeAllActions\n"
            "expect ActionTaken ID=9 within=10000\n"
            "expect ActionTaken ID=10\n"
            "expect ActionTaken ID=11\n"
            "close\n"
            "expect-exit 0\n";
        ScenarioOptions options;
        options.program = ZOLCLIENTUI_PATH;
        options.displayName = server.DisplayName();
        std::ostringstream log;
        ScenarioRunner runner(options, log);
        try {
            runner.Run(ParseScenario(scenario, Path("titles.scenario")));
        } catch (ScenarioError const& failure) {
            ADD_FAILURE() << failure.what() << "\n" << log.str();
        }
    }
}
