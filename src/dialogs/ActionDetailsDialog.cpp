#include "dialogs/ActionDetailsDialog.h"

#include <X11/Shell.h>
#include <X11/StringDefs.h>
#include <X11/Xaw/AsciiText.h>
#include <X11/Xaw/Command.h>
#include <X11/Xaw/Form.h>

#include <memory>
#include <string>

#include "dialogs/ShownText.h"
#include "dialogs/XHelpers.h"
#include "session/DialogCalls.h"
#include "session/SessionCalls.h"

namespace {

// The texts the widgets show, kept for the life of the process. The preview keeps its last
// text when the action it came from is gone.
std::unique_ptr<std::string> titleSlot;
std::unique_ptr<std::string> previewSlot = std::make_unique<std::string>();
std::unique_ptr<std::string> okLabelSlot;

Widget detailsShell = nullptr;
Widget detailsText = nullptr;

void OkCallback(Widget, XtPointer, XtPointer) {
    HideActionDetailsDialog();
    QueueCommand(UICommandDetailsClosed, 0, 0, 0);
}

void BuildActionDetailsDialog(unsigned long long actionID) {
    for (ActionRequest const& action : actions) {
        if (action.m_id != actionID) continue;
        // The button that opens this dialog is sensitive only for an action with a preview;
        // one without shows an empty box. The script is shown, never refused.
        previewSlot = std::make_unique<std::string>(action.m_preview ? ShownText(*action.m_preview)
                                                                     : std::string());
        break;
    }
    titleSlot = ControlLiteral("Action Script Preview");
    okLabelSlot = ControlLiteral("OK");

    Boolean const multibyte = international ? True : False;
    Arg arguments[10];
    Cardinal count = 0;
    SetArg(arguments[count], XtNtitle, titleSlot->c_str()), ++count;
    SetArg(arguments[count], XtNinternational, multibyte), ++count;
    detailsShell =
        XtAppCreateShell(nullptr, nullptr, applicationShellWidgetClass, display, arguments, count);

    Widget form = XtCreateManagedWidget("form", formWidgetClass, detailsShell, nullptr, 0);

    count = 0;
    SetArg(arguments[count], XtNinternational, multibyte), ++count;
    AddReadOnlyTextArguments(arguments, count, 500, 100);
    SetArg(arguments[count], XtNstring, TextWidgetString(*previewSlot)), ++count;
    detailsText =
        XtCreateManagedWidget("actiondetails", asciiTextWidgetClass, form, arguments, count);

    count = 0;
    SetArg(arguments[count], XtNinternational, multibyte), ++count;
    SetArg(arguments[count], XtNlabel, okLabelSlot->c_str()), ++count;
    SetArg(arguments[count], XtNfromVert, detailsText), ++count;
    Widget ok = XtCreateManagedWidget("ok", commandWidgetClass, form, arguments, count);
    XtAddCallback(ok, XtNcallback, OkCallback, nullptr);

    // The button ends where the box ends.
    Dimension textWidth = 0, textBorder = 0, okWidth = 0;
    XtVaGetValues(detailsText, XtNwidth, &textWidth, XtNborderWidth, &textBorder, nullptr);
    XtVaGetValues(ok, XtNwidth, &okWidth, nullptr);
    XtVaSetValues(ok, XtNhorizDistance, static_cast<XtArgVal>(textWidth + textBorder - okWidth),
                  nullptr);

    XtRealizeWidget(detailsShell);
    CenterDialogOnDisplay(detailsShell);
    DeclareDeleteWindow(detailsShell);
    OverrideTextScrollbarTranslations(detailsText);
}

}  // namespace

void ShowActionDetailsDialog(unsigned long long actionID) {
    if (!display || detailsShell) return;
    try {
        BuildActionDetailsDialog(actionID);
    } catch (...) {
        ReportDialogBuildFailure("ActionDetailsDialog");
    }
    UpdateActionDetailsDialog();
}

void HideActionDetailsDialog() {
    if (!detailsShell) return;
    XtDestroyWidget(detailsShell);
    detailsShell = nullptr;
    detailsText = nullptr;
}

void UpdateActionDetailsDialog() {}
