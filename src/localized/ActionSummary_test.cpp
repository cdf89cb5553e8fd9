#include "localized/ActionSummary.h"

#include <gtest/gtest.h>

#include <map>
#include <set>
#include <stdexcept>
#include <string>

#include "testing/TestText.h"

namespace {

// An action and a store of the shape the summaries read.
struct Action {
    bool m_restart = false;
    bool m_shutdown = false;
    bool m_forceRun = false;
    bool m_requestSave = false;
    NullOr<Instant> m_deadline;

    NullOr<Instant> Deadline() const { return m_deadline; }
};

struct UnknownAction : std::runtime_error {
    UnknownAction() : std::runtime_error("unknown action") {}
};

struct Store {
    std::map<unsigned long long, Action> actions;

    Action const& GetAction(unsigned long long id) const {
        auto const found = actions.find(id);
        if (found == actions.end()) throw UnknownAction();
        return found->second;
    }
};

// How a summary speaks of one action, of the selected ones or of all pending ones. A summary
// is up to two sentences, two spaces apart: one on saving and on a restart or shutdown, one on
// the deadline. The texts are put together here from their parts rather than copied from the
// table they are published in, so that a wrong entry in the code's table shows.
struct Wording {
    char const* subject;
    char const* taking;
    char const* as;
    char const* complete;
    char const* deadline[4];  // none, within, now, automatic
};
Wording const oneAction = {
    "This action",
    "this action",
    ", as it",
    "",
    {"", "You must take this action within {DeadlineText}.", "You must take this action now.",
     "This action will run automatically in {DeadlineText}."}};
Wording const selectedActions = {
    "The selected actions",
    "the selected actions",
    ", as they",
    " when they are complete",
    {"", "There is at least one selected action you must take within {DeadlineText}.",
     "There is at least one selected action you must take now.",
     "At least one of the selected actions will run automatically in {DeadlineText}."}};
Wording const pendingActions = {
    "The pending actions",
    "these actions",
    ", as they",
    " when they are complete",
    {"", "There is at least one action you must take within {DeadlineText}.",
     "There is at least one action you must take now.",
     "At least one of these actions will run automatically in {DeadlineText}."}};

// Returns the published text, its deadline variable not yet replaced. kind is "", "restart" or
// "shutdown"; column 0 to 3 as in Wording::deadline.
std::string Published(Wording const& w, bool save, std::string const& kind, int column) {
    std::string const require = " will require a system " + kind + w.complete + ".";
    std::string text;
    if (save)
        text = std::string("You should save your work before taking ") + w.taking +
               (kind.empty() ? "." : w.as + require);
    else if (!kind.empty())
        text = w.subject + require;
    if (!text.empty() && column != 0) text += "  ";
    return text + w.deadline[column];
}

// Returns the text with its deadline variable replaced.
std::string WithDeadline(std::string text, std::string const& deadline) {
    std::string const variable = "{DeadlineText}";
    std::size_t const at = text.find(variable);
    if (at != std::string::npos) text.replace(at, variable.size(), deadline);
    return text;
}

TimeInterval Minutes(long long minutes) {
    return TimeInterval(minutes * 60000000LL);
}

// Runs the body with the present second and repeats it if the clock has moved on meanwhile,
// so that a body comparing against Instant::Now() sees the second the code under test saw.
template <class F>
std::string WithinOneSecond(F body) {
    for (;;) {
        Instant const now = Instant::Now();
        std::string result = body(now);
        if (Instant::Now() == now) return result;
    }
}

}  // namespace

