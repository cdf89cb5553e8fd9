#include "dialogs/ActionRequestDialog.h"

#include <X11/Shell.h>
#include <X11/StringDefs.h>
#include <X11/Xatom.h>
#include <X11/Xaw/AsciiText.h>
#include <X11/Xaw/Command.h>
#include <X11/Xaw/Form.h>
#include <X11/Xaw/Label.h>
#include <X11/Xaw/List.h>
#include <X11/Xaw/Viewport.h>

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <memory>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "dialogs/DialogErrors.h"
#include "dialogs/ShownText.h"
#include "dialogs/XHelpers.h"
#include "localized/ActionSummary.h"
#include "localized/DeadlineText.h"
#include "localized/LocalizedStrings.h"
#include "localized/UFormat.h"
#include "session/DialogCalls.h"
#include "session/SessionCalls.h"

namespace {

unsigned const none = static_cast<unsigned>(-1);
char const* const dialogName = "ActionRequestDialog";

// The widgets of the tree, all null while the dialog is hidden.
struct DialogWidgets {
    Widget shell = nullptr;
    Widget form = nullptr;
    Widget actionTitle = nullptr;
    Widget actionDesc = nullptr;
    Widget actionListLabel = nullptr;
    Widget viewport = nullptr;
    Widget actionList = nullptr;
    Widget takeAllActions = nullptr;
    Widget takeActions = nullptr;
    Widget cancelAction = nullptr;
    Widget actionDetails = nullptr;
    Widget snoozeLabel = nullptr;
    Widget snoozeViewport = nullptr;
    Widget snoozeList = nullptr;
    Widget snoozeButton = nullptr;
};
DialogWidgets w;

// Text slots in the locale's encoding; a widget may show a slot's text for as long as the slot
// holds it, so they live as long as the process.
std::unique_ptr<std::string> m_titleSlot;
std::unique_ptr<std::string> m_takeAllSlot;
std::unique_ptr<std::string> m_detailsSlot;
std::unique_ptr<std::string> m_cancelSlot;
std::unique_ptr<std::string> m_takeSlot;
std::unique_ptr<std::string> m_listHeadingSlot;
std::unique_ptr<std::string> m_snoozeCaptionSlot;
std::unique_ptr<std::string> m_snoozeLabelSlot;
std::unique_ptr<std::string> m_actionTitleSlot;
std::unique_ptr<std::string> m_descriptionSlot;
// The XtMalloc copy last handed to the description box. The text widget copies the string it
// is given, so the previous copy is freed when the next one replaces it.
char* m_descriptionCopy = nullptr;

// The dialog's state, which outlives the tree.
std::vector<std::unique_ptr<char[]>> m_actionStrings;  // rows of the action list
std::vector<char const*> m_actionRows;                 // the same rows, as the list takes them
std::vector<unsigned long long> m_actionIDs;           // ID of the action in each row
unsigned m_actionCount = 0;                            // rows, not always the number of actions
unsigned m_selectedAction = none;
std::vector<std::pair<SharedUString<UTF8>, int>> m_snoozeChoices;  // text and minutes
std::vector<std::unique_ptr<char[]>> m_snoozeStrings;
std::vector<char const*> m_snoozeRows;
unsigned m_snoozeCount = 0;
unsigned m_selectedSnooze = none;
Instant m_earliestDeadline(0);
TimeInterval m_dialogRemindInterval(300000000);
bool m_snoozeAllowed = true;
bool m_snoozeEnabled = true;
bool m_cancelEnabled = true;
bool m_noSelection = true;
bool m_anySelection = false;
bool m_anyPreview = false;
bool m_anyDeadline = false;
bool m_dialogEnabled = false;

// How close a deadline may come before snoozing is taken away: five minutes.
TimeInterval const snoozeCutOff(300000000);

std::unique_ptr<char[]> CopyOf(char const* text) {
    std::size_t const length = std::strlen(text);
    std::unique_ptr<char[]> copy(new char[length + 1]);
    std::memcpy(copy.get(), text, length + 1);
    return copy;
}

// Disabling and enabling are meant for a dialog that is up; without a tree only the flag
// changes.
void SetSensitive(Widget widget, bool sensitive) {
    if (!widget) return;
    Arg argument;
    SetArg(argument, XtNsensitive, static_cast<Boolean>(sensitive));
    XtSetValues(widget, &argument, 1);
}

void SetLabel(Widget widget, std::unique_ptr<std::string>& slot, AutoUString<UTF8> const& text) {
    slot = ControlLiteral(MakeLocalString(text));
    Arg argument;
    SetArg(argument, XtNlabel, slot->c_str());
    XtSetValues(widget, &argument, 1);
}

void SetActionTitleText(AutoUString<UTF8> const& text) {
    SetLabel(w.actionTitle, m_actionTitleSlot, text);
}
// The label over the description, made from the selected action's title: shown, never refused,
// and cut to what a label can draw.
void SetShownActionTitleText(AutoUString<UTF8> const& text) {
    m_actionTitleSlot = std::make_unique<std::string>(ShortShownText(text));
    Arg argument;
    SetArg(argument, XtNlabel, m_actionTitleSlot->c_str());
    XtSetValues(w.actionTitle, &argument, 1);
}
void SetSnoozeButtonText(AutoUString<UTF8> const& text) {
    SetLabel(w.snoozeButton, m_snoozeLabelSlot, text);
}
void SetTakeText(AutoUString<UTF8> const& text) {
    SetLabel(w.takeActions, m_takeSlot, text);
}
void SetCancelText(AutoUString<UTF8> const& text) {
    SetLabel(w.cancelAction, m_cancelSlot, text);
}
// The description holds the agent's text and the summary sentences around it: shown, never
// refused.
void SetDescriptionText(AutoUString<UTF8> const& text) {
    m_descriptionSlot = std::make_unique<std::string>(ShownText(text));
    char* copy = TextWidgetString(*m_descriptionSlot);
    Arg argument;
    SetArg(argument, XtNstring, copy);
    XtSetValues(w.actionDesc, &argument, 1);
    XtFree(m_descriptionCopy);
    m_descriptionCopy = copy;
}

AutoUString<UTF8> Literal(char const* text) {
    return MakeUString(UFormat(text));
}

ActionRequest const* FindAction(unsigned long long id) {
    for (ActionRequest const& action : actions)
        if (action.m_id == id) return &action;
    return nullptr;
}

void RefreshActionList() {
    XtUnmanageChild(w.actionList);
    std::vector<std::unique_ptr<char[]>> strings;
    std::vector<unsigned long long> ids;
    strings.reserve(actions.size());
    ids.reserve(actions.size());
    for (ActionRequest const& action : actions) {
        // An action without a title has no row; it still counts wherever actions are walked.
        if (action.m_title.Length() == 0) continue;
        AutoNullTerminated<char> deadlineText = MakeLocalString(UFormat(""));
        NullOr<Instant> const deadline = action.Deadline();
        if (deadline) deadlineText = MakeLocalString(UnixPlatform::FormattedLocalTime(*deadline));
        std::string tail;
        if (*deadlineText.pointer) {
            tail = "  --  ";
            tail += deadlineText.pointer;
        }
        // The title is shown whatever it holds, so that every action with a title has its row,
        // and it is cut so that the whole row, deadline included, stays within what one row
        // draws: a row of the whole title could pass the size limit of an X request.
        std::size_t const tailCharacters = LocalCharacterCount(tail);
        std::size_t const titleCharacters =
            tailCharacters < maxShownCharacters ? maxShownCharacters - tailCharacters : 0;
        std::string const row = ShortShownText(action.m_title, titleCharacters) + tail;
        strings.push_back(CopyOf(row.c_str()));
        ids.push_back(action.m_id);
    }
    std::vector<char const*> rows;
    for (auto const& text : strings) rows.push_back(text.get());
    m_actionCount = static_cast<unsigned>(rows.size());
    if (rows.empty()) {
        XawListChange(w.actionList, nullptr, 0, 0, True);
    } else {
        XawListChange(w.actionList, rows.data(), static_cast<int>(rows.size()), 0, True);
    }
    // The old rows go only now that the list no longer points at them.
    m_actionStrings = std::move(strings);
    m_actionRows = std::move(rows);
    m_actionIDs = std::move(ids);
    XtManageChild(w.actionList);
}

// The selection is a row index, not an ID: when a row above it goes, the same index names the
// next action. Deliberately so.
void RestoreActionHighlight() {
    if (m_selectedAction >= m_actionCount) {
        m_selectedAction = none;
        return;
    }
    XawListHighlight(w.actionList, static_cast<int>(m_selectedAction));
    ScrollSelectedItemIntoView(w.viewport, w.actionList);
}

void ShowPendingCount() {
    if (m_selectedAction != none) {
        SetActionTitleText(Literal("1 action selected"));
    } else if (m_actionCount == 0) {
        SetActionTitleText(Literal("There are no pending actions."));
    } else if (m_actionCount == 1) {
        SetActionTitleText(Literal("There is 1 pending action."));
    } else {
        AutoUString<UTF8> const count = UnixPlatform::FormattedNumber(m_actionCount);
        SetActionTitleText(
            MakeUString(UFormat("There are {x} pending actions.").With(UStringRef<UTF8>(count))));
    }
}

// Returns |interval - minutes|, in microseconds, as far as a signed 64-bit value reaches.
std::int64_t SnoozeDistance(TimeInterval interval, int minutes) {
    __int128 difference =
        static_cast<__int128>(interval.Microseconds()) - static_cast<__int128>(minutes) * 60000000;
    if (difference < 0) difference = -difference;
    __int128 const largest = std::numeric_limits<std::int64_t>::max();
    return static_cast<std::int64_t>(difference > largest ? largest : difference);
}

void RebuildSnoozeList() {
    struct Choice {
        char const* text;
        int minutes;
    };
    static Choice const beforeDeadline[] = {{"15 minutes before deadline", -15},
                                            {"5 minutes before deadline", -5}};
    static Choice const always[] = {
        {"in 1 minute", 1},    {"in 5 minutes", 5},   {"in 10 minutes", 10}, {"in 15 minutes", 15},
        {"in 30 minutes", 30}, {"in 45 minutes", 45}, {"in 1 hour", 60},     {"in 2 hours", 120},
        {"in 4 hours", 240},   {"in 6 hours", 360},   {"in 8 hours", 480},   {"in 16 hours", 960},
        {"in 1 day", 1440},    {"in 2 days", 2880},   {"in 3 days", 4320},   {"in 4 days", 5760},
        {"in 5 days", 7200}};
    m_snoozeChoices.clear();
    if (m_anyDeadline)
        for (Choice const& choice : beforeDeadline)
            m_snoozeChoices.emplace_back(SharedUString<UTF8>(Literal(choice.text)), choice.minutes);
    for (Choice const& choice : always)
        m_snoozeChoices.emplace_back(SharedUString<UTF8>(Literal(choice.text)), choice.minutes);

    // Walk down while each next row is strictly nearer the remind interval; on a tie the upper
    // row stays.
    unsigned row = 0;
    std::int64_t distance = SnoozeDistance(m_dialogRemindInterval, m_snoozeChoices[0].second);
    if (distance != std::numeric_limits<std::int64_t>::max()) {
        while (row + 1 < m_snoozeChoices.size()) {
            std::int64_t const next =
                SnoozeDistance(m_dialogRemindInterval, m_snoozeChoices[row + 1].second);
            if (!(next < distance)) break;
            distance = next;
            ++row;
        }
    }
    m_selectedSnooze = row;

    XtUnmanageChild(w.snoozeList);
    std::vector<std::unique_ptr<char[]>> strings;
    std::vector<char const*> rows;
    for (auto const& choice : m_snoozeChoices) {
        AutoNullTerminated<char> const local = MakeLocalString(choice.first);
        strings.push_back(CopyOf(local.pointer));
        rows.push_back(strings.back().get());
    }
    m_snoozeCount = static_cast<unsigned>(rows.size());
    XawListChange(w.snoozeList, rows.data(), static_cast<int>(rows.size()), 0, True);
    m_snoozeStrings = std::move(strings);
    m_snoozeRows = std::move(rows);
    XtManageChild(w.snoozeList);
    XawListHighlight(w.snoozeList, static_cast<int>(m_selectedSnooze));
    ScrollSelectedItemIntoView(w.snoozeViewport, w.snoozeList);
}

void RefreshActionControls() {
    if (actions.empty()) {
        SetSnoozeButtonText(Literal("Close"));
        SetSensitive(w.snoozeButton, true);
        SetSensitive(w.snoozeList, false);
        SetCancelText(Literal("Cancel Action"));
        SetSensitive(w.cancelAction, false);
        SetSensitive(w.actionDetails, false);
        XtVaSetValues(w.actionDetails, XtNmappedWhenManaged, False, nullptr);
        SetSensitive(w.takeAllActions, false);
        SetTakeText(Literal("Take Action"));
        SetSensitive(w.takeActions, false);
        ShowPendingCount();
        SetDescriptionText(Literal(""));
        return;
    }

    SetSnoozeButtonText(Literal("Snooze"));
    SetSensitive(w.takeAllActions, true);
    m_snoozeEnabled = m_snoozeAllowed;
    m_cancelEnabled = true;
    m_anyPreview = false;
    m_anySelection = m_selectedAction != none;
    m_noSelection = !m_anySelection;
    Instant const now = Instant::Now();
    if (m_anySelection) {
        // An ID that has gone meanwhile is passed over here; the description below reports it.
        ActionRequest const* selected = FindAction(m_actionIDs[m_selectedAction]);
        if (selected && !selected->m_cancellable) m_cancelEnabled = false;
    }
    m_anyDeadline = false;
    m_earliestDeadline = Instant(std::numeric_limits<std::int64_t>::max());
    Instant const soon = now + snoozeCutOff;
    for (ActionRequest const& action : actions) {
        NullOr<Instant> const deadline = action.Deadline();
        if (deadline) {
            m_anyDeadline = true;
            if (*deadline < m_earliestDeadline) m_earliestDeadline = *deadline;
            // One deadline near enough takes snoozing away for every action.
            if (soon > *deadline) m_snoozeEnabled = false;
        }
        if (action.m_preview) m_anyPreview = true;
    }
    XtVaSetValues(w.actionDetails, XtNmappedWhenManaged, static_cast<Boolean>(m_anyPreview),
                  nullptr);

    if (m_anySelection) {
        SetTakeText(Literal("Take Action"));
        SetCancelText(Literal("Cancel Action"));
        ActionRequest const* selected = FindAction(m_actionIDs[m_selectedAction]);
        if (!selected) throw NoSelectedAction();
        SetShownActionTitleText(
            MakeUString(UFormat("{actionTitle}").With(UStringRef<UTF8>(selected->m_title))));
        AutoUString<UTF8> const summary = ActionSummary(*selected);
        SetDescriptionText(MakeUString(UFormat("{actionDescription}\n\n{actionSummary}")
                                           .With(UStringRef<UTF8>(selected->m_shortDescription))
                                           .With(UStringRef<UTF8>(summary))));
        SetSensitive(w.actionDetails, !selected->m_preview.IsNull());
    } else {
        SetSensitive(w.actionDetails, false);
        SetTakeText(Literal("Take Actions"));
        SetCancelText(Literal("Cancel Actions"));
        ShowPendingCount();
        ActionRequestStore store;
        store.UpdateActions(actions);
        std::set<unsigned long long> ids;
        for (ActionRequest const& action : actions) ids.insert(action.m_id);
        SetDescriptionText(ActionSummary(ids, store, true));
    }
    SetSensitive(w.takeActions, !m_noSelection);
    SetSensitive(w.snoozeButton, m_snoozeEnabled);
    SetSensitive(w.snoozeList, m_snoozeEnabled);
    SetSensitive(w.cancelAction, m_cancelEnabled && !m_noSelection);
    // A list that may not be used keeps what it last held, and the choice with it.
    if (m_snoozeEnabled) RebuildSnoozeList();
}

// Returns the ID of the selected row, or nothing when no row is selected.
bool SelectedID(unsigned long long& id) {
    if (m_selectedAction == none || m_selectedAction >= m_actionIDs.size()) return false;
    id = m_actionIDs[m_selectedAction];
    return true;
}

void OnTakeAll(Widget, XtPointer, XtPointer) {
    DisableActionRequestDialog();
    QueueCommand(UICommandTakeAll, 0, 0, 0);
}

void QueueForSelection(UICommandType command) {
    unsigned long long id = 0;
    if (!SelectedID(id)) return;
    DisableActionRequestDialog();
    QueueCommand(command, id, 0, 0);
}

void OnTake(Widget, XtPointer, XtPointer) {
    QueueForSelection(UICommandTake);
}
void OnCancel(Widget, XtPointer, XtPointer) {
    QueueForSelection(UICommandCancel);
}
void OnDetails(Widget, XtPointer, XtPointer) {
    QueueForSelection(UICommandShowDetails);
}

// With a highlighted row the dialog goes and the choice is queued; with no action left the
// button reads "Close" and closes the dialog, highlighted row or not.
void OnSnooze(Widget, XtPointer, XtPointer) {
    if (m_selectedSnooze != none && m_selectedSnooze < m_snoozeChoices.size()) {
        HideActionRequestDialog();
        long const minutes = m_snoozeChoices[m_selectedSnooze].second;
        long long const seconds = m_earliestDeadline.Microseconds() / 1000000;
        QueueCommand(UICommandSnooze, 0, minutes, seconds);
    }
    if (actions.empty()) HideActionRequestDialog();
}

void OnSnoozeListSelect(Widget, XtPointer, XtPointer callData) {
    auto const* chosen = static_cast<XawListReturnStruct*>(callData);
    m_selectedSnooze = static_cast<unsigned>(chosen->list_index);
}

// Every widget but the form and the viewports takes the session's multibyte flag.
void AddInternational(Arg* arguments, Cardinal& count) {
    SetArg(arguments[count], XtNinternational, static_cast<Boolean>(international));
    ++count;
}

Dimension WidthOf(Widget widget) {
    Dimension width = 0;
    XtVaGetValues(widget, XtNwidth, &width, nullptr);
    return width;
}

void SetHorizDistance(Widget widget, int distance) {
    Arg argument;
    SetArg(argument, XtNhorizDistance, distance);
    XtSetValues(widget, &argument, 1);
}

Widget MakeButton(char const* name, std::string const& label, Widget above,
                  XtCallbackProc callback) {
    Arg arguments[3];
    Cardinal count = 0;
    SetArg(arguments[count], XtNlabel, label.c_str());
    ++count;
    SetArg(arguments[count], XtNfromVert, above);
    ++count;
    AddInternational(arguments, count);
    Widget button = XtCreateManagedWidget(name, commandWidgetClass, w.form, arguments, count);
    XtAddCallback(button, XtNcallback, callback, nullptr);
    return button;
}

Widget MakeList(Widget viewport) {
    Arg arguments[4];
    Cardinal count = 0;
    SetArg(arguments[count], XtNdefaultColumns, 1);
    ++count;
    SetArg(arguments[count], XtNforceColumns, True);
    ++count;
    SetArg(arguments[count], XtNverticalList, True);
    ++count;
    AddInternational(arguments, count);
    return XtCreateManagedWidget("", listWidgetClass, viewport, arguments, count);
}

Widget MakeViewport(char const* name, Widget above, Dimension width, Dimension height) {
    Arg arguments[5];
    Cardinal count = 0;
    SetArg(arguments[count], XtNfromVert, above);
    ++count;
    SetArg(arguments[count], XtNheight, height);
    ++count;
    SetArg(arguments[count], XtNwidth, width);
    ++count;
    SetArg(arguments[count], XtNallowVert, True);
    ++count;
    SetArg(arguments[count], XtNforceBars, True);
    ++count;
    return XtCreateManagedWidget(name, viewportWidgetClass, w.form, arguments, count);
}

// Widens the viewport by its vertical scrollbar, so that the list keeps its nominal width.
void GrowByScrollbar(Widget viewport) {
    Widget scrollbar = XtNameToWidget(viewport, "vertical");
    if (!scrollbar) return;
    Dimension const width = static_cast<Dimension>(WidthOf(scrollbar) + WidthOf(viewport));
    XtUnmanageChild(viewport);
    XtVaSetValues(viewport, XtNwidth, width, nullptr);
    XtManageChild(viewport);
}

void PrepareScrolling(Widget viewport, Widget list) {
    if (Widget scrollbar = XtNameToWidget(viewport, "vertical"))
        OverrideScrollbarTranslations(scrollbar);
    ScrollSelectedItemIntoView(viewport, list);
}

void BuildTree() {
    m_titleSlot = ControlLiteral(LocalizedStrings::ActionRequestTitle());
    m_takeAllSlot = ControlLiteral(LocalizedStrings::TakeAllActions());
    m_detailsSlot = ControlLiteral(LocalizedStrings::ActionHistoryTitle());
    m_cancelSlot = ControlLiteral("Cancel Actions");
    m_takeSlot = ControlLiteral("Take Actions");
    // Three texts, so that each can be translated alone.
    m_listHeadingSlot = ControlLiteral("Title");
    *m_listHeadingSlot += *ControlLiteral("  --  ");
    *m_listHeadingSlot += *ControlLiteral("Deadline");
    m_snoozeCaptionSlot = ControlLiteral(LocalizedStrings::SnoozeCaption());
    m_snoozeLabelSlot = ControlLiteral("Snooze");

    Arg arguments[10];
    Cardinal count = 0;
    SetArg(arguments[count], XtNtitle, m_titleSlot->c_str());
    ++count;
    AddInternational(arguments, count);
    w.shell =
        XtAppCreateShell(nullptr, nullptr, applicationShellWidgetClass, display, arguments, count);

    w.form = XtCreateManagedWidget("form", formWidgetClass, w.shell, nullptr, 0);

    count = 0;
    SetArg(arguments[count], XtNwidth, 500);
    ++count;
    SetArg(arguments[count], XtNborderWidth, 0);
    ++count;
    SetArg(arguments[count], XtNjustify, XtJustifyLeft);
    ++count;
    AddInternational(arguments, count);
    w.actionTitle =
        XtCreateManagedWidget("actiontitle", labelWidgetClass, w.form, arguments, count);

    count = 0;
    AddReadOnlyTextArguments(arguments, count, 500, 70);
    SetArg(arguments[count], XtNfromVert, w.actionTitle);
    ++count;
    AddInternational(arguments, count);
    w.actionDesc =
        XtCreateManagedWidget("actiondesc", asciiTextWidgetClass, w.form, arguments, count);

    count = 0;
    SetArg(arguments[count], XtNborderWidth, 0);
    ++count;
    SetArg(arguments[count], XtNfromVert, w.actionDesc);
    ++count;
    SetArg(arguments[count], XtNvertDistance, 10);
    ++count;
    SetArg(arguments[count], XtNlabel, m_listHeadingSlot->c_str());
    ++count;
    AddInternational(arguments, count);
    w.actionListLabel =
        XtCreateManagedWidget("actionListLabel", labelWidgetClass, w.form, arguments, count);

    w.viewport = MakeViewport("viewport", w.actionListLabel, 485, 100);
    w.actionList = MakeList(w.viewport);
    static XtActionsRec listActions[] = {
        {const_cast<char*>("PostponeListSelect"), PostponeListSelect},
        {const_cast<char*>("Nothing"), nullptr}};
    XtAppAddActions(app_context, listActions, XtNumber(listActions));
    XtOverrideTranslations(w.actionList,
                           XtParseTranslationTable("<Btn1Up>: Notify() PostponeListSelect()\n"));

    Dimension const border = [] {
        Dimension value = 0;
        XtVaGetValues(w.actionDesc, XtNborderWidth, &value, nullptr);
        return value;
    }();
    int const B = border;
    int T = WidthOf(w.actionDesc);

    w.takeAllActions = MakeButton("takeAllActions", *m_takeAllSlot, w.viewport, OnTakeAll);
    w.takeActions = MakeButton("takeActions", *m_takeSlot, w.viewport, OnTake);
    w.cancelAction = MakeButton("cancelAction", *m_cancelSlot, w.viewport, OnCancel);
    w.actionDetails = MakeButton("actionDetails", *m_detailsSlot, w.viewport, OnDetails);
    int const Wt = WidthOf(w.takeActions);
    int const Wc = WidthOf(w.cancelAction);
    int const Wd = WidthOf(w.actionDetails);
    int const Wa = WidthOf(w.takeAllActions);

    // Translated labels can be wider than the text box: the dialog then grows to suit them.
    int const needed = Wa + Wc + Wt + Wd + 20 * B;
    bool const grown = needed > T;
    if (grown) {
        T = static_cast<std::uint16_t>(needed);
        XtVaSetValues(w.actionTitle, XtNwidth, static_cast<Dimension>(T - B), nullptr);
        XtVaSetValues(w.actionDesc, XtNwidth, static_cast<Dimension>(T - B), nullptr);
        XtVaSetValues(w.viewport, XtNwidth, static_cast<Dimension>(T - 15 - B), nullptr);
    }
    // The three row buttons stand right-aligned on the text box, from right to left.
    SetHorizDistance(w.takeActions, T + B - Wt);
    SetHorizDistance(w.cancelAction, T - 5 * B - Wc - Wt);
    SetHorizDistance(w.actionDetails, T - 11 * B - Wc - Wt - Wd);
    if (grown) XawFormDoLayout(w.form, True);

    count = 0;
    SetArg(arguments[count], XtNborderWidth, 0);
    ++count;
    SetArg(arguments[count], XtNfromVert, w.takeAllActions);
    ++count;
    SetArg(arguments[count], XtNlabel, m_snoozeCaptionSlot->c_str());
    ++count;
    AddInternational(arguments, count);
    w.snoozeLabel =
        XtCreateManagedWidget("snoozeLabel", labelWidgetClass, w.form, arguments, count);

    w.snoozeViewport = MakeViewport("snoozeViewport", w.snoozeLabel, 400, 40);
    w.snoozeList = MakeList(w.snoozeViewport);
    XtAddCallback(w.snoozeList, XtNcallback, OnSnoozeListSelect, nullptr);

    w.snoozeButton = MakeButton("snoozeButton", *m_snoozeLabelSlot, w.snoozeLabel, OnSnooze);
    SetHorizDistance(w.snoozeButton, T + B - WidthOf(w.snoozeButton));

    XtRealizeWidget(w.shell);
    GrowByScrollbar(w.viewport);
    GrowByScrollbar(w.snoozeViewport);
    CenterDialogOnDisplay(w.shell);
    DeclareDeleteWindow(w.shell);
    PrepareScrolling(w.viewport, w.actionList);
    PrepareScrolling(w.snoozeViewport, w.snoozeList);
    OverrideTextScrollbarTranslations(w.actionDesc);
    m_dialogEnabled = true;
}

// The seven controls that are disabled and enabled together.
Widget* const controls[] = {&w.takeAllActions, &w.actionDetails, &w.cancelAction, &w.takeActions,
                            &w.snoozeButton,   &w.snoozeList,    &w.actionList};

}  // namespace

