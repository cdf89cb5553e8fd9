// The testing fixture comes before the X headers, whose macros (None, Bool) would break GoogleTest.
#include "testing/DialogDisplay.h"

#include "dialogs/ActionRequestDialog.h"

#include <X11/Xaw/AsciiText.h>
#include <X11/Xaw/Command.h>
#include <X11/Xaw/Label.h>
#include <X11/Xaw/List.h>
#include <X11/Xaw/Viewport.h>

#include <unistd.h>

#include <cstdint>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "AgentSimulator.h"
#include "dialogs/DialogErrors.h"
#include "localized/ActionSummary.h"
#include "localized/DeadlineText.h"
#include "session/DialogCalls.h"
#include "testing/AgentExit.h"
#include "testing/ScopedTranslation.h"
#include "testing/TestText.h"

namespace {

TimeInterval const fiveMinutes(300000000);

ActionRequest PendingAction(unsigned long long id, std::string const& title) {
    ActionRequest action;
    action.m_id = id;
    action.SetTitle(U8(title));
    action.SetDescription(U8("What action " + std::to_string(id) + " does."));
    return action;
}

ActionRequest WithPreview(ActionRequest action) {
    action.m_preview = SharedUString<UTF8>(MakeUString(U8("#!/bin/sh\ntrue\n")));
    return action;
}

ActionRequest Cancellable(ActionRequest action) {
    action.m_cancellable = true;
    return action;
}

// A deadline the given number of seconds from now, in whole seconds as documents carry it.
ActionRequest DueIn(ActionRequest action, long long seconds) {
    action.m_deadline = TimeObject(Instant::Now() + TimeInterval(seconds * 1000000), TimeZone(0));
    return action;
}

// Snooze with the preselected five minutes and no deadline: the largest instant's seconds, of
// which only the low 32 bits travel in the command.
QueuedCommand const defaultSnooze{UICommandSnooze, 0, 5,
                                  static_cast<uint32_t>(INT64_MAX / 1000000)};

// Finds the first list widget below the widget; the lists have empty names.
Widget ListBelow(Widget parent) {
    if (!XtIsComposite(parent)) return nullptr;
    WidgetList children = nullptr;
    Cardinal count = 0;
    XtVaGetValues(parent, XtNchildren, &children, XtNnumChildren, &count, nullptr);
    for (Cardinal i = 0; i < count; ++i) {
        if (XtClass(children[i]) == listWidgetClass) return children[i];
        if (Widget found = ListBelow(children[i])) return found;
    }
    return nullptr;
}

std::vector<std::string> RowsOf(Widget list) {
    String* strings = nullptr;
    int count = 0;
    XtVaGetValues(list, XtNlist, &strings, XtNnumberStrings, &count, nullptr);
    return std::vector<std::string>(strings, strings ? strings + count : nullptr);
}

int HighlightedRow(Widget list) {
    XawListReturnStruct* current = XawListShowCurrent(list);
    int index = current ? current->list_index : XAW_LIST_NONE;
    XtFree(reinterpret_cast<char*>(current));
    return index;
}

// The report the agent must receive, twice, when the dialog cannot be built.
std::string const buildFailureReport =
    "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<ClientToUI>\n\t<ClientUIErrorMessage>\n"
    "\t\t<DebugString>ActionRequestDialog</DebugString>\n\t\t<ErrorCode>2</ErrorCode>\n"
    "\t</ClientUIErrorMessage>\n</ClientToUI>";

// Each test leaves no dialog and no selection behind.
class ActionRequestDialogTest : public DialogDisplayTest {
  protected:
    void TearDown() override {
        // The selection outlives the tree; leave none for the next test.
        if (IsActionRequestDialogShown()) {
            if (!IsActionRequestDialogEnabled()) EnableActionRequestDialog();
            SelectRow(XAW_LIST_NONE);
            HideActionRequestDialog();
        }
        DialogDisplayTest::TearDown();
    }

    void Show(TimeInterval remind = fiveMinutes, bool snoozable = true) {
        ShowActionRequestDialog(false, remind, snoozable);
        ASSERT_TRUE(IsActionRequestDialogShown());
        Settle();
    }

