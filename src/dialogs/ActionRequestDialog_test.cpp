// GoogleTest comes before the X headers, whose macros (None, Bool) would break it.
#include <gtest/gtest.h>

#include "dialogs/ActionRequestDialog.h"

#include <X11/Shell.h>
#include <X11/StringDefs.h>
#include <X11/Xaw/AsciiText.h>
#include <X11/Xaw/Command.h>
#include <X11/Xaw/Form.h>
#include <X11/Xaw/Label.h>
#include <X11/Xaw/List.h>
#include <X11/Xaw/Viewport.h>

#include <unistd.h>

#include <cstdint>
#include <cstring>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "AgentSimulator.h"
#include "dialogs/DialogErrors.h"
#include "localized/ActionSummary.h"
#include "localized/DeadlineText.h"
#include "localized/FormatOverrides.h"
#include "session/DialogCalls.h"
#include "session/SessionState.h"
#include "testing/ScopedSettings.h"
#include "testing/TestText.h"
#include "testing/ToolkitDisplay.h"
#include "testing/XvfbServer.h"

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

struct QueuedCommand {
    UICommandType command;
    unsigned long long actionID;
    long minutes;
    uint32_t seconds;
    bool operator==(QueuedCommand const& other) const {
        return command == other.command && actionID == other.actionID && minutes == other.minutes &&
               seconds == other.seconds;
    }
};

std::ostream& operator<<(std::ostream& out, QueuedCommand const& c) {
    return out << "{" << c.command << ", " << c.actionID << ", " << c.minutes << ", " << c.seconds
               << "}";
}

std::vector<QueuedCommand> TakeQueuedCommands() {
    FiFoQueue<std::unique_ptr<UICommand>> queue;
    uiCommandQ.ReadMessages(queue);
    std::vector<QueuedCommand> commands;
    while (!queue.IsEmpty()) {
        std::unique_ptr<UICommand> c = queue.TakeFirst();
        commands.push_back({c->m_command, c->m_actionID, c->m_minutes, c->m_seconds});
    }
    return commands;
}

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

std::string LabelOf(Widget widget) {
    String label = nullptr;
    XtVaGetValues(widget, XtNlabel, &label, nullptr);
    return label ? label : "(null)";
}

bool SensitiveResource(Widget widget) {
    Boolean sensitive = False;
    XtVaGetValues(widget, XtNsensitive, &sensitive, nullptr);
    return sensitive;
}

bool MappedWhenManaged(Widget widget) {
    Boolean mapped = False;
    XtVaGetValues(widget, XtNmappedWhenManaged, &mapped, nullptr);
    return mapped;
}

int DimensionOf(Widget widget, char const* resource) {
    Dimension value = 0;
    XtVaGetValues(widget, resource, &value, nullptr);
    return value;
}

int HorizDistance(Widget widget) {
    int value = -1;
    XtVaGetValues(widget, XtNhorizDistance, &value, nullptr);
    return value;
}

