// The testing fixture comes before the X headers, whose macros (None, Bool) would break GoogleTest.
#include "testing/DialogDisplay.h"

#include "dialogs/XHelpers.h"

#include <X11/Xaw/List.h>
#include <X11/Xaw/Scrollbar.h>
#include <X11/Xaw/Viewport.h>

#include <string>
#include <vector>

#include "testing/ScopedSettings.h"

namespace {

// The fixture's server has a 1024x768 screen.
class XHelpersTest : public DialogDisplayTest {
  protected:
    Widget MakeShell(Dimension width, Dimension height) {
        return XtVaAppCreateShell(nullptr, "XZOLClientUI", topLevelShellWidgetClass, display,
                                  XtNwidth, width, XtNheight, height, nullptr);
    }
};

// The list items outlive the widgets; the list does not copy them.
std::vector<std::string> const rowTexts = [] {
    std::vector<std::string> texts;
    for (int i = 0; i < 100; ++i) texts.push_back("row " + std::to_string(i));
    return texts;
}();

}  // namespace

// Half the difference in each direction, divided toward zero, also when the shell is larger
// than the screen.
TEST_F(XHelpersTest, CenterDialogOnDisplayPlacesTheShellInTheMiddle) {
    struct Case {
        Dimension width, height;
        Position x, y;
    };
    Case const cases[] = {
        {200, 100, 412, 334},
        {201, 101, 411, 333},
        {1101, 801, -38, -16},
    };
    for (Case const& c : cases) {
        SCOPED_TRACE(std::to_string(c.width) + "x" + std::to_string(c.height));
        Widget shell = MakeShell(c.width, c.height);
        XtRealizeWidget(shell);
        CenterDialogOnDisplay(shell);
        Settle();
        EXPECT_EQ(WidgetResource<Position>(shell, XtNx), c.x);
        EXPECT_EQ(WidgetResource<Position>(shell, XtNy), c.y);
        // Without a window manager the server places the window exactly there.
        XWindowAttributes attributes;
        XGetWindowAttributes(display, XtWindow(shell), &attributes);
        EXPECT_EQ(attributes.x, c.x);
        EXPECT_EQ(attributes.y, c.y);
        XtDestroyWidget(shell);
    }
}

namespace {

// A viewport 200 pixels high over a list of the given rows, one column.
struct ListInViewport {
    Widget shell, viewport, list;
};

ListInViewport MakeList(Display* connection, int rows) {
    ListInViewport made;
    made.shell =
        XtVaAppCreateShell(nullptr, "XZOLClientUI", topLevelShellWidgetClass, connection, nullptr);
    made.viewport =
        XtVaCreateManagedWidget("viewport", viewportWidgetClass, made.shell, XtNallowVert, True,
                                XtNwidth, 200, XtNheight, 200, nullptr);
    static std::vector<char*> items;
    items.clear();
    for (int i = 0; i < rows; ++i) items.push_back(const_cast<char*>(rowTexts[i].c_str()));
    made.list = XtVaCreateManagedWidget("list", listWidgetClass, made.viewport, XtNlist,
                                        items.data(), XtNnumberStrings, rows, XtNdefaultColumns, 1,
                                        XtNforceColumns, True, nullptr);
    XtRealizeWidget(made.shell);
    return made;
}

}  // namespace

