// The testing fixture comes before the X headers, whose macros (None, Bool) would break GoogleTest.
#include "testing/DialogDisplay.h"

#include "dialogs/ActionDetailsDialog.h"

#include <X11/Xaw/AsciiText.h>
#include <X11/Xaw/Command.h>

#include <string>

#include "session/DialogCalls.h"
#include "testing/TestText.h"

namespace {

class ActionDetailsDialogTest : public DialogDisplayTest {
  protected:
    void TearDown() override {
        HideActionDetailsDialog();
        DialogDisplayTest::TearDown();
    }

    void AddActionWithPreview(unsigned long long id, std::string const& preview) {
        ActionRequest action;
        action.m_id = id;
        action.m_title = SharedUString<UTF8>(MakeUString(U8("title " + std::to_string(id))));
        action.m_preview = SharedUString<UTF8>(MakeUString(U8(preview)));
        actions.push_back(action);
    }

    std::string ShownPreview() {
        Widget shell = OnlyShell();
        if (!shell) return "(no dialog)";
        return WidgetText(XtNameToWidget(shell, "form.actiondetails"), XtNstring);
    }
};

}  // namespace

TEST_F(ActionDetailsDialogTest, TreeHasTheNamedWidgetsWithTheirResources) {
    AddActionWithPreview(4, "echo first\necho second");
    ShowActionDetailsDialog(4);

    Widget shell = OnlyShell();
    ASSERT_NE(shell, nullptr);
    EXPECT_EQ(WidgetText(shell, XtNtitle), "Action Script Preview");
    Widget form = XtNameToWidget(shell, "form");
    Widget text = XtNameToWidget(shell, "form.actiondetails");
    Widget ok = XtNameToWidget(shell, "form.ok");
    ASSERT_TRUE(form && text && ok);
    ExpectReadOnlyTextBox(text);
    EXPECT_EQ(XtClass(ok), commandWidgetClass);

    EXPECT_EQ(WidgetText(text, XtNstring), "echo first\necho second");
    EXPECT_EQ(WidgetResource<Dimension>(text, XtNwidth), 500);

    EXPECT_EQ(WidgetText(ok, XtNlabel), "OK");
    EXPECT_EQ(WidgetResource<Widget>(ok, XtNfromVert), text);
    // The button ends about where the box ends: it stands at the box's width and border
    // less its own width from the form's left edge.
    int const boxWidth = WidgetResource<Dimension>(text, XtNwidth);
    int const boxBorder = WidgetResource<Dimension>(text, XtNborderWidth);
    int const okWidth = WidgetResource<Dimension>(ok, XtNwidth);
    EXPECT_EQ(WidgetResource<Position>(ok, XtNx), boxWidth + boxBorder - okWidth);

    HideActionDetailsDialog();
    EXPECT_TRUE(TopLevelShells().empty());
}

TEST_F(ActionDetailsDialogTest, ASecondShowWhileUpChangesNothing) {
    AddActionWithPreview(1, "first preview");
    AddActionWithPreview(2, "second preview");
    ShowActionDetailsDialog(1);
    Widget shell = OnlyShell();
    ShowActionDetailsDialog(2);
    EXPECT_EQ(OnlyShell(), shell);
    EXPECT_EQ(ShownPreview(), "first preview");
}

// OK closes the dialog and hands the action dialog back through the command queue; it names no
// action.
TEST_F(ActionDetailsDialogTest, OkClosesAndQueuesDetailsClosed) {
    AddActionWithPreview(9, "preview");
    ShowActionDetailsDialog(9);
    Press(XtNameToWidget(OnlyShell(), "form.ok"));
    EXPECT_TRUE(TopLevelShells().empty());
    EXPECT_EQ(TakeCommands(), (std::vector<QueuedCommand>{{UICommandDetailsClosed, 0, 0, 0}}));
    EXPECT_EQ(TakeDocuments(), 0u);
    // The dialog can be opened again once closed.
    ShowActionDetailsDialog(9);
    EXPECT_EQ(ShownPreview(), "preview");
}

// The dialog does not follow the pending actions: a vanished action leaves the text it showed,
// both in the dialog that is up and in one opened again for the missing action.
TEST_F(ActionDetailsDialogTest, TextStaysWhenTheActionVanishes) {
    AddActionWithPreview(3, "the script of three");
    ShowActionDetailsDialog(3);
    actions.clear();
    UpdateActionDetailsDialog();
    EXPECT_EQ(ShownPreview(), "the script of three");

    HideActionDetailsDialog();
    ShowActionDetailsDialog(3);
    EXPECT_EQ(ShownPreview(), "the script of three");

    // An action that exists again replaces it.
    HideActionDetailsDialog();
    AddActionWithPreview(5, "the script of five");
    ShowActionDetailsDialog(5);
    EXPECT_EQ(ShownPreview(), "the script of five");
}

TEST_F(ActionDetailsDialogTest, NothingIsShownWithoutADisplay) {
    AddActionWithPreview(1, "preview");
    Display* const open = display;
    display = nullptr;
    ShowActionDetailsDialog(1);
    display = open;
    EXPECT_TRUE(TopLevelShells().empty());
    // And the dialog is not marked as up: a show with the display works.
    ShowActionDetailsDialog(1);
    EXPECT_EQ(ShownPreview(), "preview");
}
