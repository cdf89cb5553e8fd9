// The testing fixture comes before the X headers, whose macros (None, Bool) would break GoogleTest.
#include "testing/DialogDisplay.h"

#include "dialogs/ConfirmationDialog.h"

#include <X11/Xaw/AsciiText.h>
#include <X11/Xaw/Command.h>
#include <X11/Xaw/Label.h>

#include <algorithm>
#include <string>

#include "session/DialogCalls.h"
#include "testing/ScopedTranslation.h"
#include "testing/TestText.h"

namespace {

char const* const explanationKey =
    "This action requires you to acknowledge the following confirmation message:";

class ConfirmationDialogTest : public DialogDisplayTest {
  protected:
    void SetUp() override {
        DialogDisplayTest::SetUp();
        // The width grows over the life of the process; each test starts from the first one.
        m_confirmationWidth = 500;
    }
    void TearDown() override {
        HideConfirmationRequestDialog();
        DialogDisplayTest::TearDown();
    }

    void AddActionWithMessage(unsigned long long id, std::string const& title,
                              std::string const& message) {
        ActionRequest action;
        action.m_id = id;
        action.m_title = SharedUString<UTF8>(MakeUString(U8(title)));
        action.m_preActionMessage = SharedUString<UTF8>(MakeUString(U8(message)));
        actions.push_back(action);
    }

    Widget Part(char const* name) {
        Widget shell = OnlyShell();
        return shell ? XtNameToWidget(shell, name) : nullptr;
    }
};

}  // namespace

TEST_F(ConfirmationDialogTest, TreeHasTheNamedWidgetsWithTheirResources) {
    AddActionWithMessage(7, "Install the update", "Save your documents first.");
    ShowConfirmationRequestDialog(7);

    Widget shell = OnlyShell();
    ASSERT_NE(shell, nullptr);
    EXPECT_EQ(WidgetText(shell, XtNtitle), "Confirmation Required");
    Widget title = XtNameToWidget(shell, "form.actiontitle");
    Widget explanation = XtNameToWidget(shell, "form.staticlabel");
    Widget message = XtNameToWidget(shell, "form.actionconfirmation");
    Widget cancel = XtNameToWidget(shell, "form.cancel");
    Widget ok = XtNameToWidget(shell, "form.ok");
    ASSERT_TRUE(title && explanation && message && cancel && ok);

    struct LabelCase {
        Widget label;
        char const* text;
    };
    for (LabelCase const& c :
         {LabelCase{title, "Install the update"}, LabelCase{explanation, explanationKey}}) {
        SCOPED_TRACE(XtName(c.label));
        EXPECT_EQ(XtClass(c.label), labelWidgetClass);
        EXPECT_EQ(WidgetText(c.label, XtNlabel), c.text);
        EXPECT_EQ(WidgetResource<Dimension>(c.label, XtNborderWidth), 0);
        EXPECT_EQ(WidgetResource<XtJustify>(c.label, XtNjustify), XtJustifyLeft);
    }
    EXPECT_EQ(WidgetResource<Widget>(explanation, XtNfromVert), title);

    ExpectReadOnlyTextBox(message);
    EXPECT_EQ(WidgetText(message, XtNstring), "Save your documents first.");
    EXPECT_EQ(WidgetResource<Dimension>(message, XtNwidth),
              std::max(500, static_cast<int>(WidgetResource<Dimension>(explanation, XtNwidth))));
    EXPECT_EQ(WidgetResource<Widget>(message, XtNfromVert), explanation);

    EXPECT_EQ(XtClass(cancel), commandWidgetClass);
    EXPECT_EQ(XtClass(ok), commandWidgetClass);
    EXPECT_EQ(WidgetText(cancel, XtNlabel), "Cancel");
    EXPECT_EQ(WidgetText(ok, XtNlabel), "OK");
    EXPECT_EQ(WidgetResource<Widget>(cancel, XtNfromVert), message);
    EXPECT_EQ(WidgetResource<Widget>(ok, XtNfromVert), message);
}

// Cancel ends about where the box ends and OK stands to its left, also with labels far wider than
// the default ones.
TEST_F(ConfirmationDialogTest, ButtonsStandRightAlignedUnderTheBox) {
    struct Case {
        char const* translation;
    };
    Case const cases[] = {
        {""},
        {"OK\tAcknowledge and go on with the action now\n"},
        {"Cancel\tDo not run this action, leave it pending\nOK\tYes\n"},
    };
    AddActionWithMessage(1, "title", "message");
    for (Case const& c : cases) {
        SCOPED_TRACE(c.translation);
        ScopedTranslation translation(c.translation);
        ShowConfirmationRequestDialog(1);
        Widget message = Part("form.actionconfirmation");
        Widget cancel = Part("form.cancel");
        Widget ok = Part("form.ok");
        ASSERT_TRUE(message && cancel && ok);
        int const boxWidth = WidgetResource<Dimension>(message, XtNwidth);
        int const border = WidgetResource<Dimension>(message, XtNborderWidth);
        int const cancelWidth = WidgetResource<Dimension>(cancel, XtNwidth);
        int const okWidth = WidgetResource<Dimension>(ok, XtNwidth);
        ASSERT_GT(border, 0) << "the gaps scale with the box's border";
        // Both are placed from the form's left edge.
        EXPECT_EQ(WidgetResource<Position>(cancel, XtNx), boxWidth + border - cancelWidth);
        EXPECT_EQ(WidgetResource<Position>(ok, XtNx),
                  boxWidth - 5 * border - cancelWidth - okWidth);
        // OK's outer right edge stays left of Cancel.
        EXPECT_LT(WidgetResource<Position>(ok, XtNx) + okWidth +
                      2 * WidgetResource<Dimension>(ok, XtNborderWidth),
                  WidgetResource<Position>(cancel, XtNx));
        HideConfirmationRequestDialog();
    }
}

