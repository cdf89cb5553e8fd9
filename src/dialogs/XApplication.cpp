#include "dialogs/XApplication.h"

#include <X11/Shell.h>
#include <X11/StringDefs.h>

#include <clocale>
#include <cstring>

#include "dialogs/DefaultFontSet.h"
#include "dialogs/SystemMenuClose.h"
#include "dialogs/XErrorHandlers.h"
#include "dialogs/XHelpers.h"
#include "localized/TranslationFiles.h"
#include "session/DialogCalls.h"
#include "session/PendingActionsTick.h"
#include "session/ProcessMessagesFromUI.h"
#include "session/SessionCalls.h"

namespace {

unsigned long const tickMilliseconds = 1000;

// Returns whether the locale of LC_CTYPE is one the translations cannot be shown in.
bool PlainLocale() {
    char const* locale = std::setlocale(LC_CTYPE, nullptr);
    return !locale || !*locale || std::strcmp(locale, "C") == 0 ||
           std::strcmp(locale, "POSIX") == 0;
}

void RunXApp(int& argc, char** argv) {
    XSetErrorHandler(X_ErrorHandler);
    XSetIOErrorHandler(X_IOErrorHandler);
    if (international) XtSetLanguageProc(nullptr, nullptr, nullptr);
    XtToolkitInitialize();
    app_context = XtCreateApplicationContext();
    // Before the display opens, so that a font failure while opening is already ours.
    OverrideWarningMsgHandler(app_context);
    display = XtOpenDisplay(app_context, nullptr, nullptr, "XZOLClientUI", nullptr, 0, &argc, argv);
    if (!display) ExitCleanup(-1, "Error: failed XtOpenDisplay");
    // A locale that cannot carry the translations drops them on purpose: the widgets then
    // show the built-in English texts.
    if (international && PlainLocale()) {
        international = false;
        // The scopes first: each refers to the entries of its file.
        m_formatOverrides.clear();
        m_formatFiles.clear();
    }
    ConfigValidDefaultFontSet();
    XtAppSetErrorHandler(app_context, Xt_ErrorHandler);
    // Registered for resource files to bind; the program itself binds neither.
    static XtActionsRec actionTable[] = {{const_cast<char*>("SystemMenuClose"), SystemMenuClose},
                                         {const_cast<char*>("Nothing"), nullptr}};
    XtAppAddActions(app_context, actionTable, XtNumber(actionTable));
    XtAppAddTimeOut(app_context, tickMilliseconds, TimerTick, nullptr);
    XtAppMainLoop(app_context);
}

}  // namespace

void InitXApp(int argc, char** argv) {
    // Whatever reaches this point ends the X loop, and main then ends normally.
    try {
        RunXApp(argc, argv);
    } catch (...) {
    }
}

void TimerTick(XtPointer, XtIntervalId*) {
    if (clientPipe && clientPipe->Killed()) ExitCleanup(0, "CLOSED");
    ProcessMessagesFromClient();
    ProcessMessagesFromUI();
    if (initialized) {
        if (hiddenWindowPending) {
            hiddenWindowPending = false;
            CreateHiddenWindow();
        }
        TickPendingActions();
    }
    XtAppAddTimeOut(app_context, tickMilliseconds, TimerTick, nullptr);
}

void CreateHiddenWindow() {
    Arg arguments[3];
    Cardinal count = 0;
    SetArg(arguments[count], XtNwidth, 32), ++count;
    SetArg(arguments[count], XtNheight, 32), ++count;
    SetArg(arguments[count], XtNmappedWhenManaged, False), ++count;
    zolHidden = XtAppCreateShell("ZOLClientUIHiddenWindow", nullptr, applicationShellWidgetClass,
                                 display, arguments, count);
    XtRealizeWidget(zolHidden);
    XtInsertEventHandler(zolHidden, NoEventMask, True, HiddenWindowEventHandler, nullptr,
                         XtListHead);
}

void HiddenWindowEventHandler(Widget, XtPointer, XEvent* event, Boolean*) {
    if (event && event->type == ClientMessage && std::memcmp(event->xclient.data.b, "open", 4) == 0)
        QueueCommand(UICommandShowActions, 0, 0, 0);
}