    Widget Find(std::string const& name) {
        Widget found = XtNameToWidget(ActionRequestDialogShell(), ("form." + name).c_str());
        EXPECT_NE(found, nullptr) << name;
        return found;
    }
    Widget ActionList() { return ListBelow(Find("viewport")); }
    Widget SnoozeList() { return ListBelow(Find("snoozeViewport")); }
    std::string Label(char const* name) { return WidgetText(Find(name), XtNlabel); }
    bool Sensitive(Widget widget) { return WidgetResource<Boolean>(widget, XtNsensitive); }
    bool Sensitive(char const* name) { return Sensitive(Find(name)); }
    int Width(Widget widget) { return WidgetResource<Dimension>(widget, XtNwidth); }
    int Width(char const* name) { return Width(Find(name)); }
    int HorizDistance(char const* name) {
        return WidgetResource<int>(Find(name), XtNhorizDistance);
    }
    std::string Description() { return WidgetText(Find("actiondesc"), XtNstring); }

    // Highlights the row as the list's own button press does, then runs the dialog's action
    // as the release does after the list's Notify.
    void SelectRow(int row) {
        Widget list = ActionList();
        if (row == XAW_LIST_NONE) {
            XawListUnhighlight(list);
        } else {
            XawListHighlight(list, row);
        }
        XtCallActionProc(list, "PostponeListSelect", nullptr, nullptr, 0);
    }

    void Press(char const* button) { DialogDisplayTest::Press(Find(button)); }

    void CheckInternationalWidgets();
};

}  // namespace

TEST_F(ActionRequestDialogTest, TreeHasTheNamedWidgetsOfEachClass) {
    actions.push_back(PendingAction(1, "Install updates"));
    Show();
    struct Case {
        char const* name;
        WidgetClass widgetClass;
    };
    Case const cases[] = {
        {"actiontitle", labelWidgetClass},      {"actiondesc", asciiTextWidgetClass},
        {"actionListLabel", labelWidgetClass},  {"viewport", viewportWidgetClass},
        {"takeAllActions", commandWidgetClass}, {"takeActions", commandWidgetClass},
        {"cancelAction", commandWidgetClass},   {"actionDetails", commandWidgetClass},
        {"snoozeLabel", labelWidgetClass},      {"snoozeViewport", viewportWidgetClass},
        {"snoozeButton", commandWidgetClass}};
    for (Case const& c : cases) {
        Widget widget = Find(c.name);
        ASSERT_NE(widget, nullptr) << c.name;
        EXPECT_EQ(XtClass(widget), c.widgetClass) << c.name;
    }
    EXPECT_EQ(XtClass(XtNameToWidget(ActionRequestDialogShell(), "form")), formWidgetClass);
    EXPECT_EQ(XtClass(ActionRequestDialogShell()), applicationShellWidgetClass);
    ASSERT_TRUE(ActionList() && SnoozeList());
    EXPECT_STREQ(XtName(ActionList()), "");
    EXPECT_STREQ(XtName(SnoozeList()), "");
    EXPECT_NE(ActionList(), SnoozeList());

    EXPECT_EQ(WidgetText(ActionRequestDialogShell(), XtNtitle), "Action Requests");
    EXPECT_EQ(Label("actionListLabel"), "Title  --  Deadline");
    EXPECT_EQ(Label("snoozeLabel"), "Click Snooze to be reminded again:");
    EXPECT_EQ(Label("takeAllActions"), "Take All Actions");
    EXPECT_EQ(Label("actionDetails"), "Action Details");
    EXPECT_FALSE(Sensitive("actiondesc"));
    EXPECT_TRUE(XtIsRealized(ActionRequestDialogShell()));
}