// The box is as wide as the widest explanation so far and never narrower than 500; a later,
// shorter explanation does not shrink it.
TEST_F(ConfirmationDialogTest, BoxWidthGrowsWithTheExplanationAndNeverShrinks) {
    AddActionWithMessage(1, "title", "message");
    std::string const longExplanation(120, 'W');
    std::string const longerExplanation(160, 'W');
    enum Width { Minimum, OfTheLabel, Kept };
    struct Step {
        std::string explanation;  // empty: the built-in text
        Width width;
    };
    // The built-in explanation is itself wider than 500 pixels in the default font.
    Step const steps[] = {
        {"short", Minimum},
        {"", OfTheLabel},
        {"short", Kept},
        {longExplanation, OfTheLabel},
        {"", Kept},
        {longerExplanation, OfTheLabel},
        {longExplanation, Kept},
    };
    int before = 500;
    for (Step const& step : steps) {
        SCOPED_TRACE(step.explanation);
        std::string const table =
            step.explanation.empty() ? "" : std::string(explanationKey) + "\t" + step.explanation;
        ScopedTranslation translation(table);
        ShowConfirmationRequestDialog(1);
        Widget explanation = Part("form.staticlabel");
        Widget message = Part("form.actionconfirmation");
        ASSERT_TRUE(explanation && message);
        int const labelWidth = WidgetResource<Dimension>(explanation, XtNwidth);
        int const boxWidth = WidgetResource<Dimension>(message, XtNwidth);
        if (step.width == Minimum) {
            ASSERT_LT(labelWidth, 500);
            EXPECT_EQ(boxWidth, 500);
        } else if (step.width == OfTheLabel) {
            ASSERT_GT(labelWidth, before) << "the step needs a wider explanation";
            EXPECT_EQ(boxWidth, labelWidth);
        } else {
            ASSERT_LT(labelWidth, before) << "the step needs a narrower explanation";
            EXPECT_EQ(boxWidth, before);
        }
        EXPECT_EQ(m_confirmationWidth, boxWidth);
        before = boxWidth;
        HideConfirmationRequestDialog();
    }
}

// Each button closes the dialog and answers for the action the dialog was built for.
TEST_F(ConfirmationDialogTest, ButtonsCloseAndQueueTheirAnswer) {
    struct Case {
        char const* button;
        UICommandType command;
    };
    Case const cases[] = {{"form.ok", UICommandConfirmationAccepted},
                          {"form.cancel", UICommandConfirmationRejected}};
    AddActionWithMessage(41, "title", "message");
    for (Case const& c : cases) {
        SCOPED_TRACE(c.button);
        ShowConfirmationRequestDialog(41);
        Press(Part(c.button));
        EXPECT_TRUE(TopLevelShells().empty());
        EXPECT_EQ(TakeCommands(), (std::vector<QueuedCommand>{{c.command, 41, 0, 0}}));
        EXPECT_EQ(TakeDocuments(), 0u);
    }
}

// A request for another action while the dialog is up is dropped: neither the text nor the
// action the buttons answer for changes.
TEST_F(ConfirmationDialogTest, ASecondShowWhileUpIsDropped) {
    AddActionWithMessage(1, "first title", "first message");
    AddActionWithMessage(2, "second title", "second message");
    ShowConfirmationRequestDialog(1);
    Widget shell = OnlyShell();
    ShowConfirmationRequestDialog(2);
    EXPECT_EQ(OnlyShell(), shell);
    EXPECT_EQ(m_confirmedAction, 1u);
    EXPECT_EQ(WidgetText(Part("form.actiontitle"), XtNlabel), "first title");
    EXPECT_EQ(WidgetText(Part("form.actionconfirmation"), XtNstring), "first message");
    Press(Part("form.ok"));
    EXPECT_EQ(TakeCommands(),
              (std::vector<QueuedCommand>{{UICommandConfirmationAccepted, 1, 0, 0}}));
}

// An action that is gone by the time the dialog opens leaves the texts of the last one, but
// the buttons answer for the ID that was asked for.
TEST_F(ConfirmationDialogTest, AMissingActionKeepsTheLastTexts) {
    AddActionWithMessage(1, "first title", "first message");
    ShowConfirmationRequestDialog(1);
    HideConfirmationRequestDialog();
    actions.clear();
    ShowConfirmationRequestDialog(8);
    EXPECT_EQ(WidgetText(Part("form.actiontitle"), XtNlabel), "first title");
    EXPECT_EQ(WidgetText(Part("form.actionconfirmation"), XtNstring), "first message");
    Press(Part("form.cancel"));
    EXPECT_EQ(TakeCommands(),
              (std::vector<QueuedCommand>{{UICommandConfirmationRejected, 8, 0, 0}}));
}
