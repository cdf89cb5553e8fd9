// The testing fixture comes before the X headers, whose macros (None, Bool) would break GoogleTest.
#include "testing/DialogDisplay.h"

#include <X11/Xaw/Command.h>
#include <X11/Xaw/Label.h>

#include <cstdlib>
#include <string>

#include "localized/LocalizedStrings.h"
#include "session/DialogCalls.h"
#include "testing/ScopedSettings.h"
#include "testing/ScopedTranslation.h"
#include "testing/TestText.h"

namespace {

char const* const explanationKey =
    "Your administrator has disabled this feature between {start} and {end}.";

// 2026-03-01 09:15 and 11:40 UTC, times that read alike on a 12-hour and a 24-hour clock.
Instant const quietStart(1772356500LL * 1000000);
Instant const quietEnd(1772365200LL * 1000000);

class QuietModeDialogTest : public DialogDisplayTest {
  protected:
    void TearDown() override {
        RemoveQuietModeDialog();
        DialogDisplayTest::TearDown();
    }
};

}  // namespace

TEST_F(QuietModeDialogTest, TreeHasTheNamedWidgetsWithTheirResources) {
    ScopedTimeZone utc("UTC");
    ShowQuietModeDialog(quietStart, quietEnd);
    Widget shell = OnlyShell();
    ASSERT_NE(shell, nullptr);
    EXPECT_EQ(WidgetText(shell, XtNtitle), "Not Currently Available");
    Widget label = XtNameToWidget(shell, "form.staticlabel");
    Widget ok = XtNameToWidget(shell, "form.ok");
    ASSERT_TRUE(label && ok);
    EXPECT_EQ(XtClass(label), labelWidgetClass);
    std::string const explanation = WidgetText(label, XtNlabel);
    EXPECT_EQ(explanation, Str(LocalizedStrings::QuietModeExplanation(quietStart, quietEnd)));
    EXPECT_NE(explanation.find("disabled this feature between"), std::string::npos);
    EXPECT_NE(explanation.find("9:15"), std::string::npos) << explanation;
    EXPECT_NE(explanation.find("11:40"), std::string::npos) << explanation;
    EXPECT_EQ(WidgetResource<Dimension>(label, XtNborderWidth), 0);
    EXPECT_EQ(WidgetResource<XtJustify>(label, XtNjustify), XtJustifyLeft);
    EXPECT_EQ(XtClass(ok), commandWidgetClass);
    EXPECT_EQ(WidgetText(ok, XtNlabel), "OK");
    EXPECT_EQ(WidgetResource<Widget>(ok, XtNfromVert), label);
}

// The button is centred under the text, half the difference dividing toward zero, plus the
// label's border; a label narrower than the button moves it left of the label's start.
TEST_F(QuietModeDialogTest, ButtonIsCentredUnderTheExplanation) {
    struct Case {
        std::string translation;
        bool narrowerThanTheButton;
    };
    Case const cases[] = {
        {"", false},
        {std::string(explanationKey) + "\tx\nOK\tAcknowledged, thank you\n", true},
        {std::string(explanationKey) + "\txy\nOK\tAcknowledged, thank you!\n", true},
        {"OK\tAcknowledged, thank you\n", false},
    };
    for (Case const& c : cases) {
        SCOPED_TRACE(c.translation);
        ScopedTranslation translation(c.translation);
        ShowQuietModeDialog(quietStart, quietEnd);
        Widget shell = OnlyShell();
        ASSERT_NE(shell, nullptr);
        Widget label = XtNameToWidget(shell, "form.staticlabel");
        Widget ok = XtNameToWidget(shell, "form.ok");
        int const labelWidth = WidgetResource<Dimension>(label, XtNwidth);
        int const labelBorder = WidgetResource<Dimension>(label, XtNborderWidth);
        int const okWidth = WidgetResource<Dimension>(ok, XtNwidth);
        EXPECT_EQ(labelWidth < okWidth, c.narrowerThanTheButton);
        int const distance = WidgetResource<int>(ok, XtNhorizDistance);
        // Half the difference, rounded toward zero either way.
        int const twice = 2 * (distance - labelBorder);
        EXPECT_LE(std::abs(twice - (labelWidth - okWidth)), 1);
        EXPECT_LE(std::abs(twice), std::abs(labelWidth - okWidth));
        if (c.narrowerThanTheButton) {
            EXPECT_LT(distance, labelBorder);
        }
        RemoveQuietModeDialog();
    }
}

// A second start while the notice is up changes nothing on it.
TEST_F(QuietModeDialogTest, ASecondShowWhileUpKeepsTheFirstTimes) {
    ShowQuietModeDialog(quietStart, quietEnd);
    Widget shell = OnlyShell();
    ASSERT_NE(shell, nullptr);
    std::string const first = WidgetText(XtNameToWidget(shell, "form.staticlabel"), XtNlabel);
    Instant const later = quietEnd + TimeInterval(3LL * 3600 * 1000000);
    ShowQuietModeDialog(quietEnd, later);
    EXPECT_EQ(OnlyShell(), shell);
    EXPECT_EQ(WidgetText(XtNameToWidget(shell, "form.staticlabel"), XtNlabel), first);
    // Once it is gone, the new times show.
    RemoveQuietModeDialog();
    ShowQuietModeDialog(quietEnd, later);
    EXPECT_EQ(WidgetText(XtNameToWidget(OnlyShell(), "form.staticlabel"), XtNlabel),
              Str(LocalizedStrings::QuietModeExplanation(quietEnd, later)));
}

// OK closes the notice and queues the command that gives the action dialog back.
TEST_F(QuietModeDialogTest, OkClosesAndQueuesQuietModeDismissed) {
    ShowQuietModeDialog(quietStart, quietEnd);
    Press(XtNameToWidget(OnlyShell(), "form.ok"));
    EXPECT_TRUE(TopLevelShells().empty());
    EXPECT_EQ(TakeCommands(), (std::vector<QueuedCommand>{{UICommandQuietModeDismissed, 0, 0, 0}}));
    EXPECT_EQ(TakeDocuments(), 0u);
}

// The end of quiet mode removes the notice; removing it when none is up does nothing.
TEST_F(QuietModeDialogTest, RemoveClosesTheNoticeAndQueuesNothing) {
    RemoveQuietModeDialog();
    ShowQuietModeDialog(quietStart, quietEnd);
    ASSERT_EQ(TopLevelShells().size(), 1u);
    RemoveQuietModeDialog();
    EXPECT_TRUE(TopLevelShells().empty());
    RemoveQuietModeDialog();
    EXPECT_EQ(TakeCommands().size(), 0u);
    ShowQuietModeDialog(quietStart, quietEnd);
    EXPECT_EQ(TopLevelShells().size(), 1u);
}