// Right edge of "takeActions" on the text box; the gaps scale with the text's border width.
// The labels measured are those of the build, which the update keeps while nothing is selected.
// A translation that makes the labels wider than the text box widens the dialog to their sum.
TEST_F(ActionRequestDialogTest, ButtonsStandAtOffsetsFromTheTextBoxWidth) {
    std::string const longLabel =
        "Carry out every one of the pending actions at once, without delay";
    for (bool grows : {false, true}) {
        SCOPED_TRACE(grows ? "long translated labels" : "default labels");
        ScopedTranslation translation(grows ? "Take All Actions\t" + longLabel +
                                                  "\nCancel Actions\tCancel the chosen actions "
                                                  "and never run them\n"
                                            : "");
        actions = {PendingAction(1, "Install updates")};
        Show();
        EXPECT_EQ(Label("takeAllActions"), grows ? longLabel : "Take All Actions");
        int const B = WidgetResource<Dimension>(Find("actiondesc"), XtNborderWidth);
        int const Wt = Width("takeActions");
        int const Wc = Width("cancelAction");
        int const Wd = Width("actionDetails");
        int const Ws = Width("snoozeButton");
        int const labels = Width("takeAllActions") + Wc + Wt + Wd + 20 * B;
        ASSERT_EQ(labels > 500, grows);
        EXPECT_GT(B, 0);
        // The text box is 500 wide, or the labels' sum less one border when they need more.
        int const T = grows ? labels : 500;
        int const text = grows ? T - B : 500;
        EXPECT_EQ(Width("actiondesc"), text);
        EXPECT_EQ(Width("actiontitle"), text);
        EXPECT_EQ(HorizDistance("takeActions"), T + B - Wt);
        EXPECT_EQ(HorizDistance("cancelAction"), T - 5 * B - Wc - Wt);
        EXPECT_EQ(HorizDistance("actionDetails"), T - 11 * B - Wc - Wt - Wd);
        EXPECT_EQ(HorizDistance("snoozeButton"), T + B - Ws);
        EXPECT_GE(Width(ActionRequestDialogShell()), T);
        Widget scrollbar = XtNameToWidget(Find("viewport"), "vertical");
        Widget snoozeScrollbar = XtNameToWidget(Find("snoozeViewport"), "vertical");
        ASSERT_TRUE(scrollbar && snoozeScrollbar);
        EXPECT_EQ(Width("viewport"), text - 15 + Width(scrollbar));
        if (!grows) {
            EXPECT_EQ(Width("snoozeViewport"), 400 + Width(snoozeScrollbar));
        }
        HideActionRequestDialog();
    }
}

// Which controls can be pressed, and what they read, for each combination that matters. The
// state reads, one character each ('+' on, '-' off): "takeAllActions", "takeActions",
// "cancelAction", "actionDetails" sensitive, "actionDetails" mapped, "snoozeButton" and the
// snooze list sensitive. The labels are those of "takeActions", "cancelAction", "snoozeButton".
TEST_F(ActionRequestDialogTest, SensitivityFollowsActionsSelectionAndDeadlines) {
    int const noRow = XAW_LIST_NONE;
    struct Case {
        char const* what;
        std::vector<ActionRequest> pending;
        bool snoozable;
        int row;
        std::string state;
        std::vector<std::string> labels;
    };
    std::vector<std::string> const singular{"Take Action", "Cancel Action", "Snooze"};
    std::vector<std::string> const plural{"Take Actions", "Cancel Actions", "Snooze"};
    ActionRequest const a = PendingAction(1, "A");
    ActionRequest const b = PendingAction(2, "B");
    Case const cases[] = {
        {"no action", {}, true, noRow, "-----+-", {"Take Action", "Cancel Action", "Close"}},
        {"one action, no row", {a}, true, noRow, "+----++", plural},
        {"a previewable action, no row", {WithPreview(a)}, true, noRow, "+---+++", plural},
        {"a cancellable row with preview",
         {Cancellable(WithPreview(a))},
         true,
         0,
         "+++++++",
         singular},
        {"a plain row while another has a preview",
         {a, WithPreview(b)},
         true,
         0,
         "++--+++",
         singular},
        {"a deadline 4:59 away on the other action",
         {Cancellable(a), DueIn(b, 299)},
         true,
         0,
         "+++----",
         singular},
        {"a deadline more than five minutes away",
         {a, DueIn(b, 310)},
         true,
         noRow,
         "+----++",
         plural},
        {"snoozing not allowed", {a}, false, noRow, "+------", plural},
        {"only an action without title", {PendingAction(1, "")}, true, noRow, "+----++", plural},
    };
    for (Case const& c : cases) {
        SCOPED_TRACE(c.what);
        actions = c.pending;
        Show(fiveMinutes, c.snoozable);
        if (c.row != noRow) SelectRow(c.row);
        std::string state;
        for (bool on : {Sensitive("takeAllActions"), Sensitive("takeActions"),
                        Sensitive("cancelAction"), Sensitive("actionDetails"),
                        bool(WidgetResource<Boolean>(Find("actionDetails"), XtNmappedWhenManaged)),
                        Sensitive("snoozeButton"), Sensitive(SnoozeList())})
            state += on ? '+' : '-';
        EXPECT_EQ(state, c.state);
        EXPECT_TRUE(Sensitive(ActionList()));
        EXPECT_EQ((std::vector<std::string>{Label("takeActions"), Label("cancelAction"),
                                            Label("snoozeButton")}),
                  c.labels);
        SelectRow(noRow);
        HideActionRequestDialog();
    }
}

