// GoogleTest comes before the X headers, whose macros (None, Bool) would break it.
#include <gtest/gtest.h>

#include "dialogs/XErrorHandlers.h"

#include <X11/Intrinsic.h>

#include <string>
#include <vector>

#include "AgentSimulator.h"
#include "testing/AgentExit.h"
#include "testing/XvfbServer.h"

namespace {

// The report the agent must receive, twice, before a missing font ends the process.
std::string NoFontReport(std::string const& text) {
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<ClientToUI>\n\t<ClientUIErrorMessage>\n"
           "\t\t<DebugString>" +
           text +
           "</DebugString>\n\t\t<ErrorCode>1</ErrorCode>\n\t</ClientUIErrorMessage>\n"
           "</ClientToUI>";
}

// Collects every frame until the process closes descriptor 1 or ends.
std::vector<std::string> AllFrames(AgentSimulator& agent) {
    std::vector<std::string> frames;
    while (auto frame = agent.ReceiveFrame(15000)) frames.push_back(*frame);
    return frames;
}

// What the warning handler passed on, recorded by the handler installed before it.
struct PassedWarning {
    std::string name, type, errorClass, defaultText;
    String* parameters = nullptr;
    Cardinal* parameterCount = nullptr;
    int calls = 0;
};
PassedWarning passed;

void RecordWarning(String name, String type, String errorClass, String defaultText,
                   String* parameters, Cardinal* parameterCount) {
    passed.name = name;
    passed.type = type;
    passed.errorClass = errorClass;
    passed.defaultText = defaultText;
    passed.parameters = parameters;
    passed.parameterCount = parameterCount;
    ++passed.calls;
}

}  // namespace

TEST(WarningMsgHandler, OtherWarningsReachThePreviousHandlerUnchanged) {
    XtToolkitInitialize();
    XtAppContext context = XtCreateApplicationContext();
    XtAppSetWarningMsgHandler(context, RecordWarning);
    OverrideWarningMsgHandler(context);
    EXPECT_EQ(defaultWarningMsgHandler, RecordWarning);

    String parameters[] = {const_cast<char*>("first"), const_cast<char*>("second")};
    Cardinal count = 2;
    XtAppWarningMsg(context, "noFontSet", "cvtStringToFontSet", "XtToolkitError",
                    "missing %s and %s", parameters, &count);
    EXPECT_EQ(passed.calls, 1);
    EXPECT_EQ(passed.name, "noFontSet");
    EXPECT_EQ(passed.type, "cvtStringToFontSet");
    EXPECT_EQ(passed.errorClass, "XtToolkitError");
    EXPECT_EQ(passed.defaultText, "missing %s and %s");
    EXPECT_EQ(passed.parameters, parameters);
    EXPECT_EQ(passed.parameterCount, &count);
    XtDestroyApplicationContext(context);
    defaultWarningMsgHandler = nullptr;
}

// The probe runs the handler in a process of its own with the pipe threads running, as the
// program does; the agent sees the report twice and then a normal end.
TEST(WarningMsgHandler, NoFontIsReportedTwiceThenTheProcessEndsWithZero) {
    struct Case {
        char const* mode;
        char const* text;
    };
    Case const cases[] = {{"warning-noFont-class", "noFont (XtToolkitError)"},
                          {"warning-noFont", "noFont"}};
    AgentSimulator agents[2];
    for (int i = 0; i < 2; ++i) agents[i].Launch(XFAILUREPROBE_PATH, {cases[i].mode});
    for (int i = 0; i < 2; ++i) {
        SCOPED_TRACE(cases[i].mode);
        std::string report = NoFontReport(cases[i].text);
        EXPECT_EQ(AllFrames(agents[i]), (std::vector<std::string>{report, report}));
        ExpectExitStatus(agents[i], 0);
    }
}

// Once the agent has closed its end the pipe is killed and nothing takes the report from the
// queue any more; the process must not wait minutes for it.
TEST(WarningMsgHandler, NoFontWithThePipeKilledEndsWithoutWaitingForTheReport) {
    AgentSimulator agent;
    agent.Launch(XFAILUREPROBE_PATH, {"warning-noFont-after-eof"});
    agent.CloseToProcess();
    EXPECT_EQ(AllFrames(agent), std::vector<std::string>{});
    ExpectExitStatus(agent, 0);
}

// Protocol and toolkit errors end with -1, seen by the parent as 255; nothing is reported.
TEST(XFailure, ProtocolAndToolkitErrorsEndWithMinusOne) {
    XvfbServer server;
    char const* const modes[] = {"protocol-error", "toolkit-error"};
    AgentSimulator agents[2];
    for (int i = 0; i < 2; ++i)
        agents[i].Launch(XFAILUREPROBE_PATH, {modes[i], "-display", server.DisplayName()});
    for (int i = 0; i < 2; ++i) {
        SCOPED_TRACE(modes[i]);
        EXPECT_EQ(AllFrames(agents[i]), std::vector<std::string>{});
        ExpectExitStatus(agents[i], 255);
    }
}
