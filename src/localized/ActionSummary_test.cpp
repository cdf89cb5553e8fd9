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

// The published texts by number.
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

// The published text numbers. Rows: neither, neither with RequestSave, restart, restart with
// RequestSave, shutdown, shutdown with RequestSave. Columns: none, within, now, automatic.
int const selectedNumbers[6][4] = {
    {0, 2, 12, 18}, {1, 3, 13, 19},  {4, 6, 14, 20},
    {5, 7, 15, 21}, {8, 10, 16, 22}, {9, 11, 17, 23},
};
int const pendingNumbers[6][4] = {
    {0, 25, 35, 41},  {24, 26, 36, 42}, {27, 29, 37, 43},
    {28, 30, 38, 44}, {31, 33, 39, 45}, {32, 34, 40, 46},
};

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
    std::set<int> singleReached, severalReached;
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
            int const save = action.m_requestSave ? 1 : 0;
            // Both restart and shutdown: a restart for one action, a shutdown for a set.
            int const singleKind = action.m_restart ? 1 : action.m_shutdown ? 2 : 0;
            int const severalKind = action.m_shutdown ? 2 : action.m_restart ? 1 : 0;
            SCOPED_TRACE(::testing::Message() << "facts " << facts << " deadline " << deadline);

            int const single = selectedNumbers[singleKind * 2 + save][column];
            singleReached.insert(single);
            EXPECT_EQ(Str(ActionSummary(action)), WithDeadline(singleTexts[single], deadlineText));

            Store store;
            store.actions[7] = action;
            for (bool allPending : {false, true}) {
                int const several =
                    (allPending ? pendingNumbers : selectedNumbers)[severalKind * 2 + save][column];
                severalReached.insert(several);
                EXPECT_EQ(Str(ActionSummary({7}, store, allPending)),
                          WithDeadline(severalTexts[several], deadlineText));
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
    auto make = [](bool restart, bool shutdown, bool save, bool force, NullOr<Instant> deadline) {
        Action action;
        action.m_restart = restart;
        action.m_shutdown = shutdown;
        action.m_requestSave = save;
        action.m_forceRun = force;
        action.m_deadline = deadline;
        return action;
    };
    NullOr<Instant> const none;
    Store store;
    store.actions[1] = make(true, false, false, false, none);
    store.actions[2] = make(false, true, false, false, none);
    store.actions[3] = make(false, false, true, false, none);
    store.actions[4] = make(false, false, false, false, now + Minutes(120));
    store.actions[5] = make(false, false, false, true, now + Minutes(120));
    store.actions[6] = make(false, false, false, true, now + Minutes(300));
    store.actions[7] = make(false, false, false, true, none);
    store.actions[8] = make(true, true, false, false, none);
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