// The heading counts rows, not actions; a selection shows the action's title instead.
TEST_F(ActionRequestDialogTest, HeadingCountsRowsOrNamesTheSelectedAction) {
    struct Case {
        std::vector<ActionRequest> pending;
        char const* heading;
    };
    Case const cases[] = {
        {{}, "There are no pending actions."},
        {{PendingAction(1, "A")}, "There is 1 pending action."},
        {{PendingAction(1, "A"), PendingAction(2, "")}, "There is 1 pending action."},
        {{PendingAction(1, "A"), PendingAction(2, "B"), PendingAction(3, "C")},
         "There are 3 pending actions."},
        {{PendingAction(1, ""), PendingAction(2, "")}, "There are no pending actions."},
    };
    for (Case const& c : cases) {
        SCOPED_TRACE(c.heading);
        actions = c.pending;
        Show();
        EXPECT_EQ(Label("actiontitle"), c.heading);
        HideActionRequestDialog();
    }
    actions = {PendingAction(1, "A"), PendingAction(2, "Reboot this machine")};
    Show();
    SelectRow(1);
    EXPECT_EQ(Label("actiontitle"), "Reboot this machine");
}

// A row is the title, and "  --  " with the local time when there is a deadline; an action
// without a title has no row, and the rows keep the order of the actions.
TEST_F(ActionRequestDialogTest, RowsShowTitleAndLocalDeadline) {
    ActionRequest due = DueIn(PendingAction(3, "Gamma"), 7200);
    actions = {PendingAction(1, "Alpha"), PendingAction(2, ""), due};
    Show();
    std::string const when = Str(UnixPlatform::FormattedLocalTime(*due.Deadline()));
    EXPECT_EQ(RowsOf(ActionList()), (std::vector<std::string>{"Alpha", "Gamma  --  " + when}));
    SelectRow(1);
    EXPECT_EQ(Label("actiontitle"), "Gamma");
}

// A title longer than a row draws is cut so that the row, deadline included, holds 1000
// characters, "..." among them (the plain locale has no ellipsis character); the heading of the
// selected action likewise.
TEST_F(ActionRequestDialogTest, ALongTitleIsCutToWhatARowDrawsWithItsDeadlineKept) {
    ActionRequest due = DueIn(PendingAction(1, std::string(3000, 'L')), 7200);
    actions = {due, PendingAction(2, std::string(1000, 'M'))};
    Show();
    std::string const tail = "  --  " + Str(UnixPlatform::FormattedLocalTime(*due.Deadline()));
    EXPECT_EQ(RowsOf(ActionList()),
              (std::vector<std::string>{std::string(997 - tail.size(), 'L') + "..." + tail,
                                        std::string(1000, 'M')}));
    SelectRow(0);
    EXPECT_EQ(Label("actiontitle"), std::string(997, 'L') + "...");
}

