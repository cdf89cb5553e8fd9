#include "localized/ActionSummary.h"

#include <cstddef>
#include <vector>

#include "localized/DeadlineText.h"
#include "localized/UFormat.h"
#include "text/bytes/ConstData.h"

namespace {

// The texts by number. 0 is the empty text; the others are keys and default formats.
char const* const singleTexts[] = {
    "",
    "You should save your work before taking this action.",
    "You must take this action within {DeadlineText}.",
    "You should save your work before taking this action.  You must take this action within "
    "{DeadlineText}.",
    "This action will require a system restart.",
    "You should save your work before taking this action, as it will require a system restart.",
    "This action will require a system restart.  You must take this action within {DeadlineText}.",
    "You should save your work before taking this action, as it will require a system restart.  "
    "You must take this action within {DeadlineText}.",
    "This action will require a system shutdown.",
    "You should save your work before taking this action, as it will require a system shutdown.",
    "This action will require a system shutdown.  You must take this action within {DeadlineText}.",
    "You should save your work before taking this action, as it will require a system shutdown.  "
    "You must take this action within {DeadlineText}.",
    "You must take this action now.",
    "You should save your work before taking this action.  You must take this action now.",
    "This action will require a system restart.  You must take this action now.",
    "You should save your work before taking this action, as it will require a system restart.  "
    "You must take this action now.",
    "This action will require a system shutdown.  You must take this action now.",
    "You should save your work before taking this action, as it will require a system shutdown.  "
    "You must take this action now.",
    "This action will run automatically in {DeadlineText}.",
    "You should save your work before taking this action.  This action will run automatically in "
    "{DeadlineText}.",
    "This action will require a system restart.  This action will run automatically in "
    "{DeadlineText}.",
    "You should save your work before taking this action, as it will require a system restart.  "
    "This action will run automatically in {DeadlineText}.",
    "This action will require a system shutdown.  This action will run automatically in "
    "{DeadlineText}.",
    "You should save your work before taking this action, as it will require a system shutdown.  "
    "This action will run automatically in {DeadlineText}.",
};

// 1 to 23 speak of the selected actions, 24 to 46 of all pending ones.
char const* const severalTexts[] = {
    "",
    "You should save your work before taking the selected actions.",
    "There is at least one selected action you must take within {DeadlineText}.",
    "You should save your work before taking the selected actions.  There is at least one selected "
    "action you must take within {DeadlineText}.",
    "The selected actions will require a system restart when they are complete.",
    "You should save your work before taking the selected actions, as they will require a system "
    "restart when they are complete.",
    "The selected actions will require a system restart when they are complete.  There is at least "
    "one selected action you must take within {DeadlineText}.",
    "You should save your work before taking the selected actions, as they will require a system "
    "restart when they are complete.  There is at least one selected action you must take within "
    "{DeadlineText}.",
    "The selected actions will require a system shutdown when they are complete.",
    "You should save your work before taking the selected actions, as they will require a system "
    "shutdown when they are complete.",
    "The selected actions will require a system shutdown when they are complete.  There is at "
    "least one selected action you must take within {DeadlineText}.",
    "You should save your work before taking the selected actions, as they will require a system "
    "shutdown when they are complete.  There is at least one selected action you must take within "
    "{DeadlineText}.",
    "There is at least one selected action you must take now.",
    "You should save your work before taking the selected actions.  There is at least one selected "
    "action you must take now.",
    "The selected actions will require a system restart when they are complete.  There is at least "
    "one selected action you must take now.",
    "You should save your work before taking the selected actions, as they will require a system "
    "restart when they are complete.  There is at least one selected action you must take now.",
    "The selected actions will require a system shutdown when they are complete.  There is at "
    "least one selected action you must take now.",
    "You should save your work before taking the selected actions, as they will require a system "
    "shutdown when they are complete.  There is at least one selected action you must take now.",
    "At least one of the selected actions will run automatically in {DeadlineText}.",
    "You should save your work before taking the selected actions.  At least one of the selected "
    "actions will run automatically in {DeadlineText}.",
    "The selected actions will require a system restart when they are complete.  At least one of "
    "the selected actions will run automatically in {DeadlineText}.",
    "You should save your work before taking the selected actions, as they will require a system "
    "restart when they are complete.  At least one of the selected actions will run automatically "
    "in {DeadlineText}.",
    "The selected actions will require a system shutdown when they are complete.  At least one of "
    "the selected actions will run automatically in {DeadlineText}.",
    "You should save your work before taking the selected actions, as they will require a system "
    "shutdown when they are complete.  At least one of the selected actions will run automatically "
    "in {DeadlineText}.",
    "You should save your work before taking these actions.",
    "There is at least one action you must take within {DeadlineText}.",
    "You should save your work before taking these actions.  There is at least one action you must "
    "take within {DeadlineText}.",
    "The pending actions will require a system restart when they are complete.",
    "You should save your work before taking these actions, as they will require a system restart "
    "when they are complete.",
    "The pending actions will require a system restart when they are complete.  There is at least "
    "one action you must take within {DeadlineText}.",
    "You should save your work before taking these actions, as they will require a system restart "
    "when they are complete.  There is at least one action you must take within {DeadlineText}.",
    "The pending actions will require a system shutdown when they are complete.",
    "You should save your work before taking these actions, as they will require a system shutdown "
    "when they are complete.",
    "The pending actions will require a system shutdown when they are complete.  There is at least "
    "one action you must take within {DeadlineText}.",
    "You should save your work before taking these actions, as they will require a system shutdown "
    "when they are complete.  There is at least one action you must take within {DeadlineText}.",
    "There is at least one action you must take now.",
    "You should save your work before taking these actions.  There is at least one action you must "
    "take now.",
    "The pending actions will require a system restart when they are complete.  There is at least "
    "one action you must take now.",
    "You should save your work before taking these actions, as they will require a system restart "
    "when they are complete.  There is at least one action you must take now.",
    "The pending actions will require a system shutdown when they are complete.  There is at least "
    "one action you must take now.",
    "You should save your work before taking these actions, as they will require a system shutdown "
    "when they are complete.  There is at least one action you must take now.",
    "At least one of these actions will run automatically in {DeadlineText}.",
    "You should save your work before taking these actions.  At least one of these actions will "
    "run automatically in {DeadlineText}.",
    "The pending actions will require a system restart when they are complete.  At least one of "
    "these actions will run automatically in {DeadlineText}.",
    "You should save your work before taking these actions, as they will require a system restart "
    "when they are complete.  At least one of these actions will run automatically in "
    "{DeadlineText}.",
    "The pending actions will require a system shutdown when they are complete.  At least one of "
    "these actions will run automatically in {DeadlineText}.",
    "You should save your work before taking these actions, as they will require a system shutdown "
    "when they are complete.  At least one of these actions will run automatically in "
    "{DeadlineText}.",
};

// The text numbers by kind of action and by deadline state. Rows: neither restart nor shutdown,
// restart, shutdown; each without and with RequestSave. Columns: no deadline; a deadline, not
// soon and not forced ("within"); soon and not forced ("now"); forced ("automatic").
unsigned char const selectedNumbers[6][4] = {
    {0, 2, 12, 18}, {1, 3, 13, 19},  {4, 6, 14, 20},
    {5, 7, 15, 21}, {8, 10, 16, 22}, {9, 11, 17, 23},
};
unsigned char const pendingNumbers[6][4] = {
    {0, 25, 35, 41},  {24, 26, 36, 42}, {27, 29, 37, 43},
    {28, 30, 38, 44}, {31, 33, 39, 45}, {32, 34, 40, 46},
};

unsigned DeadlineColumn(unsigned state) {
    if (!(state & SummaryHasDeadline)) return 0;
    if (state & SummaryForceRun) return 3;
    if (state & SummarySoon) return 2;
    return 1;
}

// Returns the row of the number tables; bothMeansRestart says which way a state with both
// Restart and Shutdown goes.
unsigned KindRow(unsigned state, bool bothMeansRestart) {
    bool const restart = state & SummaryRestart;
    bool const shutdown = state & SummaryShutdown;
    unsigned kind = 0;
    if (restart && shutdown) {
        kind = bothMeansRestart ? 1 : 2;
    } else if (restart) {
        kind = 1;
    } else if (shutdown) {
        kind = 2;
    }
    return kind * 2 + ((state & SummaryRequestSave) ? 1 : 0);
}

struct SummaryEntry {
    FormatPlusArguments<0u> text;
    bool usesDeadlineText;
};

// A text table and its selection table, made once.
struct SummaryTable {
    std::vector<SummaryEntry> entries;
    std::vector<unsigned char> selection;

