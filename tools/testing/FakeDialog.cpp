// fakedialog: a stand-in for the program's dialogs, for the tests of the scenario runner. Its
// form holds Athena widgets named and ordered as the action request dialog's, and it speaks a
// small share of the pipe protocol: frames of a 32-bit length in host order and a document.
//
// It greets with ReadyForData, then reads documents on descriptor 0, looking only for:
//   <Show><Title>T</Title></Show>           build and show the dialog titled T; optional
//                                           <Width> and <Height> fix the window's size
//   <Hide/>                                 destroy it
//   <Rows>N</Rows>                          the action list holds its first N rows
//   <ScrollSnooze><Pixels>N</Pixels></ScrollSnooze>   scroll the snooze list down N pixels
//   <Exit><Status>N</Status></Exit>         exit with status N
// End of stream exits with 0. A button press sends
// <Clicked><Widget>NAME</Widget><Text>T</Text></Clicked> with the text typed into the editable
// "actiondesc", a click in a list <Selected><Widget>VIEWPORT</Widget><Row>N</Row></Selected>.
// Pressing "cancelAction" also destroys the dialog; "actionDetails" is never mapped.

#include <X11/Intrinsic.h>
#include <X11/Shell.h>
#include <X11/StringDefs.h>
#include <X11/Xaw/AsciiText.h>
#include <X11/Xaw/Command.h>
#include <X11/Xaw/Form.h>
#include <X11/Xaw/Label.h>
#include <X11/Xaw/List.h>
#include <X11/Xaw/Viewport.h>
#include <unistd.h>

#include <cstdint>
#include <cstdlib>
#include <string>