TEST_F(ActionRequestDialogTest, DescriptionIsTheActionsTextThenItsSummary) {
    ActionRequest restart = DueIn(PendingAction(7, "Patch kernel"), 3 * 3600);
    restart.m_restart = true;
    restart.m_requestSave = true;
    ActionRequest other = PendingAction(8, "Clean caches");
    other.m_shutdown = true;
    actions = {restart, other};
    Show();

    ActionRequestStore store;
    store.UpdateActions(actions);
    std::string const allSummary =
        Str(ActionSummary(std::set<unsigned long long>{7, 8}, store, true));
    ASSERT_FALSE(allSummary.empty());
    EXPECT_EQ(Description(), allSummary);

    SelectRow(0);
    std::string const summary = Str(ActionSummary(restart));
    ASSERT_FALSE(summary.empty());
    EXPECT_EQ(Description(), "What action 7 does.\n\n" + summary);
    SelectRow(1);
    EXPECT_EQ(Description(), "What action 8 does.\n\n" + Str(ActionSummary(other)));
}

// The preselected snooze row is the one nearest the remind interval, the upper one on a tie.
TEST_F(ActionRequestDialogTest, SnoozeListPreselectsTheNearestChoice) {
    struct Case {
        char const* what;
        long long remindSeconds;
        bool deadline;
        int rows;
        int selected;
        char const* text;
    };
    Case const cases[] = {
        {"5 minutes", 300, false, 17, 1, "in 5 minutes"},
        {"3 minutes ties 1 and 5", 180, false, 17, 0, "in 1 minute"},
        {"zero with a deadline", 0, true, 19, 2, "in 1 minute"},
        {"10 days", 864000, false, 17, 16, "in 5 days"},
        {"10 days with a deadline", 864000, true, 19, 18, "in 5 days"},
        {"20 minutes, between 15 and 30", 1200, false, 17, 3, "in 15 minutes"},
        {"negative, with a deadline", -20 * 60, true, 19, 0, "15 minutes before deadline"},
    };
    for (Case const& c : cases) {
        SCOPED_TRACE(c.what);
        actions = {PendingAction(1, "A")};
        if (c.deadline) actions.push_back(DueIn(PendingAction(2, "B"), 7200));
        Show(TimeInterval(c.remindSeconds * 1000000));
        std::vector<std::string> const rows = RowsOf(SnoozeList());
        ASSERT_EQ(static_cast<int>(rows.size()), c.rows);
        EXPECT_EQ(rows.back(), "in 5 days");
        EXPECT_EQ(rows[c.deadline ? 2 : 0], "in 1 minute");
        if (c.deadline) {
            EXPECT_EQ(rows[0], "15 minutes before deadline");
            EXPECT_EQ(rows[1], "5 minutes before deadline");
        }
        EXPECT_EQ(HighlightedRow(SnoozeList()), c.selected);
        EXPECT_EQ(rows[c.selected], c.text);
        HideActionRequestDialog();
    }
}

// Each button queues its command with the selected row's ID, and greys the dialog until the
// session has carried it out. Without a selected row the row buttons do nothing.
TEST_F(ActionRequestDialogTest, ButtonsQueueTheirCommandAndDisableTheDialog) {
    int const noRow = XAW_LIST_NONE;
    struct Case {
        char const* button;
        int row;
        std::vector<QueuedCommand> expected;
    };
    Case const cases[] = {
        {"takeActions", 1, {{UICommandTake, 22, 0, 0}}},
        {"takeActions", 0, {{UICommandTake, 11, 0, 0}}},
        {"cancelAction", 0, {{UICommandCancel, 11, 0, 0}}},
        {"actionDetails", 1, {{UICommandShowDetails, 22, 0, 0}}},
        {"takeAllActions", noRow, {{UICommandTakeAll, 0, 0, 0}}},
        {"takeAllActions", 1, {{UICommandTakeAll, 0, 0, 0}}},
        {"takeActions", noRow, {}},
        {"cancelAction", noRow, {}},
        {"actionDetails", noRow, {}},
    };
    for (Case const& c : cases) {
        SCOPED_TRACE(std::string(c.button) + " row " + std::to_string(c.row));
        actions = {Cancellable(WithPreview(PendingAction(11, "First"))),
                   Cancellable(WithPreview(PendingAction(22, "Second")))};
        Show();
        SelectRow(c.row);
        Press(c.button);
        EXPECT_EQ(TakeCommands(), c.expected);
        bool const queued = !c.expected.empty();
        EXPECT_EQ(IsActionRequestDialogEnabled(), !queued);
        EXPECT_TRUE(IsActionRequestDialogShown());
        if (queued) {
            for (char const* name :
                 {"takeAllActions", "actionDetails", "cancelAction", "takeActions", "snoozeButton"})
                EXPECT_FALSE(Sensitive(name)) << name;
            EXPECT_FALSE(Sensitive(SnoozeList()));
            EXPECT_FALSE(Sensitive(ActionList()));
            EnableActionRequestDialog();
        }
        SelectRow(noRow);
        HideActionRequestDialog();
    }
}