std::vector<std::string> RowsOf(Widget list) {
    String* strings = nullptr;
    int count = 0;
    XtVaGetValues(list, XtNlist, &strings, XtNnumberStrings, &count, nullptr);
    std::vector<std::string> rows;
    for (int i = 0; i < count && strings; ++i) rows.push_back(strings[i]);
    return rows;
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

// The tests share one server and one toolkit display on it, set in the session's globals;
// each starts with an empty list of pending actions and leaves no dialog and no selection.
// (Display connections opened one after another in one process can meet stale per-screen
// caches of the widget libraries, so the suite keeps one.)
class ActionRequestDialogTest : public ::testing::Test {
  protected:
    static void SetUpTestSuite() {
        server = new XvfbServer();
        toolkit = new ToolkitDisplay(server->DisplayName());
        app_context = toolkit->Context();
        display = toolkit->Connection();
    }
    static void TearDownTestSuite() {
        otherDisplays.clear();
        delete toolkit;
        toolkit = nullptr;
        app_context = nullptr;
        display = nullptr;
        delete server;
        server = nullptr;
    }
    void SetUp() override {
        international = false;
        actions.clear();
        TakeQueuedCommands();
    }
    void TearDown() override {
        // The selection outlives the tree; leave none for the next test.
        if (IsActionRequestDialogShown()) {
            if (!IsActionRequestDialogEnabled()) EnableActionRequestDialog();
            SelectRow(XAW_LIST_NONE);
            HideActionRequestDialog();
        }
        actions.clear();
        TakeQueuedCommands();
        toolkit->Settle();
    }

    void Show(TimeInterval remind = fiveMinutes, bool snoozable = true) {
        ShowActionRequestDialog(false, remind, snoozable);
        ASSERT_TRUE(IsActionRequestDialogShown());
        toolkit->Settle();
    }

    Widget Find(std::string const& name) {
        Widget found = XtNameToWidget(ActionRequestDialogShell(), ("form." + name).c_str());
        EXPECT_NE(found, nullptr) << name;
        return found;
    }
    Widget ActionList() { return ListBelow(Find("viewport")); }
    Widget SnoozeList() { return ListBelow(Find("snoozeViewport")); }

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

    void Press(char const* button) { XtCallCallbacks(Find(button), XtNcallback, nullptr); }

    std::string Description() {
        String text = nullptr;
        XtVaGetValues(Find("actiondesc"), XtNstring, &text, nullptr);
        return text ? text : "(null)";
    }

    // Opens one more display on the suite's server and puts it in the session's globals until
    // the end of the test. The toolkit converts a widget's font set once per display, in the
    // locale of the moment, so a test that changes the locale needs a display opened after the
    // change, as the program opens its display after choosing the locale. The displays stay
    // open until the suite ends.
    void UseNewDisplay() {
        otherDisplays.push_back(std::make_unique<ToolkitDisplay>(server->DisplayName()));
        app_context = otherDisplays.back()->Context();
        display = otherDisplays.back()->Connection();
    }
    void CheckInternationalWidgets();
    void UseSuiteDisplay() {
        app_context = toolkit->Context();
        display = toolkit->Connection();
    }

    static XvfbServer* server;
    static ToolkitDisplay* toolkit;
    static std::vector<std::unique_ptr<ToolkitDisplay>> otherDisplays;
};
std::vector<std::unique_ptr<ToolkitDisplay>> ActionRequestDialogTest::otherDisplays;

XvfbServer* ActionRequestDialogTest::server = nullptr;
ToolkitDisplay* ActionRequestDialogTest::toolkit = nullptr;

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
    Widget form = XtNameToWidget(ActionRequestDialogShell(), "form");
    ASSERT_NE(form, nullptr);
    EXPECT_EQ(XtClass(form), formWidgetClass);
    EXPECT_EQ(XtClass(ActionRequestDialogShell()), applicationShellWidgetClass);
    ASSERT_NE(ActionList(), nullptr);
    ASSERT_NE(SnoozeList(), nullptr);
    EXPECT_STREQ(XtName(ActionList()), "");
    EXPECT_STREQ(XtName(SnoozeList()), "");
    EXPECT_NE(ActionList(), SnoozeList());

    String title = nullptr;
    XtVaGetValues(ActionRequestDialogShell(), XtNtitle, &title, nullptr);
    EXPECT_STREQ(title, "Action Requests");
    EXPECT_EQ(LabelOf(Find("actionListLabel")), "Title  --  Deadline");
    EXPECT_EQ(LabelOf(Find("snoozeLabel")), "Click Snooze to be reminded again:");
    EXPECT_EQ(LabelOf(Find("takeAllActions")), "Take All Actions");
    EXPECT_EQ(LabelOf(Find("actionDetails")), "Action Details");
    EXPECT_FALSE(SensitiveResource(Find("actiondesc")));
    EXPECT_TRUE(XtIsRealized(ActionRequestDialogShell()));
}

