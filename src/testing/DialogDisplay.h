#pragma once
// A fixture for tests of dialogs in this process: a private X server, a toolkit display on it
// handed to the session's app_context and display, and an empty session (no actions, no
// commands, nothing to send) at the start of each test. Include it before the X headers of the
// test. A test whose dialogs may still be up at its end closes them in its own TearDown before
// calling this one's.
//
// Made with a locale name, the fixture runs the session as it runs in a real locale: LC_CTYPE is
// that locale, the toolkit is told so before the display opens, `international` is on and the
// default font set is made good, as the X shell does at start-up. All fixtures of one test
// program must ask for the same locale, or for none.

#include <gtest/gtest.h>

#include <X11/Intrinsic.h>
#include <X11/Shell.h>
#include <X11/StringDefs.h>
#include <X11/Xaw/AsciiText.h>
#include <X11/Xaw/Form.h>

#include <clocale>
#include <cstdint>
#include <memory>
#include <string>
#include <tuple>
#include <vector>

#include "dialogs/DefaultFontSet.h"
#include "dialogs/XHelpers.h"
#include "session/SessionState.h"
#include "testing/ScopedSettings.h"
#include "testing/ToolkitDisplay.h"
#include "testing/XvfbServer.h"

// A command the dialogs queued: its type, action ID, minutes and seconds.
using QueuedCommand = std::tuple<UICommandType, unsigned long long, long, uint32_t>;

// Returns the value of a widget's resource, read as T through the toolkit.
template <class T>
T WidgetResource(Widget widget, char const* resource) {
    T value{};
    XtVaGetValues(widget, resource, &value, nullptr);
    return value;
}

// Returns a string resource (a label, a title, a text widget's string) as a std::string; a
// null value gives the empty string.
inline std::string WidgetText(Widget widget, char const* resource) {
    char* value = WidgetResource<char*>(widget, resource);
    return value ? std::string(value) : std::string();
}

// Checks the text box the dialogs show their texts in: 100 high, wrapped at words, always with
// a vertical scrollbar, no caret; the user can scroll it but cannot type in it.
inline void ExpectReadOnlyTextBox(Widget text) {
    SCOPED_TRACE(XtName(text));
    EXPECT_EQ(XtClass(text), asciiTextWidgetClass);
    EXPECT_EQ(WidgetResource<Dimension>(text, XtNheight), 100);
    EXPECT_EQ(WidgetResource<XawTextScrollMode>(text, XtNscrollVertical), XawtextScrollAlways);
    EXPECT_EQ(WidgetResource<XawTextWrapMode>(text, XtNwrap), XawtextWrapWord);
    EXPECT_FALSE(WidgetResource<Boolean>(text, XtNdisplayCaret));
    EXPECT_FALSE(WidgetResource<Boolean>(text, XtNsensitive));
    EXPECT_NE(TextVerticalScrollbar(text), nullptr);
}

// The server and the display last for the whole test program: the toolkit and its libraries
// cache server resources per screen (stipple pixmaps among them) under the screen's address,
// which a display opened after another was closed may get again, with the old server's
// resources. The real program opens one display for its life, too.
class DialogDisplayTest : public ::testing::Test {
  protected:
    explicit DialogDisplayTest(char const* localeName = nullptr) : m_localeName(localeName) {}

    void SetUp() override {
        static SharedDisplay* const shared = new SharedDisplay(m_localeName);
        ASSERT_EQ(std::string(shared->localeName ? shared->localeName : ""),
                  std::string(m_localeName ? m_localeName : ""))
            << "one test program runs its dialogs in one locale";
        ASSERT_TRUE(shared->localeOk) << m_localeName << " is missing; scripts/setup makes it";
        m_toolkit = shared->toolkit.get();
        app_context = m_toolkit->Context();
        display = m_toolkit->Connection();
        international = m_localeName != nullptr;
        actions.clear();
        TakeCommands();
        TakeDocuments();
    }
    void TearDown() override {
        actions.clear();
        TakeCommands();
        TakeDocuments();
        international = false;
    }

    // Makes the server and the widgets catch up with what the test asked for.
    void Settle() { m_toolkit->Settle(); }

