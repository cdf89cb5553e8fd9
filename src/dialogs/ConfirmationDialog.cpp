#include "dialogs/ConfirmationDialog.h"

#include <X11/Shell.h>
#include <X11/StringDefs.h>
#include <X11/Xaw/AsciiText.h>
#include <X11/Xaw/Command.h>
#include <X11/Xaw/Form.h>
#include <X11/Xaw/Label.h>

#include <memory>
#include <string>

#include "dialogs/ShownText.h"
#include "dialogs/XHelpers.h"
#include "session/DialogCalls.h"
#include "session/SessionCalls.h"

unsigned long long m_confirmedAction = 0;
int m_confirmationWidth = 500;

namespace {

// The texts the widgets show, kept for the life of the process. The action's texts keep their
// last value when the action is not found.
std::unique_ptr<std::string> dialogTitleSlot;
std::unique_ptr<std::string> actionTitleSlot = std::make_unique<std::string>();
std::unique_ptr<std::string> confirmationSlot = std::make_unique<std::string>();
std::unique_ptr<std::string> okLabelSlot;
std::unique_ptr<std::string> cancelLabelSlot;
std::unique_ptr<std::string> explanationSlot;

Widget confirmationShell = nullptr;

void OkCallback(Widget, XtPointer, XtPointer) {
    HideConfirmationRequestDialog();
    QueueCommand(UICommandConfirmationAccepted, m_confirmedAction, 0, 0);
}

void CancelCallback(Widget, XtPointer, XtPointer) {
    HideConfirmationRequestDialog();
    QueueCommand(UICommandConfirmationRejected, m_confirmedAction, 0, 0);
}

void BuildConfirmationRequestDialog(unsigned long long actionID) {
    m_confirmedAction = actionID;
    for (ActionRequest const& action : actions) {
        if (action.m_id != actionID) continue;
        // The caller opens this dialog only for an action whose message is present. The
        // agent's texts are shown, never refused; the title label is cut to what a label draws.
        confirmationSlot = std::make_unique<std::string>(
            action.m_preActionMessage ? ShownText(*action.m_preActionMessage) : std::string());
        actionTitleSlot = std::make_unique<std::string>(ShortShownText(action.m_title));
        break;
    }
    dialogTitleSlot = ControlLiteral("Confirmation Required");
    okLabelSlot = ControlLiteral("OK");
    cancelLabelSlot = ControlLiteral("Cancel");
    explanationSlot = ControlLiteral(
        "This action requires you to acknowledge the following confirmation message:");

    Boolean const multibyte = international ? True : False;
    Arg arguments[10];
    Cardinal count = 0;
    SetArg(arguments[count], XtNtitle, dialogTitleSlot->c_str()), ++count;
    SetArg(arguments[count], XtNinternational, multibyte), ++count;
    confirmationShell =
        XtAppCreateShell(nullptr, nullptr, applicationShellWidgetClass, display, arguments, count);

    Widget form = XtCreateManagedWidget("form", formWidgetClass, confirmationShell, nullptr, 0);

    count = 0;
    SetArg(arguments[count], XtNinternational, multibyte), ++count;
    SetArg(arguments[count], XtNborderWidth, 0), ++count;
    SetArg(arguments[count], XtNjustify, XtJustifyLeft), ++count;
    SetArg(arguments[count], XtNlabel, actionTitleSlot->c_str()), ++count;
    Widget actionTitle =
        XtCreateManagedWidget("actiontitle", labelWidgetClass, form, arguments, count);

    count = 0;
    SetArg(arguments[count], XtNinternational, multibyte), ++count;
    SetArg(arguments[count], XtNborderWidth, 0), ++count;
    SetArg(arguments[count], XtNjustify, XtJustifyLeft), ++count;
    SetArg(arguments[count], XtNlabel, explanationSlot->c_str()), ++count;
    SetArg(arguments[count], XtNfromVert, actionTitle), ++count;
    Widget explanation =
        XtCreateManagedWidget("staticlabel", labelWidgetClass, form, arguments, count);

    // A long (translated) explanation widens the box, for this and every later showing.
    Dimension explanationWidth = 0;
    XtVaGetValues(explanation, XtNwidth, &explanationWidth, nullptr);
    if (explanationWidth > m_confirmationWidth) m_confirmationWidth = explanationWidth;

    count = 0;
    SetArg(arguments[count], XtNinternational, multibyte), ++count;
    AddReadOnlyTextArguments(arguments, count, m_confirmationWidth, 100);
    SetArg(arguments[count], XtNfromVert, explanation), ++count;
    SetArg(arguments[count], XtNstring, TextWidgetString(*confirmationSlot)), ++count;
    Widget message =
        XtCreateManagedWidget("actionconfirmation", asciiTextWidgetClass, form, arguments, count);

    count = 0;
    SetArg(arguments[count], XtNinternational, multibyte), ++count;
    SetArg(arguments[count], XtNlabel, cancelLabelSlot->c_str()), ++count;
    SetArg(arguments[count], XtNfromVert, message), ++count;
    Widget cancel = XtCreateManagedWidget("cancel", commandWidgetClass, form, arguments, count);
    XtAddCallback(cancel, XtNcallback, CancelCallback, nullptr);

    count = 0;
    SetArg(arguments[count], XtNinternational, multibyte), ++count;
    SetArg(arguments[count], XtNlabel, okLabelSlot->c_str()), ++count;
    SetArg(arguments[count], XtNfromVert, message), ++count;
    Widget ok = XtCreateManagedWidget("ok", commandWidgetClass, form, arguments, count);
    XtAddCallback(ok, XtNcallback, OkCallback, nullptr);

    // Cancel ends where the box ends, OK stands to its left, at the same gaps as the buttons of
    // the action dialog.
    Dimension textWidth = 0, textBorder = 0, cancelWidth = 0, okWidth = 0;
    XtVaGetValues(message, XtNwidth, &textWidth, XtNborderWidth, &textBorder, nullptr);
    XtVaGetValues(cancel, XtNwidth, &cancelWidth, nullptr);
    XtVaGetValues(ok, XtNwidth, &okWidth, nullptr);
    int const width = textWidth, border = textBorder;
    XtVaSetValues(cancel, XtNhorizDistance, static_cast<XtArgVal>(width + border - cancelWidth),
                  nullptr);
    XtVaSetValues(ok, XtNhorizDistance,
                  static_cast<XtArgVal>(width - 5 * border - cancelWidth - okWidth), nullptr);

    XtRealizeWidget(confirmationShell);
    CenterDialogOnDisplay(confirmationShell);
    DeclareDeleteWindow(confirmationShell);
    OverrideTextScrollbarTranslations(message);
}

}  // namespace

void ShowConfirmationRequestDialog(unsigned long long actionID) {
    // A second request while one is up is dropped: the buttons keep answering for the first.
    if (!display || confirmationShell) return;
    try {
        BuildConfirmationRequestDialog(actionID);
    } catch (...) {
        ReportDialogBuildFailure("ConfirmationDialog");
    }
    UpdateConfirmationRequestDialog();
}

void HideConfirmationRequestDialog() {
    if (!confirmationShell) return;
    XtDestroyWidget(confirmationShell);
    confirmationShell = nullptr;
}

void UpdateConfirmationRequestDialog() {}