// Snooze queues the highlighted choice's minutes and the earliest deadline in seconds, and the
// dialog goes; a choice made in the list replaces the preselection.
TEST_F(ActionRequestDialogTest, SnoozeQueuesTheChoiceAndClosesTheDialog) {
    ActionRequest due = DueIn(PendingAction(2, "B"), 7200);
    ActionRequest later = DueIn(PendingAction(3, "C"), 9000);
    long long const deadlineSeconds = due.Deadline()->Microseconds() / 1000000;
    actions = {PendingAction(1, "A"), later, due};
    Show();
    Press("snoozeButton");
    EXPECT_FALSE(IsActionRequestDialogShown());
    EXPECT_EQ(TakeCommands(),
              (std::vector<QueuedCommand>{
                  {UICommandSnooze, 0, 5, static_cast<uint32_t>(deadlineSeconds)}}));

    Show();
    XawListHighlight(SnoozeList(), 0);
    XawListReturnStruct chosen{const_cast<char*>("15 minutes before deadline"), 0};
    XtCallCallbacks(SnoozeList(), XtNcallback, &chosen);
    Press("snoozeButton");
    EXPECT_FALSE(IsActionRequestDialogShown());
    EXPECT_EQ(TakeCommands(),
              (std::vector<QueuedCommand>{
                  {UICommandSnooze, 0, -15, static_cast<uint32_t>(deadlineSeconds)}}));
}

// The dialog stays when the last action goes; its button then reads "Close" and closes it,
// queuing the choice still highlighted, which the session drops with no action left.
TEST_F(ActionRequestDialogTest, LastActionGoneLeavesACloseButton) {
    actions = {PendingAction(1, "A")};
    Show();
    SelectRow(0);
    actions.clear();
    UpdateActionRequestDialog();
    EXPECT_TRUE(IsActionRequestDialogShown());
    EXPECT_EQ(Label("snoozeButton"), "Close");
    EXPECT_TRUE(Sensitive("snoozeButton"));
    EXPECT_EQ(Label("actiontitle"), "There are no pending actions.");
    EXPECT_EQ(Description(), "");
    EXPECT_EQ(HighlightedRow(ActionList()), XAW_LIST_NONE);
    Press("snoozeButton");
    EXPECT_FALSE(IsActionRequestDialogShown());
    EXPECT_EQ(TakeCommands(), std::vector<QueuedCommand>{defaultSnooze});
}

// The selection is a row index: when the row above goes, the same index names the next action.
TEST_F(ActionRequestDialogTest, SelectionStaysOnTheRowIndexWhenARowAboveGoes) {
    actions = {PendingAction(1, "A"), PendingAction(2, "B"), PendingAction(3, "C")};
    Show();
    SelectRow(1);
    EXPECT_EQ(Label("actiontitle"), "B");
    actions.erase(actions.begin());
    UpdateActionRequestDialog();
    EXPECT_EQ(HighlightedRow(ActionList()), 1);
    EXPECT_EQ(Label("actiontitle"), "C");
    Press("takeActions");
    EXPECT_EQ(TakeCommands(), (std::vector<QueuedCommand>{{UICommandTake, 3, 0, 0}}));
    actions.pop_back();
    EnableActionRequestDialog();
    EXPECT_EQ(HighlightedRow(ActionList()), XAW_LIST_NONE);
    EXPECT_EQ(Label("actiontitle"), "There is 1 pending action.");
    EXPECT_FALSE(Sensitive("takeActions"));
}