namespace {

XtAppContext app;
Display* display;
Widget shell;
Widget description;
Widget snoozeViewport;
Widget actionList;

char const* actionRows[] = {"first row", "second row", "third row"};
char const* snoozeRows[] = {"in 1 minute",  "in 2 minutes",  "in 3 minutes",  "in 4 minutes",
                            "in 5 minutes", "in 6 minutes",  "in 7 minutes",  "in 8 minutes",
                            "in 9 minutes", "in 10 minutes", "in 11 minutes", "in 12 minutes"};

void WriteAll(char const* bytes, size_t size) {
    while (size > 0) {
        ssize_t n = write(1, bytes, size);
        if (n <= 0) std::exit(3);
        bytes += n;
        size -= static_cast<size_t>(n);
    }
}

void Send(std::string const& message) {
    std::string document =
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<UIToClient>" + message + "</UIToClient>";
    uint32_t length = static_cast<uint32_t>(document.size());
    WriteAll(reinterpret_cast<char const*>(&length), 4);
    WriteAll(document.data(), document.size());
}

bool ReadAll(char* into, size_t size) {
    while (size > 0) {
        ssize_t n = read(0, into, size);
        if (n <= 0) return false;
        into += n;
        size -= static_cast<size_t>(n);
    }
    return true;
}

// Returns the text between <name> and </name>, or the empty string.
std::string ValueOf(std::string const& document, std::string const& name) {
    size_t start = document.find("<" + name + ">");
    if (start == std::string::npos) return std::string();
    start += name.size() + 2;
    size_t end = document.find("</" + name + ">", start);
    return end == std::string::npos ? std::string() : document.substr(start, end - start);
}

std::string Escaped(char const* text) {
    std::string escaped;
    for (; *text; ++text) {
        switch (*text) {
            case '&':
                escaped += "&amp;";
                break;
            case '<':
                escaped += "&lt;";
                break;
            case '>':
                escaped += "&gt;";
                break;
            default:
                escaped += *text;
        }
    }
    return escaped;
}

void Clicked(Widget widget, XtPointer, XtPointer) {
    char* typed = nullptr;
    XtVaGetValues(description, XtNstring, &typed, nullptr);
    Send(std::string("<Clicked><Widget>") + XtName(widget) + "</Widget><Text>" +
         Escaped(typed ? typed : "") + "</Text></Clicked>");
    if (std::string(XtName(widget)) == "cancelAction") {
        XtDestroyWidget(shell);
        shell = nullptr;
    }
}

void Selected(Widget list, XtPointer viewportName, XtPointer callData) {
    auto* item = static_cast<XawListReturnStruct*>(callData);
    (void)list;
    Send(std::string("<Selected><Widget>") + static_cast<char const*>(viewportName) +
         "</Widget><Row>" + std::to_string(item->list_index) + "</Row></Selected>");
}

Widget Make(char const* name, WidgetClass type, Widget parent, Widget above, Arg* args = nullptr,
            Cardinal count = 0) {
    Widget widget = XtCreateManagedWidget(name, type, parent, args, count);
    if (above) XtVaSetValues(widget, XtNfromVert, above, nullptr);
    return widget;
}

Widget Button(char const* name, Widget form, Widget above, int x) {
    Widget button = Make(name, commandWidgetClass, form, above);
    XtVaSetValues(button, XtNhorizDistance, x, nullptr);
    XtAddCallback(button, XtNcallback, Clicked, nullptr);
    return button;
}

// A viewport with a one-column list, named as the dialog names its viewports.
Widget ListIn(char const* name, Widget form, Widget above, int width, int height, char const** rows,
              int count) {
    Widget viewport = XtVaCreateManagedWidget(name, viewportWidgetClass, form, XtNfromVert, above,
                                              XtNwidth, width, XtNheight, height, XtNallowVert,
                                              True, XtNforceBars, True, nullptr);
    Widget list = XtVaCreateManagedWidget("", listWidgetClass, viewport, XtNdefaultColumns, 1,
                                          XtNforceColumns, True, XtNverticalList, True, XtNlist,
                                          rows, XtNnumberStrings, count, nullptr);
    XtAddCallback(list, XtNcallback, Selected, const_cast<char*>(name));
    return viewport;
}

// Returns the list that a viewport made by ListIn holds: its one child that is a list.
Widget ListOf(Widget viewport) {
    WidgetList children = nullptr;
    Cardinal count = 0;
    XtVaGetValues(viewport, XtNchildren, &children, XtNnumChildren, &count, nullptr);
    for (Cardinal i = 0; i < count; ++i)
        if (XtClass(children[i]) == listWidgetClass) return children[i];
    return nullptr;
}

void Show(std::string const& title, int width, int height) {
    if (shell) return;
    shell = XtVaAppCreateShell(nullptr, "FakeDialog", applicationShellWidgetClass, display,
                               XtNtitle, title.c_str(), nullptr);
    if (width > 0 && height > 0) XtVaSetValues(shell, XtNwidth, width, XtNheight, height, nullptr);
    Widget form = XtCreateManagedWidget("form", formWidgetClass, shell, nullptr, 0);
    Widget title_ = XtVaCreateManagedWidget("actiontitle", labelWidgetClass, form, XtNlabel,
                                            "One pending action", XtNborderWidth, 0, nullptr);
    description = XtVaCreateManagedWidget("actiondesc", asciiTextWidgetClass, form, XtNfromVert,
                                          title_, XtNwidth, 400, XtNheight, 50, XtNstring, "",
                                          XtNeditType, XawtextEdit, XtNscrollVertical,
                                          XawtextScrollAlways, XtNwrap, XawtextWrapWord, nullptr);
    Widget heading =
        XtVaCreateManagedWidget("actionListLabel", labelWidgetClass, form, XtNfromVert, description,
                                XtNlabel, "Title  --  Deadline", XtNborderWidth, 0, nullptr);
    Widget viewport = ListIn("viewport", form, heading, 385, 100, actionRows, 3);
    actionList = ListOf(viewport);
    Button("takeAllActions", form, viewport, 4);
    Button("takeActions", form, viewport, 320);
    Button("cancelAction", form, viewport, 220);
    Widget details = Button("actionDetails", form, viewport, 120);
    XtVaSetValues(details, XtNmappedWhenManaged, False, nullptr);
    Widget snoozeLabel =
        XtVaCreateManagedWidget("snoozeLabel", labelWidgetClass, form, XtNfromVert, details,
                                XtNlabel, "Remind me:", XtNborderWidth, 0, nullptr);
    snoozeViewport = ListIn("snoozeViewport", form, snoozeLabel, 200, 40, snoozeRows, 12);
    Button("snoozeButton", form, snoozeLabel, 330);
    XtRealizeWidget(shell);
}

void ReadFrame(XtPointer, int*, XtInputId*) {
    uint32_t length;
    if (!ReadAll(reinterpret_cast<char*>(&length), 4)) std::exit(0);
    std::string document(length, '\0');
    if (!ReadAll(&document[0], length)) std::exit(0);
    if (document.find("<Show>") != std::string::npos) {
        Show(ValueOf(document, "Title"), std::atoi(ValueOf(document, "Width").c_str()),
             std::atoi(ValueOf(document, "Height").c_str()));
    } else if (document.find("<Hide/>") != std::string::npos && shell) {
        XtDestroyWidget(shell);
        shell = nullptr;
    } else if (document.find("<ScrollSnooze>") != std::string::npos && shell) {
        XawViewportSetCoordinates(snoozeViewport, 0,
                                  std::atoi(ValueOf(document, "Pixels").c_str()));
    } else if (document.find("<Rows>") != std::string::npos && shell) {
        int count = std::atoi(ValueOf(document, "Rows").c_str());
        XawListChange(actionList, count > 0 ? actionRows : nullptr, count, 0, True);
    } else if (document.find("<Exit>") != std::string::npos) {
        std::exit(std::atoi(ValueOf(document, "Status").c_str()));
    }
}

}  // namespace

int main(int argc, char** argv) {
    XtToolkitInitialize();
    app = XtCreateApplicationContext();
    display = XtOpenDisplay(app, nullptr, "fakedialog", "FakeDialog", nullptr, 0, &argc, argv);
    if (!display) return 2;
    Send("<ReadyForData></ReadyForData>");
    XtAppAddInput(app, 0, reinterpret_cast<XtPointer>(XtInputReadMask), ReadFrame, nullptr);
    XtAppMainLoop(app);
}
