// The quiet-mode notice: while the agent keeps the user from taking actions, a small dialog over
// the action dialog says between which times, with one OK button centred under the text. The
// calls are in session/DialogCalls.h.

#include <X11/Shell.h>
#include <X11/StringDefs.h>
#include <X11/Xaw/Command.h>
#include <X11/Xaw/Form.h>
#include <X11/Xaw/Label.h>

#include <memory>
#include <string>

#include "dialogs/XHelpers.h"
#include "localized/LocalizedStrings.h"
#include "session/DialogCalls.h"
#include "session/SessionCalls.h"

namespace {

// The texts the widgets show, kept for the life of the process.
std::unique_ptr<std::string> titleSlot;
std::unique_ptr<std::string> explanationSlot;
std::unique_ptr<std::string> okLabelSlot;

// The widest explanation so far, at least 500. Deliberately read by nothing: the notice has no
// text box that such a width could apply to.
int quietModeWidth = 500;

Widget quietModeShell = nullptr;

void OkCallback(Widget, XtPointer, XtPointer) {
    RemoveQuietModeDialog();
    QueueCommand(UICommandQuietModeDismissed, 0, 0, 0);
}

void BuildQuietModeDialog(Instant const& start, Instant const& end) {
    titleSlot = ControlLiteral("Not Currently Available");
    explanationSlot = ControlLiteral(LocalizedStrings::QuietModeExplanation(start, end));
    okLabelSlot = ControlLiteral("OK");

    Boolean const multibyte = international ? True : False;
    Arg arguments[6];
    Cardinal count = 0;
    SetArg(arguments[count], XtNtitle, titleSlot->c_str()), ++count;
    SetArg(arguments[count], XtNinternational, multibyte), ++count;
    quietModeShell =
        XtAppCreateShell(nullptr, nullptr, applicationShellWidgetClass, display, arguments, count);

    Widget form = XtCreateManagedWidget("form", formWidgetClass, quietModeShell, nullptr, 0);

    // A label, so the text does not wrap: the dialog is as wide as the explanation.
    count = 0;
    SetArg(arguments[count], XtNinternational, multibyte), ++count;
    SetArg(arguments[count], XtNborderWidth, 0), ++count;
    SetArg(arguments[count], XtNjustify, XtJustifyLeft), ++count;
    SetArg(arguments[count], XtNlabel, explanationSlot->c_str()), ++count;
    Widget explanation =
        XtCreateManagedWidget("staticlabel", labelWidgetClass, form, arguments, count);

    Dimension labelWidth = 0, labelBorder = 0;
    XtVaGetValues(explanation, XtNwidth, &labelWidth, XtNborderWidth, &labelBorder, nullptr);
    if (labelWidth > quietModeWidth) quietModeWidth = labelWidth;

    count = 0;
    SetArg(arguments[count], XtNinternational, multibyte), ++count;
    SetArg(arguments[count], XtNlabel, okLabelSlot->c_str()), ++count;
    SetArg(arguments[count], XtNfromVert, explanation), ++count;
    Widget ok = XtCreateManagedWidget("ok", commandWidgetClass, form, arguments, count);
    XtAddCallback(ok, XtNcallback, OkCallback, nullptr);

    // Centred under the text, dividing toward zero; a label narrower than the button moves the
    // button left of the label's start.
    Dimension okWidth = 0;
    XtVaGetValues(ok, XtNwidth, &okWidth, nullptr);
    int const offset = (static_cast<int>(labelWidth) - static_cast<int>(okWidth)) / 2 + labelBorder;
    XtVaSetValues(ok, XtNhorizDistance, static_cast<XtArgVal>(offset), nullptr);

    XtRealizeWidget(quietModeShell);
    CenterDialogOnDisplay(quietModeShell);
    DeclareDeleteWindow(quietModeShell);
}

}  // namespace

void ShowQuietModeDialog(Instant const& start, Instant const& end) {
    // A second start while the notice is up leaves the first times on screen.
    if (!display || quietModeShell) return;
    try {
        BuildQuietModeDialog(start, end);
    } catch (...) {
        ReportDialogBuildFailure("QuietModeDialog");
    }
}

void RemoveQuietModeDialog() {
    if (!quietModeShell) return;
    XtDestroyWidget(quietModeShell);
    quietModeShell = nullptr;
}