TEST_F(XHelpersTest, ScrollSelectedItemIntoViewBringsTheHighlightedRowToTheTop) {
    ListInViewport made = MakeList(display, 100);
    Settle();
    Widget clip = XtNameToWidget(made.viewport, "clip");
    ASSERT_NE(clip, nullptr);
    ASSERT_NE(XtNameToWidget(made.viewport, "vertical"), nullptr);
    int listHeight = WidgetResource<Dimension>(made.list, XtNheight);
    int viewHeight = WidgetResource<Dimension>(clip, XtNheight);
    ASSERT_GT(listHeight, 4 * viewHeight) << "the list must be long for this test";
    // The list is its rows between two margins.
    int margin = WidgetResource<Dimension>(made.list, XtNinternalHeight);
    int rowHeight = (listHeight - 2 * margin) / 100;

    // A row in the middle comes to the top of the view, give or take the margin.
    XawListHighlight(made.list, 70);
    ScrollSelectedItemIntoView(made.viewport, made.list);
    Settle();
    int rowTop = WidgetResource<Position>(made.list, XtNy) + margin + 70 * rowHeight;
    EXPECT_GE(rowTop, -margin - 1) << "row height " << rowHeight;
    EXPECT_LE(rowTop, margin + 1) << "row height " << rowHeight;

    // The last row: the list goes as far as it can, its end at the bottom of the view.
    XawListHighlight(made.list, 99);
    ScrollSelectedItemIntoView(made.viewport, made.list);
    Settle();
    EXPECT_EQ(WidgetResource<Position>(made.list, XtNy), viewHeight - listHeight);

    // With nothing highlighted the view stays where it is.
    Position before = WidgetResource<Position>(made.list, XtNy);
    XawListUnhighlight(made.list);
    ScrollSelectedItemIntoView(made.viewport, made.list);
    Settle();
    EXPECT_EQ(WidgetResource<Position>(made.list, XtNy), before);
    XtDestroyWidget(made.shell);

    // A short list is left alone.
    made = MakeList(display, 3);
    Settle();
    ASSERT_EQ(XtNameToWidget(made.viewport, "vertical"), nullptr)
        << "a list that fits needs no scrollbar";
    XawListHighlight(made.list, 2);
    ScrollSelectedItemIntoView(made.viewport, made.list);
    Settle();
    EXPECT_EQ(WidgetResource<Position>(made.list, XtNy), 0);
    XtDestroyWidget(made.shell);
}

namespace {

int jumps = 0;
void CountJump(Widget, XtPointer, XtPointer) {
    ++jumps;
}

}  // namespace

// Left and right button drag the thumb: a press puts it under the pointer, a motion with the
// button held moves it along. Athena's own bindings would only scroll by pages here, leaving the
// thumb where the application puts it.
TEST_F(XHelpersTest, OverrideScrollbarTranslationsLetsBothButtonsDragTheThumb) {
    struct Case {
        char const* what;
        unsigned button;
        unsigned held;
    };
    Case const cases[] = {{"left", Button1, Button1Mask}, {"right", Button3, Button3Mask}};
    for (Case const& c : cases) {
        SCOPED_TRACE(c.what);
        Widget shell = MakeShell(20, 200);
        Widget scrollbar =
            XtVaCreateManagedWidget("vertical", scrollbarWidgetClass, shell, XtNorientation,
                                    XtorientVertical, XtNlength, 200, XtNthickness, 20, nullptr);
        XtAddCallback(scrollbar, XtNjumpProc, CountJump, nullptr);
        XawScrollbarSetThumb(scrollbar, 0.0, 0.1);
        OverrideScrollbarTranslations(scrollbar);
        XtRealizeWidget(shell);
        Settle();
        jumps = 0;

        SendPointer(scrollbar, ButtonPress, c.button, 10, 150, 0);
        float afterPress = WidgetResource<float>(scrollbar, XtNtopOfThumb);
        EXPECT_GT(afterPress, 0.5f);
        EXPECT_LT(afterPress, 0.9f);

        SendPointer(scrollbar, MotionNotify, 0, 10, 50, c.held);
        float afterMotion = WidgetResource<float>(scrollbar, XtNtopOfThumb);
        EXPECT_LT(afterMotion, 0.4f);
        EXPECT_GE(afterMotion, 0.0f);

        SendPointer(scrollbar, ButtonRelease, c.button, 10, 50, c.held);
        EXPECT_GE(jumps, 2) << "each move tells the application where the thumb is";
        XtDestroyWidget(shell);
    }
}

// Widgets get the locale's encoding: "é" is one byte in a Latin-1 locale and two in UTF-8, and a
// text the locale cannot express fails instead of reaching a widget half converted.
TEST(ControlLiteral, ConvertsToTheLocaleEncoding) {
    {
        ScopedCTypeLocale const latin1("de_DE.ISO-8859-1");
        ASSERT_TRUE(latin1.Ok());
        EXPECT_EQ(*ControlLiteral("caf\xC3\xA9"), "caf\xE9");
        EXPECT_ANY_THROW(ControlLiteral("\xE2\x82\xAC"));  // the euro sign is not in Latin-1
        EXPECT_EQ(*FunkyControlLiteral("caf\xC3\xA9"), "caf\xC3\xA9");
    }
    ScopedCTypeLocale const utf8("en_US.UTF-8");
    ASSERT_TRUE(utf8.Ok());
    EXPECT_EQ(*ControlLiteral("caf\xC3\xA9"), "caf\xC3\xA9");
    EXPECT_EQ(*ControlLiteral(AutoNullTerminated<char>()), "");
}