// A disabled dialog shows what it showed; enabling catches up with the pending actions.
TEST_F(ActionRequestDialogTest, DisabledDialogIgnoresUpdatesUntilEnabled) {
    actions = {PendingAction(1, "A"), PendingAction(2, "B")};
    Show();
    DisableActionRequestDialog();
    actions.push_back(PendingAction(3, "C"));
    UpdateActionRequestDialog();
    EXPECT_EQ(RowsOf(ActionList()), (std::vector<std::string>{"A", "B"}));
    SelectRow(0);
    EXPECT_EQ(Label("actiontitle"), "There are 2 pending actions.");
    XawListUnhighlight(ActionList());
    EnableActionRequestDialog();
    EXPECT_EQ(RowsOf(ActionList()), (std::vector<std::string>{"A", "B", "C"}));
    EXPECT_EQ(Label("actiontitle"), "There are 3 pending actions.");
    EXPECT_TRUE(Sensitive("takeAllActions"));
    EXPECT_FALSE(Sensitive("takeActions"));
    EXPECT_FALSE(Sensitive("cancelAction"));
}

// A real press and release of the first button on the top row selects it through the list's
// translations.
TEST_F(ActionRequestDialogTest, AClickOnARowSelectsIt) {
    actions = {Cancellable(PendingAction(1, "Defragment")), PendingAction(2, "Other")};
    Show();
    Widget list = ActionList();
    SendPointer(list, ButtonPress, Button1, 5, 5, 0);
    SendPointer(list, ButtonRelease, Button1, 5, 5, Button1Mask);
    EXPECT_EQ(HighlightedRow(list), 0);
    EXPECT_EQ(Label("actiontitle"), "Defragment");
    EXPECT_TRUE(Sensitive("takeActions"));
    EXPECT_TRUE(Sensitive("cancelAction"));
    EXPECT_EQ(Label("takeActions"), "Take Action");
}

// Showing a dialog that is up changes nothing, and before the display is open nothing shows.
TEST_F(ActionRequestDialogTest, ShowingTwiceKeepsTheTreeAndNoDisplayShowsNothing) {
    actions = {PendingAction(1, "A")};
    Show();
    Widget shell = ActionRequestDialogShell();
    ShowActionRequestDialog(false, fiveMinutes, false);
    EXPECT_EQ(ActionRequestDialogShell(), shell);
    EXPECT_TRUE(Sensitive("snoozeButton")) << "the second call's flag is ignored";
    HideActionRequestDialog();
    EXPECT_FALSE(IsActionRequestDialogShown());

    Display* const open = display;
    display = nullptr;
    ShowActionRequestDialog(false, fiveMinutes, true);
    EXPECT_FALSE(IsActionRequestDialogShown());
    display = open;
}

// In a Latin-1 locale with the multibyte flag on, a translated title outside Latin-1 cannot be
// given to the shell: the agent hears of it twice and the process ends normally.
TEST(ActionRequestDialogBuild, ATitleTheLocaleCannotExpressIsReportedTwiceThenTheProcessEnds) {
    ASSERT_TRUE(ScopedCTypeLocale("de_DE.ISO-8859-1").Ok()) << "scripts/setup makes this locale";
    XvfbServer server;
    AgentSimulator agent;
    agent.Launch(ACTIONDIALOGPROBE_PATH, {"-display", server.DisplayName()});
    std::vector<std::string> frames;
    while (auto frame = agent.ReceiveFrame(15000)) frames.push_back(*frame);
    EXPECT_EQ(frames, (std::vector<std::string>{buildFailureReport, buildFailureReport}));
    ExpectExitStatus(agent, 0);
}

// With the multibyte flag on, every widget but the form and the viewports runs in multibyte
// mode, and the texts reach the widgets in the locale's encoding. The program chooses its locale
// before it makes any widget; the multibyte text widget of this toolkit fails when plain widgets
// came before it in the same process, so the checks run in a fresh run of this test program.
TEST_F(ActionRequestDialogTest, InternationalWidgetsTakeTheLocalesEncoding) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_EXIT(
        {
            CheckInternationalWidgets();
            _exit(HasFailure() ? 1 : 0);
        },
        ::testing::ExitedWithCode(0), "");
}