void ShowActionRequestDialog(bool, TimeInterval const& remindInterval, bool snoozable) {
    // Before the display is open there is nothing to show; the actions wait in the session.
    if (w.shell || !display) return;
    m_snoozeAllowed = snoozable;
    m_snoozeEnabled = snoozable;
    m_dialogRemindInterval = remindInterval;
    try {
        BuildTree();
    } catch (...) {
        // In practice a text the locale cannot express. The agent is told, and the process
        // ends: no half-built dialog stays.
        ReportDialogBuildFailure(dialogName);
    }
    UpdateActionRequestDialog();
}

void HideActionRequestDialog() {
    if (!w.shell) return;
    XtDestroyWidget(w.shell);
    w = DialogWidgets();
}

bool IsActionRequestDialogShown() {
    return w.shell != nullptr;
}

bool IsActionRequestDialogEnabled() {
    return m_dialogEnabled;
}

Widget ActionRequestDialogShell() {
    return w.shell;
}

void DisableActionRequestDialog() {
    for (Widget* control : controls) SetSensitive(*control, false);
    m_dialogEnabled = false;
}

void EnableActionRequestDialog() {
    for (Widget* control : controls) SetSensitive(*control, true);
    m_dialogEnabled = true;
    UpdateActionRequestDialog();
}

void UpdateActionRequestDialog() {
    if (!w.shell || !m_dialogEnabled) return;
    RefreshActionList();
    RestoreActionHighlight();
    RefreshActionControls();
}

void PostponeListSelect(Widget list, XEvent*, String*, Cardinal*) {
    if (!m_dialogEnabled) return;
    m_selectedAction = none;
    if (XawListReturnStruct* current = XawListShowCurrent(list)) {
        if (current->list_index != XAW_LIST_NONE)
            m_selectedAction = static_cast<unsigned>(current->list_index);
        XtFree(reinterpret_cast<char*>(current));
    }
    RestoreActionHighlight();
    RefreshActionControls();
}