// Right edge of "takeActions" on the text box; the gaps scale with the text's border width.
// The labels measured are those of the build, which the update keeps while nothing is selected.
TEST_F(ActionRequestDialogTest, ButtonsStandAtOffsetsFromTheTextBoxWidth) {
    actions.push_back(PendingAction(1, "Install updates"));
    Show();
    int const T = DimensionOf(Find("actiondesc"), XtNwidth);
    int const B = DimensionOf(Find("actiondesc"), XtNborderWidth);
    int const Wt = DimensionOf(Find("takeActions"), XtNwidth);
    int const Wc = DimensionOf(Find("cancelAction"), XtNwidth);
    int const Wd = DimensionOf(Find("actionDetails"), XtNwidth);
    int const Wa = DimensionOf(Find("takeAllActions"), XtNwidth);
    int const Ws = DimensionOf(Find("snoozeButton"), XtNwidth);
    ASSERT_LE(Wa + Wc + Wt + Wd + 20 * B, 500) << "the default labels fit without growing";
    EXPECT_EQ(T, 500);
    EXPECT_GT(B, 0);
    EXPECT_EQ(HorizDistance(Find("takeActions")), T + B - Wt);
    EXPECT_EQ(HorizDistance(Find("cancelAction")), T - 5 * B - Wc - Wt);
    EXPECT_EQ(HorizDistance(Find("actionDetails")), T - 11 * B - Wc - Wt - Wd);
    EXPECT_EQ(HorizDistance(Find("snoozeButton")), T + B - Ws);
    EXPECT_EQ(DimensionOf(Find("actiontitle"), XtNwidth), 500);

    Widget scrollbar = XtNameToWidget(Find("viewport"), "vertical");
    ASSERT_NE(scrollbar, nullptr);
    EXPECT_EQ(DimensionOf(Find("viewport"), XtNwidth), 485 + DimensionOf(scrollbar, XtNwidth));
    Widget snoozeScrollbar = XtNameToWidget(Find("snoozeViewport"), "vertical");
    ASSERT_NE(snoozeScrollbar, nullptr);
    EXPECT_EQ(DimensionOf(Find("snoozeViewport"), XtNwidth),
              400 + DimensionOf(snoozeScrollbar, XtNwidth));
}

