#include "dialogs/MessageDialogs.h"

#include <X11/Shell.h>
#include <X11/StringDefs.h>
#include <X11/Xaw/AsciiText.h>
#include <X11/Xaw/Command.h>
#include <X11/Xaw/Form.h>

#include <memory>

#include "dialogs/ShownText.h"
#include "dialogs/XHelpers.h"
#include "localized/UFormat.h"
#include "session/DialogCalls.h"
#include "session/MessageRequest.h"
#include "session/SessionCalls.h"

std::list<MessageDialog> messageDialogs;

namespace {

// The expiry a request asks for: now plus its timeout, or zero (never) without one.
Instant ExpiryOf(MessageRequest const& request) {
    if (!request.m_timeout) return Instant();
    return Instant::Now() + *request.m_timeout;
}

// A completion message shows a fixed notice around the request's title, and not its message.
// The agent's texts, and the completion sentence built around its title, are shown, never
// refused; a shell title made from the agent's title is cut to what a title bar can draw.
std::string TitleOf(MessageRequest const& request) {
    if (request.m_isCompletionMessage) return *ControlLiteral("Quorvane notification:");
    return ShortShownText(request.m_title);
}

std::string MessageOf(MessageRequest const& request) {
    if (!request.m_isCompletionMessage) return ShownText(request.m_message);
    return ShownText(MakeUString(UFormat("Action \"{actionTitle}\" has completed.")
                                     .With(UStringRef<UTF8>(request.m_title))));
}

void DismissCallback(Widget, XtPointer clientData, XtPointer) {
    Widget const shell = static_cast<Widget>(clientData);
    for (auto entry = messageDialogs.begin(); entry != messageDialogs.end(); ++entry) {
        if (entry->shell != shell) continue;
        XtDestroyWidget(entry->shell);
        messageDialogs.erase(entry);
        return;
    }
}

void BuildMessageDialog(MessageDialog& entry) {
    Boolean const multibyte = international ? True : False;
    Arg arguments[10];
    Cardinal count = 0;
    SetArg(arguments[count], XtNtitle, entry.title.c_str()), ++count;
    SetArg(arguments[count], XtNinternational, multibyte), ++count;
    entry.shell =
        XtAppCreateShell(nullptr, nullptr, applicationShellWidgetClass, display, arguments, count);

    Widget form = XtCreateManagedWidget("form", formWidgetClass, entry.shell, nullptr, 0);

    count = 0;
    SetArg(arguments[count], XtNinternational, multibyte), ++count;
    AddReadOnlyTextArguments(arguments, count, 500, 100);
    SetArg(arguments[count], XtNstring, TextWidgetString(entry.message)), ++count;
    entry.text =
        XtCreateManagedWidget("actionmessage", asciiTextWidgetClass, form, arguments, count);

    count = 0;
    SetArg(arguments[count], XtNinternational, multibyte), ++count;
    SetArg(arguments[count], XtNlabel, entry.buttonLabel.c_str()), ++count;
    SetArg(arguments[count], XtNfromVert, entry.text), ++count;
    Widget dismiss = XtCreateManagedWidget("dismiss", commandWidgetClass, form, arguments, count);
    XtAddCallback(dismiss, XtNcallback, DismissCallback, entry.shell);

    // The button ends where the box ends.
    Dimension textWidth = 0, textBorder = 0, dismissWidth = 0;
    XtVaGetValues(entry.text, XtNwidth, &textWidth, XtNborderWidth, &textBorder, nullptr);
    XtVaGetValues(dismiss, XtNwidth, &dismissWidth, nullptr);
    XtVaSetValues(dismiss, XtNhorizDistance,
                  static_cast<XtArgVal>(textWidth + textBorder - dismissWidth), nullptr);

    // Every dialog is centred, so new ones lie on top of the older ones until moved.
    XtRealizeWidget(entry.shell);
    CenterDialogOnDisplay(entry.shell);
    DeclareDeleteWindow(entry.shell);
    OverrideTextScrollbarTranslations(entry.text);
}

void RefreshMessageDialog(MessageDialog& entry, MessageRequest const& request) {
    // A request without a timeout makes an expiring dialog permanent.
    entry.isCompletionMessage = request.m_isCompletionMessage;
    entry.expiry = ExpiryOf(request);
    entry.message = MessageOf(request);
    entry.title = TitleOf(request);
    // Only the title and the text change; the button, place and size stay.
    XtVaSetValues(entry.shell, XtNtitle, entry.title.c_str(), nullptr);
    XtVaSetValues(entry.text, XtNstring, TextWidgetString(entry.message), nullptr);
}

}  // namespace

void ShowMessageDialog(MessageRequest const& request) {
    if (!display) return;
    for (MessageDialog& entry : messageDialogs) {
        // A failure here goes to the caller, which drops the rest of its batch.
        if (entry.id != request.m_id) continue;
        RefreshMessageDialog(entry, request);
        return;
    }
    try {
        // Made in a list of its own and spliced over once it stands, so that the widgets never
        // see its strings move.
        std::list<MessageDialog> made(1);
        MessageDialog& entry = made.front();
        entry.id = request.m_id;
        entry.isCompletionMessage = request.m_isCompletionMessage;
        entry.expiry = ExpiryOf(request);
        entry.message = MessageOf(request);
        entry.title = TitleOf(request);
        entry.buttonLabel = *ControlLiteral("OK");
        BuildMessageDialog(entry);
        messageDialogs.splice(messageDialogs.end(), made);
    } catch (...) {
        ReportDialogBuildFailure("MessageDialog");
    }
}

void RemoveMessageDialog(unsigned long long id) {
    for (auto entry = messageDialogs.begin(); entry != messageDialogs.end(); ++entry) {
        if (entry->id != id) continue;
        XtDestroyWidget(entry->shell);
        messageDialogs.erase(entry);
        return;
    }
}

void RemoveTimedoutMessageDialogs() {
    Instant const now = Instant::Now();
    for (auto entry = messageDialogs.begin(); entry != messageDialogs.end();) {
        if (entry->expiry != Instant() && !(now < entry->expiry)) {
            XtDestroyWidget(entry->shell);
            entry = messageDialogs.erase(entry);
        } else {
            ++entry;
        }
    }
}
