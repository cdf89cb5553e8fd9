// The tick's work on the pending actions, against the recording double of the dialogs: when
// the action dialog comes back, and which actions with a binding deadline are answered without
// the user.

#include "session/PendingActionsTick.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "session/ProcessMessagesFromClient.h"
#include "session/SessionState.h"
#include "testing/RecordingDialogs.h"
#include "testing/TestText.h"

namespace {

std::vector<unsigned long long> TakeAnsweredIDs() {
    FiFoQueue<UIMessage> batch;
    writeQ.ReadMessages(batch);
    std::vector<unsigned long long> ids;
    while (!batch.IsEmpty()) {
        std::string const text = Str(batch.TakeFirst().m_text);
        EXPECT_NE(text.find("<IsCancel>false</IsCancel>"), std::string::npos) << text;
        EXPECT_NE(text.find("<IsOffer>false</IsOffer>"), std::string::npos) << text;
        auto const at = text.find("<ID>");
        ids.push_back(std::stoull(text.substr(at + 4)));
    }
    return ids;
}

long long const noDeadline = 1LL << 62;
long long const minute = 60000000;

struct Pending {
    unsigned long long id;
    bool forceRun;
    long long deadlineFromNow;  // microseconds; noDeadline for none
};

std::string const show = "ShowActionRequestDialog(false, 600000000, true)";
std::string const removeTimedOut = "RemoveTimedoutMessageDialogs()";
std::string const update = "UpdateActionRequestDialog()";

class PendingActionsTickTest : public ::testing::Test {
  protected:
    void Reset() {
        TakeAnsweredIDs();
        actions.clear();
        inQuietMode = false;
        m_remindInterval = TimeInterval(600000000);
        m_snoozable = true;
        RecordingDialogs::Reset();
    }

    static ActionRequest MakeAction(Pending const& pending, Instant now) {
        ActionRequest action;
        action.m_id = pending.id;
        action.m_forceRun = pending.forceRun;
        if (pending.deadlineFromNow != noDeadline)
            action.m_deadline =
                TimeObject(now + TimeInterval(pending.deadlineFromNow), TimeZone(0));
        return action;
    }

    // One tick with the actions pending, quiet mode on or off and m_postponedTo relative to
    // now: the dialog calls, the IDs answered and the actions left.
    void Run(char const* what, std::vector<Pending> const& before, bool quiet,
             long long postponedFromNow, std::vector<std::string> const& calls,
             std::vector<unsigned long long> const& answered,
             std::vector<unsigned long long> const& after) {
        SCOPED_TRACE(what);
        Reset();
        Instant const now = Instant::Now();
        for (Pending const& pending : before) actions.push_back(MakeAction(pending, now));
        inQuietMode = quiet;
        m_postponedTo = now + TimeInterval(postponedFromNow);
        TickPendingActions();
        EXPECT_EQ(RecordingDialogs::Calls(), calls);
        EXPECT_EQ(TakeAnsweredIDs(), answered);
        std::vector<unsigned long long> ids;
        for (ActionRequest const& action : actions) ids.push_back(action.m_id);
        EXPECT_EQ(ids, after);
    }
};

}  // namespace

TEST_F(PendingActionsTickTest, OneTick) {
    long long const longPast = -3600 * 1000000LL;
    Run("an expired binding deadline is answered and the dialog refreshed",
        {{1, true, -10 * 1000000LL}}, false, longPast, {show, removeTimedOut, update}, {1}, {});
    Run("without ForceRun nothing expires, however late", {{1, false, -24 * 60 * minute}}, false,
        longPast, {show, removeTimedOut}, {}, {1});
    Run("ForceRun without a deadline stays", {{1, true, noDeadline}}, false, longPast,
        {show, removeTimedOut}, {}, {1});
    Run("a deadline under five minutes away refreshes the dialog every tick",
        {{1, true, 2 * minute}}, false, longPast, {show, removeTimedOut, update}, {}, {1});
    Run("a deadline an hour away changes nothing", {{1, true, 60 * minute}}, false, longPast,
        {show, removeTimedOut}, {}, {1});
    Run("removals leave no gap: adjacent expired actions go on the same tick",
        {{1, true, -minute}, {2, true, -2 * minute}, {3, false, -minute}, {4, true, -minute}},
        false, longPast, {show, removeTimedOut, update}, {1, 2, 4}, {3});
    Run("in quiet mode nothing expires", {{1, true, -minute}}, true, longPast,
        {show, removeTimedOut}, {}, {1});
    Run("while postponed the dialog stays away, and deadlines still run", {{1, true, -minute}},
        false, 10 * minute, {removeTimedOut, update}, {1}, {});
    Run("with nothing pending the dialog is not brought up", {}, false, longPast, {removeTimedOut},
        {}, {});
}

// The agent's quiet mode, through its documents: an action that expired during it is answered
// on the first tick after its end.
TEST_F(PendingActionsTickTest, AnExpiredActionWaitsForTheEndOfQuietMode) {
    Reset();
    initialized = true;
    Instant const now = Instant::Now();
    actions.push_back(MakeAction({5, true, -minute}, now));
    auto tick = [](char const* document) {
        if (*document) {
            UIMessage message;
            message.m_text =
                MakeUString(U8(std::string("<ClientToUI>") + document + "</ClientToUI>"));
            readQ.WriteMessage(message);
        }
        ProcessMessagesFromClient();
        TickPendingActions();
        return TakeAnsweredIDs();
    };
    EXPECT_EQ(tick("<QuietModeStart><StartTime>Sat, 04 Mar 2000 07:00:00 +0000</StartTime>"
                   "<EndTime>Sat, 04 Mar 2000 09:00:00 +0000</EndTime></QuietModeStart>"),
              std::vector<unsigned long long>{});
    EXPECT_EQ(tick(""), std::vector<unsigned long long>{});
    EXPECT_EQ(tick("<QuietModeEnd></QuietModeEnd>"), std::vector<unsigned long long>{5});
    EXPECT_TRUE(actions.empty());
}