TEST(ActionSummary, EveryStateChoosesItsPublishedText) {
    // Three deadlines: none; two hours ahead, worded "2 hours"; an hour past, which is soon,
    // and worded "0 seconds" when forced.
    enum Deadline { NoDeadline, TwoHoursAhead, HourPast };
    std::set<std::string> singleReached, severalReached;
    for (int facts = 0; facts < 16; ++facts) {
        for (Deadline deadline : {NoDeadline, TwoHoursAhead, HourPast}) {
            Action action;
            action.m_requestSave = facts & 1;
            action.m_restart = facts & 2;
            action.m_shutdown = facts & 4;
            action.m_forceRun = facts & 8;
            Instant const now = Instant::Now();
            if (deadline == TwoHoursAhead) action.m_deadline = now + Minutes(120);
            if (deadline == HourPast) action.m_deadline = now - Minutes(60);
            int column = 0;
            if (deadline != NoDeadline)
                column = action.m_forceRun ? 3 : deadline == HourPast ? 2 : 1;
            std::string const deadlineText = deadline == TwoHoursAhead ? "2 hours" : "0 seconds";
            // Both restart and shutdown: a restart for one action, a shutdown for a set.
            char const* const kinds[] = {"", "restart", "shutdown"};
            int const singleKind = action.m_restart ? 1 : action.m_shutdown ? 2 : 0;
            int const severalKind = action.m_shutdown ? 2 : action.m_restart ? 1 : 0;
            SCOPED_TRACE(::testing::Message() << "facts " << facts << " deadline " << deadline);

            std::string const single =
                Published(oneAction, action.m_requestSave, kinds[singleKind], column);
            singleReached.insert(single);
            EXPECT_EQ(Str(ActionSummary(action)), WithDeadline(single, deadlineText));

            Store store;
            store.actions[7] = action;
            for (bool allPending : {false, true}) {
                std::string const several =
                    Published(allPending ? pendingActions : selectedActions, action.m_requestSave,
                              kinds[severalKind], column);
                severalReached.insert(several);
                EXPECT_EQ(Str(ActionSummary({7}, store, allPending)),
                          WithDeadline(several, deadlineText));
            }
        }
    }
    EXPECT_EQ(singleReached.size(), 24u);
    EXPECT_EQ(severalReached.size(), 47u);
}

TEST(ActionSummary, TheFiveMinuteLineBelongsToWithin) {
    struct Row {
        TimeInterval ahead;
        bool forceRun;
        char const* expected;
    };
    Row const rows[] = {
        {Minutes(5), false, "You must take this action within Now."},
        {Minutes(5) - TimeInterval(1), false, "You must take this action now."},
        {Minutes(5) + TimeInterval(1000000), false, "You must take this action within 5 minutes."},
        {TimeInterval(270000000), false, "You must take this action now."},
        {TimeInterval(270000000), true,
         "This action will run automatically in 4 minutes, 30 seconds."},
        {Minutes(-60), true, "This action will run automatically in 0 seconds."},
        {Minutes(5), true, "This action will run automatically in 5 minutes, 0 seconds."},
    };
    for (Row const& row : rows) {
        SCOPED_TRACE(row.expected);
        EXPECT_EQ(WithinOneSecond([&](Instant now) {
                      Action action;
                      action.m_forceRun = row.forceRun;
                      action.m_deadline = now + row.ahead;
                      return Str(ActionSummary(action));
                  }),
                  row.expected);
    }
}

TEST(ActionSummary, SeveralActionsCombineTheirFacts) {
    Instant const now = Instant::Now();
    NullOr<Instant> const none;
    Store store;
    // Restart, shutdown, ForceRun, RequestSave, deadline.
    store.actions[1] = {true, false, false, false, none};
    store.actions[2] = {false, true, false, false, none};
    store.actions[3] = {false, false, false, true, none};
    store.actions[4] = {false, false, false, false, now + Minutes(120)};
    store.actions[5] = {false, false, true, false, now + Minutes(120)};
    store.actions[6] = {false, false, true, false, now + Minutes(300)};
    store.actions[7] = {false, false, true, false, none};
    store.actions[8] = {true, true, false, false, none};
    struct Row {
        std::set<unsigned long long> ids;
        bool allPending;
        char const* expected;
    };
    Row const rows[] = {
        {{}, false, ""},
        {{}, true, ""},
        // Restart and shutdown from two actions, or from one: a shutdown.
        {{1, 2},
         false,
         "The selected actions will require a system shutdown when they are complete."},
        {{8}, true, "The pending actions will require a system shutdown when they are complete."},
        // One action asking to save makes the whole set ask.
        {{1, 3},
         false,
         "You should save your work before taking the selected actions, as they will require a "
         "system restart when they are complete."},
        // A tie keeps the lower identifier, whose deadline isn't binding.
        {{4, 5}, false, "There is at least one selected action you must take within 2 hours."},
        // The earliest deadline is binding; a later one that isn't doesn't matter.
        {{5, 6}, true, "At least one of these actions will run automatically in 2 hours."},
        // A later binding deadline, or one without a deadline, doesn't count.
        {{4, 6, 7}, false, "There is at least one selected action you must take within 2 hours."},
        {{7}, false, ""},
    };
    for (Row const& row : rows) {
        SCOPED_TRACE(row.expected);
        EXPECT_EQ(Str(ActionSummary(row.ids, store, row.allPending)), row.expected);
    }
    // The single action with both restart and shutdown speaks of a restart.
    EXPECT_EQ(Str(ActionSummary(store.actions[8])), "This action will require a system restart.");
    EXPECT_THROW(ActionSummary({1, 99}, store, false), UnknownAction);
}
