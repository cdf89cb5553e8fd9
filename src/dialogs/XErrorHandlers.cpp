#include "dialogs/XErrorHandlers.h"

#include <cstdio>
#include <cstring>
#include <string>

#include "session/ClientUIErrorMessage.h"
#include "session/ExitCleanup.h"
#include "session/SendErrorToClient.h"
#include "session/SessionState.h"

XtErrorMsgHandler defaultWarningMsgHandler = nullptr;

int X_ErrorHandler(Display* display, XErrorEvent* event) {
    // The text stays if Xlib leaves the buffer alone.
    char text[2048] = "Unknown XError";
    XGetErrorText(display, event->error_code, text, sizeof text);
    std::string reason = std::string("XError: ") + text;
    // Destroying the context closes the display, which makes a request and waits for its
    // reply. Xlib forbids that inside an error handler, and with its own locking it waits
    // forever. The exit ends the connection all the same, so the context is left to it.
    app_context = nullptr;
    ExitCleanup(-1, reason.c_str());
}

int X_IOErrorHandler(Display*) {
    ExitCleanup(0, "CLOSED");
}

void Xt_ErrorHandler(String message) {
    char reason[2048];
    std::snprintf(reason, sizeof reason, "XtError: %s", message ? message : "");
    ExitCleanup(-1, reason);
}

void WarningMsgHandler(String name, String type, String errorClass, String defaultText,
                       String* parameters, Cardinal* parameterCount) {
    if (name && std::strcmp(name, "noFont") == 0) {
        std::string text = "noFont";
        if (errorClass) text = text + " (" + errorClass + ")";
        ClientUIErrorMessage report;
        report.m_code = ClientUIErrorMessage::NoFont;
        report.m_debugString = text;
        SendErrorToClient(report);
        ExitCleanup(0, text.c_str());
    }
    if (defaultWarningMsgHandler)
        defaultWarningMsgHandler(name, type, errorClass, defaultText, parameters, parameterCount);
}

void OverrideWarningMsgHandler(XtAppContext context) {
    defaultWarningMsgHandler = XtAppSetWarningMsgHandler(context, WarningMsgHandler);
}