// A translation that makes the labels wider than the text box widens the dialog to their sum.
TEST_F(ActionRequestDialogTest, LongTranslatedLabelsWidenTheDialog) {
    std::string const translation =
        "Take All Actions\tCarry out every one of the pending actions at once, without delay\n"
        "Cancel Actions\tCancel the chosen actions and never run them\n";
    FormatOverrideSet overrides(U8(translation));
    FormatOverrideScope scope(overrides, GlobalFormatOverrideContext());
    actions.push_back(PendingAction(1, "Install updates"));
    Show();
    EXPECT_EQ(LabelOf(Find("takeAllActions")),
              "Carry out every one of the pending actions at once, without delay");
    int const B = DimensionOf(Find("actiondesc"), XtNborderWidth);
    int const Wt = DimensionOf(Find("takeActions"), XtNwidth);
    int const Wc = DimensionOf(Find("cancelAction"), XtNwidth);
    int const Wd = DimensionOf(Find("actionDetails"), XtNwidth);
    int const Wa = DimensionOf(Find("takeAllActions"), XtNwidth);
    int const Ws = DimensionOf(Find("snoozeButton"), XtNwidth);
    int const T = Wa + Wc + Wt + Wd + 20 * B;
    ASSERT_GT(T, 500);
    EXPECT_EQ(DimensionOf(Find("actiontitle"), XtNwidth), T - B);
    EXPECT_EQ(DimensionOf(Find("actiondesc"), XtNwidth), T - B);
    Widget scrollbar = XtNameToWidget(Find("viewport"), "vertical");
    ASSERT_NE(scrollbar, nullptr);
    EXPECT_EQ(DimensionOf(Find("viewport"), XtNwidth),
              T - 15 - B + DimensionOf(scrollbar, XtNwidth));
    EXPECT_EQ(HorizDistance(Find("takeActions")), T + B - Wt);
    EXPECT_EQ(HorizDistance(Find("cancelAction")), T - 5 * B - Wc - Wt);
    EXPECT_EQ(HorizDistance(Find("actionDetails")), T - 11 * B - Wc - Wt - Wd);
    EXPECT_EQ(HorizDistance(Find("snoozeButton")), T + B - Ws);
    EXPECT_GE(DimensionOf(ActionRequestDialogShell(), XtNwidth), T);
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
        for (bool on :
             {SensitiveResource(Find("takeAllActions")), SensitiveResource(Find("takeActions")),
              SensitiveResource(Find("cancelAction")), SensitiveResource(Find("actionDetails")),
              MappedWhenManaged(Find("actionDetails")), SensitiveResource(Find("snoozeButton")),
              SensitiveResource(SnoozeList())})
            state += on ? '+' : '-';
        EXPECT_EQ(state, c.state);
        EXPECT_TRUE(SensitiveResource(ActionList()));
        EXPECT_EQ(
            (std::vector<std::string>{LabelOf(Find("takeActions")), LabelOf(Find("cancelAction")),
                                      LabelOf(Find("snoozeButton"))}),
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
        EXPECT_EQ(LabelOf(Find("actiontitle")), c.heading);
        HideActionRequestDialog();
    }
    actions = {PendingAction(1, "A"), PendingAction(2, "Reboot this machine")};
    Show();
    SelectRow(1);
    EXPECT_EQ(LabelOf(Find("actiontitle")), "Reboot this machine");
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
    EXPECT_EQ(LabelOf(Find("actiontitle")), "Gamma");
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
        EXPECT_EQ(TakeQueuedCommands(), c.expected);
        bool const queued = !c.expected.empty();
        EXPECT_EQ(IsActionRequestDialogEnabled(), !queued);
        EXPECT_TRUE(IsActionRequestDialogShown());
        if (queued) {
            for (char const* name :
                 {"takeAllActions", "actionDetails", "cancelAction", "takeActions", "snoozeButton"})
                EXPECT_FALSE(SensitiveResource(Find(name))) << name;
            EXPECT_FALSE(SensitiveResource(SnoozeList()));
            EXPECT_FALSE(SensitiveResource(ActionList()));
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
    EXPECT_EQ(TakeQueuedCommands(),
              (std::vector<QueuedCommand>{
                  {UICommandSnooze, 0, 5, static_cast<uint32_t>(deadlineSeconds)}}));

    Show();
    XawListHighlight(SnoozeList(), 0);
    XawListReturnStruct chosen{const_cast<char*>("15 minutes before deadline"), 0};
    XtCallCallbacks(SnoozeList(), XtNcallback, &chosen);
    Press("snoozeButton");
    EXPECT_FALSE(IsActionRequestDialogShown());
    EXPECT_EQ(TakeQueuedCommands(),
              (std::vector<QueuedCommand>{
                  {UICommandSnooze, 0, -15, static_cast<uint32_t>(deadlineSeconds)}}));
}

// With no deadline the earliest deadline is the largest instant; only the low 32 bits of its
// seconds travel in the command.
TEST_F(ActionRequestDialogTest, SnoozeWithoutDeadlineSendsTheLargestInstantsSeconds) {
    actions = {PendingAction(1, "A")};
    Show(TimeInterval(3600LL * 1000000));
    Press("snoozeButton");
    uint32_t const low = static_cast<uint32_t>(INT64_MAX / 1000000);
    EXPECT_EQ(TakeQueuedCommands(), (std::vector<QueuedCommand>{{UICommandSnooze, 0, 60, low}}));
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
    EXPECT_EQ(LabelOf(Find("snoozeButton")), "Close");
    EXPECT_TRUE(SensitiveResource(Find("snoozeButton")));
    EXPECT_EQ(LabelOf(Find("actiontitle")), "There are no pending actions.");
    EXPECT_EQ(Description(), "");
    EXPECT_EQ(HighlightedRow(ActionList()), XAW_LIST_NONE);
    Press("snoozeButton");
    EXPECT_FALSE(IsActionRequestDialogShown());
    EXPECT_EQ(TakeQueuedCommands(),
              (std::vector<QueuedCommand>{
                  {UICommandSnooze, 0, 5, static_cast<uint32_t>(INT64_MAX / 1000000)}}));
}

// The selection is a row index: when the row above goes, the same index names the next action.
TEST_F(ActionRequestDialogTest, SelectionStaysOnTheRowIndexWhenARowAboveGoes) {
    actions = {PendingAction(1, "A"), PendingAction(2, "B"), PendingAction(3, "C")};
    Show();
    SelectRow(1);
    EXPECT_EQ(LabelOf(Find("actiontitle")), "B");
    actions.erase(actions.begin());
    UpdateActionRequestDialog();
    EXPECT_EQ(HighlightedRow(ActionList()), 1);
    EXPECT_EQ(LabelOf(Find("actiontitle")), "C");
    Press("takeActions");
    EXPECT_EQ(TakeQueuedCommands(), (std::vector<QueuedCommand>{{UICommandTake, 3, 0, 0}}));
    actions.pop_back();
    EnableActionRequestDialog();
    EXPECT_EQ(HighlightedRow(ActionList()), XAW_LIST_NONE);
    EXPECT_EQ(LabelOf(Find("actiontitle")), "There is 1 pending action.");
    EXPECT_FALSE(SensitiveResource(Find("takeActions")));
}

// A disabled dialog shows what it showed; enabling catches up with the pending actions.
TEST_F(ActionRequestDialogTest, DisabledDialogIgnoresUpdatesUntilEnabled) {
    actions = {PendingAction(1, "A"), PendingAction(2, "B")};
    Show();
    DisableActionRequestDialog();
    actions.push_back(PendingAction(3, "C"));
    UpdateActionRequestDialog();
    EXPECT_EQ(RowsOf(ActionList()), (std::vector<std::string>{"A", "B"}));
    XawListHighlight(ActionList(), 0);
    XtCallActionProc(ActionList(), "PostponeListSelect", nullptr, nullptr, 0);
    EXPECT_EQ(LabelOf(Find("actiontitle")), "There are 2 pending actions.");
    XawListUnhighlight(ActionList());
    EnableActionRequestDialog();
    EXPECT_EQ(RowsOf(ActionList()), (std::vector<std::string>{"A", "B", "C"}));
    EXPECT_EQ(LabelOf(Find("actiontitle")), "There are 3 pending actions.");
    EXPECT_TRUE(SensitiveResource(Find("takeAllActions")));
    EXPECT_FALSE(SensitiveResource(Find("takeActions")));
    EXPECT_FALSE(SensitiveResource(Find("cancelAction")));
}

// A real press and release of the first button on the top row selects it through the list's
// translations.
TEST_F(ActionRequestDialogTest, AClickOnARowSelectsIt) {
    actions = {Cancellable(PendingAction(1, "Defragment")), PendingAction(2, "Other")};
    Show();
    Widget list = ActionList();
    for (int type : {ButtonPress, ButtonRelease}) {
        XEvent event;
        std::memset(&event, 0, sizeof event);
        event.xbutton.type = type;
        event.xbutton.display = display;
        event.xbutton.window = XtWindow(list);
        event.xbutton.root = DefaultRootWindow(display);
        event.xbutton.x = 5;
        event.xbutton.y = 5;
        event.xbutton.button = Button1;
        event.xbutton.state = type == ButtonRelease ? Button1Mask : 0;
        event.xbutton.same_screen = True;
        XSendEvent(display, XtWindow(list), False, NoEventMask, &event);
        toolkit->Settle();
    }
    EXPECT_EQ(HighlightedRow(list), 0);
    EXPECT_EQ(LabelOf(Find("actiontitle")), "Defragment");
    EXPECT_TRUE(SensitiveResource(Find("takeActions")));
    EXPECT_TRUE(SensitiveResource(Find("cancelAction")));
    EXPECT_EQ(LabelOf(Find("takeActions")), "Take Action");
}

// Showing a dialog that is up changes nothing, and before the display is open nothing shows.
TEST_F(ActionRequestDialogTest, ShowingTwiceKeepsTheTreeAndNoDisplayShowsNothing) {
    actions = {PendingAction(1, "A")};
    Show();
    Widget shell = ActionRequestDialogShell();
    ShowActionRequestDialog(false, fiveMinutes, false);
    EXPECT_EQ(ActionRequestDialogShell(), shell);
    EXPECT_TRUE(SensitiveResource(Find("snoozeButton"))) << "the second call's flag is ignored";
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
    auto end = agent.WaitForExit(20000);
    ASSERT_TRUE(end.has_value()) << "the process did not end";
    EXPECT_TRUE(end->exited) << "ended by signal " << end->status;
    EXPECT_EQ(end->status, 0);
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
        UseNewDisplay();
        actions = {PendingAction(1,
                                 "Gr\xC3\xB6\xC3\x9F"
                                 "e pr\xC3\xBC"
                                 "fen")};
        Show();
        EXPECT_EQ(RowsOf(ActionList()), std::vector<std::string>{c.row});
        SelectRow(0);
        EXPECT_EQ(LabelOf(Find("actiontitle")), c.row);
        for (char const* name :
             {"actiontitle", "actiondesc", "actionListLabel", "takeAllActions", "takeActions",
              "cancelAction", "actionDetails", "snoozeLabel", "snoozeButton"}) {
            Boolean multibyte = False;
            XtVaGetValues(Find(name), XtNinternational, &multibyte, nullptr);
            EXPECT_TRUE(multibyte) << name;
        }
        for (Widget list : {ActionList(), SnoozeList()}) {
            Boolean multibyte = False;
            XtVaGetValues(list, XtNinternational, &multibyte, nullptr);
            EXPECT_TRUE(multibyte);
        }
        SelectRow(XAW_LIST_NONE);
        HideActionRequestDialog();
        international = false;
        UseSuiteDisplay();
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
    EXPECT_EQ(TakeQueuedCommands(),
              (std::vector<QueuedCommand>{
                  {UICommandSnooze, 0, 5, static_cast<uint32_t>(INT64_MAX / 1000000)}}));
}
