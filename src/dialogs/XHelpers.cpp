#include "dialogs/XHelpers.h"

#include <X11/IntrinsicP.h>
#include <X11/StringDefs.h>
#include <X11/Xaw/AsciiText.h>
#include <X11/Xaw/List.h>
#include <X11/Xaw/Scrollbar.h>
#include <X11/Xaw/TextP.h>

#include <cstring>

#include "localized/UFormat.h"
#include "session/SessionCalls.h"

void CenterDialogOnDisplay(Widget shell) {
    Dimension width = 0;
    Dimension height = 0;
    XtVaGetValues(shell, XtNwidth, &width, XtNheight, &height, nullptr);
    Screen* screen = DefaultScreenOfDisplay(XtDisplay(shell));
    // In int, so that a shell larger than the screen gets a negative place; the division goes
    // toward zero.
    int x = (WidthOfScreen(screen) - static_cast<int>(width)) / 2;
    int y = (HeightOfScreen(screen) - static_cast<int>(height)) / 2;
    Arg arguments[2];
    SetArg(arguments[0], XtNx, static_cast<Position>(x));
    SetArg(arguments[1], XtNy, static_cast<Position>(y));
    XtSetValues(shell, arguments, 2);
}

void OverrideScrollbarTranslations(Widget scrollbar) {
    XtOverrideTranslations(
        scrollbar,
        XtParseTranslationTable(
            "#override\n\t\t<Btn1Down>: StartScroll(Continuous) MoveThumb() NotifyThumb()\n"
            "\t\t<Btn3Down>: StartScroll(Continuous) MoveThumb() NotifyThumb()\n"
            "\t\t<Btn1Motion>: MoveThumb() NotifyThumb()\n"
            "\t\t<Btn3Motion>: MoveThumb() NotifyThumb()\n"));
}

void ScrollSelectedItemIntoView(Widget viewport, Widget list) {
    XawListReturnStruct* current = XawListShowCurrent(list);
    if (!current) return;
    int index = current->list_index;
    XtFree(reinterpret_cast<char*>(current));
    // Athena gives a record with no index rather than nothing when no row is highlighted.
    if (index == XAW_LIST_NONE) return;
    int numberStrings = 1;
    XtVaGetValues(list, XtNnumberStrings, &numberStrings, nullptr);
    Widget scrollbar = XtNameToWidget(viewport, "vertical");
    if (!scrollbar) return;
    float fraction = static_cast<float>(index) / static_cast<float>(numberStrings);
    XtCallCallbacks(scrollbar, XtNjumpProc, &fraction);
}

void DeclareDeleteWindow(Widget shell) {
    Display* connection = XtDisplay(shell);
    Atom deleteWindow = XInternAtom(connection, "WM_DELETE_WINDOW", False);
    XSetWMProtocols(connection, XtWindow(shell), &deleteWindow, 1);
}

Widget TextVerticalScrollbar(Widget text) {
    if (!XtIsSubclass(text, textWidgetClass)) return nullptr;
    return reinterpret_cast<TextWidget>(text)->text.vbar;
}

void OverrideTextScrollbarTranslations(Widget text) {
    if (Widget scrollbar = TextVerticalScrollbar(text)) OverrideScrollbarTranslations(scrollbar);
}

void AddReadOnlyTextArguments(Arg* arguments, Cardinal& count, Dimension width, Dimension height) {
    SetArg(arguments[count++], XtNtype, XawAsciiString);
    SetArg(arguments[count++], XtNwidth, width);
    SetArg(arguments[count++], XtNheight, height);
    SetArg(arguments[count++], XtNscrollVertical, XawtextScrollAlways);
    SetArg(arguments[count++], XtNwrap, XawtextWrapWord);
    SetArg(arguments[count++], XtNdisplayCaret, False);
    SetArg(arguments[count++], XtNsensitive, False);
}

char* TextWidgetString(std::string const& text) {
    char* copy = XtMalloc(static_cast<Cardinal>(text.size() + 1));
    std::memcpy(copy, text.c_str(), text.size() + 1);
    return copy;
}

void ReportDialogBuildFailure(char const* dialogName) {
    ClientUIErrorMessage report;
    report.m_code = ClientUIErrorMessage::DialogBuildFailed;
    report.m_debugString = dialogName;
    SendErrorToClient(report);
    ExitCleanup(0, "TranscodeError");
}

std::unique_ptr<std::string> ControlLiteral(char const* literal) {
    return ControlLiteral(MakeLocalString(UFormat(literal)));
}

std::unique_ptr<std::string> ControlLiteral(AutoNullTerminated<char> const& localText) {
    return std::make_unique<std::string>(localText.pointer ? localText.pointer : "");
}

std::unique_ptr<std::string> FunkyControlLiteral(char const* literal) {
    return std::make_unique<std::string>(literal ? literal : "");
}
