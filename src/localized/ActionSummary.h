#pragma once
// The sentence or two under an action's description that tells what taking it entails: saving
// work, a restart or a shutdown, and how much time is left. The sentence is chosen whole from a
// fixed table, never composed, so that translators see whole sentences: 24 texts for a single
// action, and 23 more for each of the two ways to speak of several (the selected actions, and
// all pending ones).
//
// The facts are packed into six bits, which select a text through a table:
//   1 RequestSave   2 a deadline exists   4 Restart   8 Shutdown
//   16 the deadline is less than five minutes away, or past   32 ForceRun
// With both Restart and Shutdown set, a single action speaks of a restart and a set of actions
// of a shutdown. The difference is deliberate and the dialogs depend on it.
//
// The operations are templates over the action record and the store, which belong to the
// session: an action has the members m_restart, m_shutdown, m_forceRun, m_requestSave and
// `NullOr<Instant> Deadline() const`; a store has `GetAction(unsigned long long) const`,
// returning such an action or throwing for an unknown identifier. Everything else is here.
//
// The text tables are made on the first call of each operation, with the overrides of the
// global context as they stand then: translation files must be added before.

#include <cstdint>
#include <limits>
#include <set>

#include "text/bytes/NullOr.h"
#include "text/unicode/UString.h"
#include "time/Instant.h"

// The bits of the packed state.
enum ActionSummaryFact : unsigned {
    SummaryRequestSave = 1,
    SummaryHasDeadline = 2,
    SummaryRestart = 4,
    SummaryShutdown = 8,
    SummarySoon = 16,
    SummaryForceRun = 32
};

// The several-action table has two halves; the second speaks of all pending actions.
unsigned const summaryAllPendingRows = 64;

// Returns whether the deadline lies strictly before now plus five minutes.
bool SummaryDeadlineIsSoon(Instant deadline, Instant now);

// Returns the packed state of the facts.
unsigned PackSummaryState(bool requestSave, bool hasDeadline, bool restart, bool shutdown,
                          bool soon, bool forceRun);

// Return the text that the single-action table (of 64 rows) or the several-action table (of
// 128) selects for the row; a text that tells the time left words it from the deadline, now and
// the force flag. Throw the format failures of a bad override.
AutoUString<UTF8> SingleActionSummaryText(unsigned row, Instant deadline, bool forceRun);
AutoUString<UTF8> SeveralActionsSummaryText(unsigned row, Instant deadline, bool forceRun);

// Returns the summary of one action.
template <class Action>
AutoUString<UTF8> ActionSummary(Action const& action) {
    NullOr<Instant> const deadline = action.Deadline();
    bool const soon = deadline && SummaryDeadlineIsSoon(*deadline, Instant::Now());
    unsigned const state =
        PackSummaryState(action.m_requestSave, !deadline.IsNull(), action.m_restart,
                         action.m_shutdown, soon, action.m_forceRun);
    return SingleActionSummaryText(state, deadline ? *deadline : Instant(), action.m_forceRun);
}

// Returns the summary of the actions of the identifiers, fetched from the store; allPending
// speaks of all pending actions rather than the selected ones. The flags of all actions are
// combined; the deadline is the earliest one, and the force flag is that of the action with the
// earliest deadline (the lower identifier on a tie). An empty set gives the empty text. Throws
// what the store throws for an unknown identifier.
template <class Store>
AutoUString<UTF8> ActionSummary(std::set<unsigned long long> const& ids, Store const& store,
                                bool allPending) {
    bool anySave = false, anyDeadline = false, anyRestart = false, anyShutdown = false;
    bool earliestForceRun = false;
    Instant earliest(std::numeric_limits<std::int64_t>::max());
    for (unsigned long long const id : ids) {
        auto const& action = store.GetAction(id);
        anySave = anySave || action.m_requestSave;
        anyRestart = anyRestart || action.m_restart;
        anyShutdown = anyShutdown || action.m_shutdown;
        NullOr<Instant> const deadline = action.Deadline();
        if (deadline.IsNull()) continue;
        anyDeadline = true;
        if (*deadline < earliest) {
            earliest = *deadline;
            earliestForceRun = action.m_forceRun;
        }
    }
    bool const soon = anyDeadline && SummaryDeadlineIsSoon(earliest, Instant::Now());
    unsigned const state =
        PackSummaryState(anySave, anyDeadline, anyRestart, anyShutdown, soon, earliestForceRun);
    return SeveralActionsSummaryText(state + (allPending ? summaryAllPendingRows : 0), earliest,
                                     earliestForceRun);
}
