// A test program that sets up like the real process (the pipe to the agent on descriptors 0 and
// 1 with its two threads running, the X handlers installed in start-up order) and then meets
// one X failure, named by its first argument. The remaining arguments go to XtOpenDisplay
// ("-display :N"). The tests read its reports on descriptor 1 and its exit status.
//
// Modes:
//   warning-noFont-class   the toolkit warns "noFont" with a class
//   warning-noFont         the toolkit warns "noFont" without a class
//   warning-noFont-after-eof
//                          the same, once the agent has closed descriptor 0 and the pipe is
//                          killed, so that nothing drains the reports any more
//   protocol-error         a request names a window that does not exist; the error comes as
//                          the answer to a round trip
//   protocol-error-in-loop the same, but the error arrives while the main loop reads events
//   toolkit-error          the toolkit reports an error
//   close-delete           the window manager asks the shell to close
//   close-other            a WM_PROTOCOLS message of another protocol arrives
//   close-other-type       a message of another type carries WM_DELETE_WINDOW
// Status 3 means that the failure did not end the process; 4, that set-up went wrong.

#include <X11/Intrinsic.h>
#include <X11/Shell.h>
#include <X11/StringDefs.h>
#include <unistd.h>

#include <cstdlib>
#include <cstring>
#include <string>

#include "dialogs/DefaultFontSet.h"
#include "dialogs/SystemMenuClose.h"
#include "dialogs/XErrorHandlers.h"
#include "session/ExitCleanup.h"
#include "session/SessionState.h"

namespace {

int const notEnded = 3;
int const setUpFailed = 4;

// The start-up order of the real process, up to the toolkit error handler.
void OpenDisplay(int& argc, char** argv) {
    XSetErrorHandler(X_ErrorHandler);
    XSetIOErrorHandler(X_IOErrorHandler);
    XtToolkitInitialize();
    app_context = XtCreateApplicationContext();
    OverrideWarningMsgHandler(app_context);
    display = XtOpenDisplay(app_context, nullptr, nullptr, "XZOLClientUI", nullptr, 0, &argc, argv);
    if (!display) std::exit(setUpFailed);
    ConfigValidDefaultFontSet();
    XtAppSetErrorHandler(app_context, Xt_ErrorHandler);
}

void EndAfterAWhile(XtPointer, XtIntervalId*) {
    std::exit(notEnded);
}

// Binds SystemMenuClose to every client message, as a resource file could, then sends the
// shell a message of the given type carrying the given protocol, the way a window manager does.
void SendProtocolMessage(char const* type, char const* protocol) {
    XtActionsRec actions[] = {{const_cast<char*>("SystemMenuClose"), SystemMenuClose}};
    XtAppAddActions(app_context, actions, 1);
    Widget shell = XtVaAppCreateShell(nullptr, "XZOLClientUI", applicationShellWidgetClass, display,
                                      XtNwidth, 50, XtNheight, 50, nullptr);
    XtOverrideTranslations(shell, XtParseTranslationTable("<ClientMessage>: SystemMenuClose()"));
    XtRealizeWidget(shell);
    XEvent event;
    std::memset(&event, 0, sizeof event);
    event.xclient.type = ClientMessage;
    event.xclient.window = XtWindow(shell);
    event.xclient.message_type = XInternAtom(display, type, False);
    event.xclient.format = 32;
    event.xclient.data.l[0] = static_cast<long>(XInternAtom(display, protocol, False));
    event.xclient.data.l[1] = CurrentTime;
    XSendEvent(display, XtWindow(shell), False, NoEventMask, &event);
    XtAppAddTimeOut(app_context, 1500, EndAfterAWhile, nullptr);
    XtAppMainLoop(app_context);
}

}  // namespace

// Held for the life of the process, as main holds its reference; outside the anonymous
// namespace so that the leak checker sees the store.
UnixPipeRef* mainReference = nullptr;

int main(int argc, char** argv) {
    if (argc < 2) return setUpFailed;
    std::string mode = argv[1];
    clientPipe = new UnixPipe(readQ, writeQ);
    mainReference = new UnixPipeRef(clientPipe);
    clientPipe->Start(0, 1);
    // The mode is taken out of the arguments that the toolkit parses.
    argv[1] = argv[0];
    --argc;
    ++argv;

    Cardinal noParameters = 0;
    if (mode == "warning-noFont-after-eof") {
        for (int wait = 0; !clientPipe->Killed(); ++wait) {
            if (wait == 1000) return setUpFailed;
            usleep(10000);
        }
        mode = "warning-noFont";
    }
    if (mode == "warning-noFont-class" || mode == "warning-noFont") {
        XtToolkitInitialize();
        app_context = XtCreateApplicationContext();
        OverrideWarningMsgHandler(app_context);
        char const* errorClass = mode == "warning-noFont" ? nullptr : "XtToolkitError";
        XtAppWarningMsg(app_context, "noFont", "cvtStringToFontSet", errorClass,
                        "Unable to load any usable fontset", nullptr, &noParameters);
    } else if (mode == "protocol-error") {
        OpenDisplay(argc, argv);
        XMapWindow(display, 0x1fffffff);
        XSync(display, False);
    } else if (mode == "protocol-error-in-loop") {
        OpenDisplay(argc, argv);
        XMapWindow(display, 0x1fffffff);
        XtAppAddTimeOut(app_context, 5000, EndAfterAWhile, nullptr);
        XtAppMainLoop(app_context);
    } else if (mode == "toolkit-error") {
        OpenDisplay(argc, argv);
        XtAppError(app_context, "a deliberate toolkit error");
    } else if (mode == "close-delete") {
        OpenDisplay(argc, argv);
        SendProtocolMessage("WM_PROTOCOLS", "WM_DELETE_WINDOW");
    } else if (mode == "close-other") {
        OpenDisplay(argc, argv);
        SendProtocolMessage("WM_PROTOCOLS", "WM_TAKE_FOCUS");
    } else if (mode == "close-other-type") {
        OpenDisplay(argc, argv);
        SendProtocolMessage("ZOL_NOT_A_PROTOCOL", "WM_DELETE_WINDOW");
    } else {
        return setUpFailed;
    }
    return notEnded;
}