    // Returns the shells whose windows stand on the root window, in the server's stacking
    // order (bottom first). A destroyed dialog's window is gone from there at once.
    std::vector<Widget> TopLevelShells() {
        Settle();
        std::vector<Widget> shells;
        Window root = 0, parent = 0;
        Window* children = nullptr;
        unsigned count = 0;
        if (!XQueryTree(display, DefaultRootWindow(display), &root, &parent, &children, &count))
            return shells;
        for (unsigned i = 0; i < count; ++i) {
            Widget widget = XtWindowToWidget(display, children[i]);
            if (widget && XtIsShell(widget)) shells.push_back(widget);
        }
        if (children) XFree(children);
        return shells;
    }

    // Returns the only top-level shell; fails the test when there is not exactly one.
    Widget OnlyShell() {
        std::vector<Widget> shells = TopLevelShells();
        EXPECT_EQ(shells.size(), 1u);
        return shells.size() == 1 ? shells[0] : nullptr;
    }

    // Presses a button as a click does: its callbacks run.
    void Press(Widget button) {
        XtCallCallbacks(button, XtNcallback, nullptr);
        Settle();
    }

    // Sends a pointer event (a press, a release or a motion) to the widget's window through the
    // server, as a real one would arrive there, and lets the widgets handle it.
    void SendPointer(Widget widget, int type, unsigned button, int x, int y, unsigned state) {
        XEvent event{};
        XButtonEvent& pointer = event.xbutton;
        pointer.type = type;
        pointer.display = display;
        pointer.window = XtWindow(widget);
        pointer.root = DefaultRootWindow(display);
        pointer.x = x;
        pointer.y = y;
        pointer.state = state;
        pointer.button = button;
        pointer.same_screen = True;
        if (type == MotionNotify) event.xmotion.is_hint = NotifyNormal;
        XSendEvent(display, XtWindow(widget), False, NoEventMask, &event);
        Settle();
    }

    // Returns and removes every command that the dialogs queued, so that a test compares them
    // all in one assertion.
    std::vector<QueuedCommand> TakeCommands() {
        FiFoQueue<std::unique_ptr<UICommand>> queued;
        uiCommandQ.ReadMessages(queued);
        std::vector<QueuedCommand> commands;
        while (!queued.IsEmpty()) {
            std::unique_ptr<UICommand> c = queued.TakeFirst();
            commands.emplace_back(c->m_command, c->m_actionID, c->m_minutes, c->m_seconds);
        }
        return commands;
    }

    // Returns how many documents wait to be sent to the agent, and drops them.
    std::size_t TakeDocuments() {
        FiFoQueue<UIMessage> queued;
        writeQ.ReadMessages(queued);
        std::size_t count = 0;
        for (; !queued.IsEmpty(); ++count) queued.TakeFirst();
        return count;
    }

    ToolkitDisplay* m_toolkit = nullptr;

  private:
    // Made by the first test and kept until the program ends; never destroyed, so that no
    // widget outlives its display at exit.
    struct SharedDisplay {
        explicit SharedDisplay(char const* name) : localeName(name) {
            server = std::make_unique<XvfbServer>();
            if (localeName) {
                locale = std::make_unique<ScopedCTypeLocale>(localeName);
                localeOk = locale->Ok();
                XtSetLanguageProc(nullptr, KeepCTypeLocale, nullptr);
            }
            toolkit = std::make_unique<ToolkitDisplay>(server->DisplayName());
            if (localeName) {
                display = toolkit->Connection();
                ConfigValidDefaultFontSet();
            }
        }
        char const* localeName;
        bool localeOk = true;
        std::unique_ptr<XvfbServer> server;
        std::unique_ptr<ScopedCTypeLocale> locale;
        std::unique_ptr<ToolkitDisplay> toolkit;
    };

    // The toolkit's language procedure: keeps the locale the fixture chose rather than the
    // environment's, and sets the input method modifiers as the default procedure does.
    static String KeepCTypeLocale(Display*, String, XtPointer) {
        if (!XSupportsLocale()) return nullptr;
        XSetLocaleModifiers("");
        return std::setlocale(LC_CTYPE, nullptr);
    }

    char const* m_localeName;
};
