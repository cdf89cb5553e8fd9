#pragma once
// Widgets by name on the server side. An X server knows no widget names, so a widget is found
// through the fixed shape of the dialogs' trees: the titled top-level window has one child, the
// form, whose children are the dialog's widgets, made in a fixed order before the tree is
// realized. Every Athena widget of these trees has a window of its own; a child still unmanaged
// when the tree is realized would have none, and the form's count of children would then match
// no table, which the lookup reports instead of taking a wrong window. The tables of names live
// in DialogWidgets.cpp and nowhere else.

#include <X11/Xlib.h>

#include <string>
#include <vector>

struct DialogTable {
    char const* dialog;                     // for messages
    std::vector<char const*> formChildren;  // widget names in order of creation
};

// Returns the table of every dialog.
std::vector<DialogTable> const& DialogTables();

// Returns the window of the named widget in the dialog whose top-level window is shell, by its
// place among the form's children: the dialog is known by the number of children. Throws
// ScenarioError naming the dialog's widgets if the name is not among them, or if the tree does
// not have the expected shape.
Window FindWidgetWindow(Display* display, Window shell, std::string const& widget);

// The windows of a list inside a viewport: the clip window that shows part of it, and the list
// window itself, which the viewport moves inside the clip to scroll.
struct ViewportList {
    Window clip = None;
    Window list = None;
};

// Returns the list of a viewport widget's window. The viewport's children are the clip and its
// scrollbars; only the clip has a child, the list. Throws ScenarioError if none has one.
ViewportList FindViewportList(Display* display, Window viewport);