void ActionRequestDialogTest::CheckInternationalWidgets() {
    struct Case {
        char const* locale;
        std::string row;
    };
    Case const cases[] = {{"de_DE.iso88591",
                           "Gr\xF6\xDF"
                           "e pr\xFC"
                           "fen"},
                          {"de_DE.utf8",
                           "Gr\xC3\xB6\xC3\x9F"
                           "e pr\xC3\xBC"
                           "fen"}};
    for (Case const& c : cases) {
        SCOPED_TRACE(c.locale);
        ScopedCTypeLocale locale(c.locale);
        ASSERT_TRUE(locale.Ok()) << "scripts/setup makes this locale";
        international = true;
        // The toolkit converts a widget's font set once per display, in the locale of the
        // moment, so each locale gets a display opened after the change, as the program opens
        // its display after choosing its locale. They stay open until this run ends.
        static std::vector<std::unique_ptr<ToolkitDisplay>> opened;
        opened.push_back(std::make_unique<ToolkitDisplay>(DisplayString(m_toolkit->Connection())));
        app_context = opened.back()->Context();
        display = opened.back()->Connection();
        actions = {PendingAction(1,
                                 "Gr\xC3\xB6\xC3\x9F"
                                 "e pr\xC3\xBC"
                                 "fen")};
        Show();
        EXPECT_EQ(RowsOf(ActionList()), std::vector<std::string>{c.row});
        SelectRow(0);
        EXPECT_EQ(Label("actiontitle"), c.row);
        std::vector<Widget> widgets{ActionList(), SnoozeList()};
        for (char const* name :
             {"actiontitle", "actiondesc", "actionListLabel", "takeAllActions", "takeActions",
              "cancelAction", "actionDetails", "snoozeLabel", "snoozeButton"})
            widgets.push_back(Find(name));
        for (Widget widget : widgets)
            EXPECT_TRUE(WidgetResource<Boolean>(widget, XtNinternational)) << XtName(widget);
        SelectRow(XAW_LIST_NONE);
        HideActionRequestDialog();
    }
}

// A selection whose action has gone without the list being redrawn cannot be described; the
// failure goes up to whoever runs the toolkit's loop.
TEST_F(ActionRequestDialogTest, SelectingARowWhoseActionHasGoneThrows) {
    actions = {PendingAction(1, "A"), PendingAction(2, "B")};
    Show();
    actions = {PendingAction(3, "C")};
    XawListHighlight(ActionList(), 1);
    EXPECT_THROW(PostponeListSelect(ActionList(), nullptr, nullptr, nullptr), NoSelectedAction);
}

// Without a tree, disabling and enabling change only the flag; updating then draws nothing.
TEST_F(ActionRequestDialogTest, DisableAndEnableWithoutATreeOnlyChangeTheFlag) {
    ASSERT_FALSE(IsActionRequestDialogShown());
    DisableActionRequestDialog();
    EXPECT_FALSE(IsActionRequestDialogEnabled());
    EnableActionRequestDialog();
    EXPECT_TRUE(IsActionRequestDialogEnabled());
    EXPECT_FALSE(IsActionRequestDialogShown());
}

// Every redraw of the controls rebuilds the snooze list, so a click in the action list drops
// the user's snooze choice for the preselected one.
TEST_F(ActionRequestDialogTest, SelectingARowResetsTheSnoozeChoice) {
    actions = {PendingAction(1, "A"), PendingAction(2, "B")};
    Show();
    XawListHighlight(SnoozeList(), 6);
    XawListReturnStruct chosen{const_cast<char*>("in 1 hour"), 6};
    XtCallCallbacks(SnoozeList(), XtNcallback, &chosen);
    SelectRow(1);
    EXPECT_EQ(HighlightedRow(SnoozeList()), 1);
    Press("snoozeButton");
    EXPECT_EQ(TakeCommands(), std::vector<QueuedCommand>{defaultSnooze});
}
