#include "XWindowTree.h"

#include <X11/Xutil.h>

#include <algorithm>
#include <functional>

namespace {

int IgnoreError(Display*, XErrorEvent*) {
    return 0;
}

// Visits every window below root, depth first, each before its children and siblings bottom
// to top, so the last visited of several matches is the top-most.
void VisitTree(Display* display, Window window, std::function<void(Window)> const& visit) {
    for (Window child : ChildWindows(display, window)) {
        visit(child);
        VisitTree(display, child, visit);
    }
}

}  // namespace

ScreenRect Intersection(ScreenRect const& a, ScreenRect const& b) {
    int left = std::max(a.x, b.x), top = std::max(a.y, b.y);
    int right = std::min(a.x + a.width, b.x + b.width);
    int bottom = std::min(a.y + a.height, b.y + b.height);
    if (right <= left || bottom <= top) return ScreenRect{left, top, 0, 0};
    return ScreenRect{left, top, right - left, bottom - top};
}

void TrapXErrors() {
    XSetErrorHandler(IgnoreError);
}

std::vector<Window> ChildWindows(Display* display, Window window) {
    Window root, parent;
    Window* children = nullptr;
    unsigned int count = 0;
    std::vector<Window> result;
    if (!XQueryTree(display, window, &root, &parent, &children, &count)) return result;
    result.assign(children, children + count);
    if (children) XFree(children);
    return result;
}

bool IsOnScreen(Display* display, Window window) {
    XWindowAttributes attributes;
    if (!XGetWindowAttributes(display, window, &attributes)) return false;
    return attributes.map_state == IsViewable;
}

ScreenRect RootRectangle(Display* display, Window window) {
    XWindowAttributes attributes;
    if (!XGetWindowAttributes(display, window, &attributes)) return ScreenRect{};
    int x = 0, y = 0;
    Window child;
    if (!XTranslateCoordinates(display, window, attributes.root, 0, 0, &x, &y, &child))
        return ScreenRect{};
    return ScreenRect{x, y, attributes.width, attributes.height};
}

std::string WindowTitle(Display* display, Window window) {
    XTextProperty property{};
    if (!XGetWMName(display, window, &property) || !property.value) return std::string();
    std::string title;
    char** list = nullptr;
    int count = 0;
    // Converts STRING (Latin-1), COMPOUND_TEXT and UTF8_STRING alike, whatever the locale.
    if (Xutf8TextPropertyToTextList(display, &property, &list, &count) >= Success && count > 0) {
        title = list[0];
        XFreeStringList(list);
    }
    XFree(property.value);
    return title;
}

Window FindTitledWindow(Display* display, std::string const& title) {
    Window found = None;
    VisitTree(display, DefaultRootWindow(display), [&](Window window) {
        if (WindowTitle(display, window) == title && IsOnScreen(display, window)) found = window;
    });
    return found;
}

std::vector<std::string> ViewableTitles(Display* display) {
    std::vector<std::string> titles;
    VisitTree(display, DefaultRootWindow(display), [&](Window window) {
        std::string title = WindowTitle(display, window);
        if (!title.empty() && IsOnScreen(display, window)) titles.push_back(title);
    });
    return titles;
}