    template <std::size_t Count>
    explicit SummaryTable(char const* const (&texts)[Count]) {
        entries.reserve(Count);
        UStringRef<UTF8> const deadlineVariable = EncodingCast<UStringRef<UTF8> >("{DeadlineText}");
        for (std::size_t i = 0; i < Count; ++i) {
            UStringRef<UTF8> const text = EncodingCast<UStringRef<UTF8> >(texts[i]);
            if (i == 0) {
                entries.push_back(
                    {FormatPlusArguments<0u>(UStringRef<UTF8>(), UStringRef<UTF8>()), false});
                continue;
            }
            bool const usesDeadline =
                ConstData(text.begin, text.end)
                    .Contains(ConstData(deadlineVariable.begin, deadlineVariable.end));
            entries.push_back({UFormat(text, text), usesDeadline});
        }
    }

    AutoUString<UTF8> Render(unsigned row, Instant deadline, bool forceRun) const {
        SummaryEntry const& entry = entries[selection[row]];
        if (!entry.usesDeadlineText) return MakeUString(entry.text);
        AutoUString<UTF8> const deadlineText =
            FormattedDeadline(deadline, Instant::Now(), forceRun, false);
        return MakeUString(entry.text.With(deadlineText));
    }
};

SummaryTable const& SingleTable() {
    static SummaryTable const table = [] {
        SummaryTable made(singleTexts);
        for (unsigned state = 0; state < 64; ++state) {
            made.selection.push_back(selectedNumbers[KindRow(state, true)][DeadlineColumn(state)]);
        }
        return made;
    }();
    return table;
}

SummaryTable const& SeveralTable() {
    static SummaryTable const table = [] {
        SummaryTable made(severalTexts);
        for (unsigned row = 0; row < 2 * summaryAllPendingRows; ++row) {
            unsigned const state = row % summaryAllPendingRows;
            auto const& numbers = row < summaryAllPendingRows ? selectedNumbers : pendingNumbers;
            made.selection.push_back(numbers[KindRow(state, false)][DeadlineColumn(state)]);
        }
        return made;
    }();
    return table;
}

}  // namespace

bool SummaryDeadlineIsSoon(Instant deadline, Instant now) {
    return deadline < now + TimeInterval(300000000);
}

unsigned PackSummaryState(bool requestSave, bool hasDeadline, bool restart, bool shutdown,
                          bool soon, bool forceRun) {
    return (requestSave ? SummaryRequestSave : 0u) | (hasDeadline ? SummaryHasDeadline : 0u) |
           (restart ? SummaryRestart : 0u) | (shutdown ? SummaryShutdown : 0u) |
           (soon ? SummarySoon : 0u) | (forceRun ? SummaryForceRun : 0u);
}

AutoUString<UTF8> SingleActionSummaryText(unsigned row, Instant deadline, bool forceRun) {
    return SingleTable().Render(row % 64, deadline, forceRun);
}

AutoUString<UTF8> SeveralActionsSummaryText(unsigned row, Instant deadline, bool forceRun) {
    return SeveralTable().Render(row % (2 * summaryAllPendingRows), deadline, forceRun);
}
