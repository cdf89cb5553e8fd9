#pragma once
// Looking at the windows of an X server from outside the client that made them: the tree,
// titles, whether a window is on screen, and where. X errors from windows that vanish between
// two requests are caught by the trap below, never fatal.

#include <X11/Xlib.h>

#include <string>
#include <vector>

// A rectangle in root coordinates: the inside of a window, without its border.
struct ScreenRect {
    int x = 0, y = 0, width = 0, height = 0;
};

// Returns the rectangle both rectangles cover; empty (width or height 0) if none.
ScreenRect Intersection(ScreenRect const& a, ScreenRect const& b);

// Installs an error handler on the process that records X errors instead of exiting. Requests
// on a window that has gone then fail by their return values.
void TrapXErrors();

// Returns the children of the window bottom to top, which is the order of creation for
// siblings that were never restacked; empty if the window has gone.
std::vector<Window> ChildWindows(Display* display, Window window);

// Returns whether the window and all its ancestors are mapped.
bool IsOnScreen(Display* display, Window window);

// Returns where the window's inside lies on the screen; empty if the window has gone.
ScreenRect RootRectangle(Display* display, Window window);

// Returns the window's WM_NAME as UTF-8, or the empty string if it has none.
std::string WindowTitle(Display* display, Window window);

// Returns the top-most viewable window of that WM_NAME anywhere in the tree, or None. Under a
// window manager that is the client's own window inside its frame.
Window FindTitledWindow(Display* display, std::string const& title);

// Returns the WM_NAME of every viewable window that has one, bottom to top.
std::vector<std::string> ViewableTitles(Display* display);
