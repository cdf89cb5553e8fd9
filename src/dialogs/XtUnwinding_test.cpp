// The program lets an exception from a dialog refresh on the tick travel up through the
// toolkit's main loop to a catch around it. That crosses the C frames of libXt, which works only
// because they carry unwind tables; these tests prove it with the flags the build uses.

// GoogleTest comes before the X headers, whose macros (None, Bool) would break it.
#include <gtest/gtest.h>

#include <X11/Intrinsic.h>
#include <X11/Shell.h>
#include <X11/StringDefs.h>

#include <cstring>
#include <stdexcept>

#include "testing/ToolkitDisplay.h"
#include "testing/XvfbServer.h"

namespace {

struct ThrownFromTheToolkit : std::runtime_error {
    ThrownFromTheToolkit() : std::runtime_error("thrown inside a toolkit callback") {}
};

void ThrowFromTimer(XtPointer, XtIntervalId*) {
    throw ThrownFromTheToolkit();
}

void ThrowFromAction(Widget, XEvent*, String*, Cardinal*) {
    throw ThrownFromTheToolkit();
}

// Gives up after a while, so that a callback that never ran fails the test instead of
// hanging it.
bool gaveUp = false;
void GiveUp(XtPointer, XtIntervalId*) {
    gaveUp = true;
    throw std::logic_error("the callback never ran");
}

// Returns what reached a catch around the main loop.
std::string RunMainLoop(XtAppContext context) {
    gaveUp = false;
    XtIntervalId giveUp = XtAppAddTimeOut(context, 10000, GiveUp, nullptr);
    std::string reached = "the main loop returned";
    try {
        XtAppMainLoop(context);
    } catch (ThrownFromTheToolkit const&) {
        reached = "caught";
    } catch (std::exception const& other) {
        reached = other.what();
    }
    // The toolkit does not free the timers still pending when its context goes.
    if (!gaveUp) XtRemoveTimeOut(giveUp);
    return reached;
}

}  // namespace

TEST(XtUnwinding, AnExceptionFromATimerReachesACatchAroundTheMainLoop) {
    XvfbServer server;
    ToolkitDisplay toolkit(server.DisplayName());
    XtAppAddTimeOut(toolkit.Context(), 10, ThrowFromTimer, nullptr);
    EXPECT_EQ(RunMainLoop(toolkit.Context()), "caught");
}

// An action runs below event dispatch and the translation manager: more C frames to cross.
TEST(XtUnwinding, AnExceptionFromAnActionOnARealEventReachesACatchAroundTheMainLoop) {
    XvfbServer server;
    ToolkitDisplay toolkit(server.DisplayName());
    XtActionsRec actions[] = {{const_cast<char*>("ThrowFromAction"), ThrowFromAction}};
    XtAppAddActions(toolkit.Context(), actions, 1);
    Widget shell = XtVaAppCreateShell(nullptr, "XZOLClientUI", applicationShellWidgetClass,
                                      toolkit.Connection(), XtNwidth, 10, XtNheight, 10, nullptr);
    XtOverrideTranslations(shell, XtParseTranslationTable("<ClientMessage>: ThrowFromAction()"));
    XtRealizeWidget(shell);

    XEvent event;
    std::memset(&event, 0, sizeof event);
    event.xclient.type = ClientMessage;
    event.xclient.window = XtWindow(shell);
    event.xclient.message_type = XInternAtom(toolkit.Connection(), "ZOL_TEST", False);
    event.xclient.format = 8;
    XSendEvent(toolkit.Connection(), XtWindow(shell), False, NoEventMask, &event);
    EXPECT_EQ(RunMainLoop(toolkit.Context()), "caught");
}
