#include "XTestInput.h"

#include <X11/XKBlib.h>
#include <X11/extensions/XTest.h>
#include <X11/keysym.h>

#include "ScenarioScript.h"

namespace {

KeySym KeySymOf(char c) {
    if (c == '\n') return XK_Return;
    if (c == '\t') return XK_Tab;
    // Printable ASCII characters are their own keysyms.
    if (c >= 0x20 && c < 0x7f) return static_cast<KeySym>(c);
    return NoSymbol;
}

void Key(Display* display, KeyCode code, bool press) {
    XTestFakeKeyEvent(display, code, press ? True : False, CurrentTime);
}

}  // namespace

bool HasXTest(Display* display) {
    int eventBase, errorBase, major, minor;
    return XTestQueryExtension(display, &eventBase, &errorBase, &major, &minor);
}

void ClickAt(Display* display, int x, int y) {
    XTestFakeMotionEvent(display, DefaultScreen(display), x, y, CurrentTime);
    XTestFakeButtonEvent(display, 1, True, CurrentTime);
    XTestFakeButtonEvent(display, 1, False, CurrentTime);
    XSync(display, False);
}

void TypeText(Display* display, std::string const& text) {
    KeyCode const shift = XKeysymToKeycode(display, XK_Shift_L);
    for (char c : text) {
        KeySym symbol = KeySymOf(c);
        KeyCode code = symbol == NoSymbol ? 0 : XKeysymToKeycode(display, symbol);
        if (code == 0)
            throw ScenarioError(std::string("cannot type the character '") + c +
                                "': no key for it");
        // Level 1 of a key is its shifted symbol.
        bool shifted = XkbKeycodeToKeysym(display, code, 0, 0) != symbol &&
                       XkbKeycodeToKeysym(display, code, 0, 1) == symbol;
        if (shifted) Key(display, shift, true);
        Key(display, code, true);
        Key(display, code, false);
        if (shifted) Key(display, shift, false);
    }
    XSync(display, False);
}
