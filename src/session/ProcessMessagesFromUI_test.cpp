// The user's decisions, against the recording double of the dialogs: for each command the
// dialog calls it makes, the documents the agent receives, and the actions left pending.

#include "session/ProcessMessagesFromUI.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "session/SessionState.h"
#include "testing/RecordingDialogs.h"
#include "testing/TestText.h"
#include "time/TextToTime.h"
#include "xml/SimpleXMLParse.h"

namespace {

// Takes every document queued for the agent, each summed up as its message's name followed by
// "child=value" for each child: "ActionTaken IsCancel=false IsOffer=false ID=4".
std::vector<std::string> TakeSentDecisions() {
    FiFoQueue<UIMessage> batch;
    writeQ.ReadMessages(batch);
    std::vector<std::string> summaries;
    while (!batch.IsEmpty()) {
        UIMessage message = batch.TakeFirst();
        std::unique_ptr<XMLElement> root = SimpleXML::Parse(message.m_text);
        EXPECT_EQ(Str(root->name), "UIToClient");
        XMLElement const& decision = root->children.at(0);
        std::string summary = Str(decision.name);
        for (XMLElement const& child : decision.children)
            summary += " " + Str(child.name) + "=" + Str(child.GetValue());
        summaries.push_back(summary);
    }
    return summaries;
}

std::string Taken(int id) {
    return "ActionTaken IsCancel=false IsOffer=false ID=" + std::to_string(id);
}
std::string Cancelled(int id) {
    return "ActionTaken IsCancel=true IsOffer=false ID=" + std::to_string(id);
}
std::string Reminded(std::string const& time) {
    return "RemindTime TimeObject=" + time;
}
std::string Interval(std::string const& duration) {
    return "RemindInterval TimeInterval=" + duration;
}

std::string const update = "UpdateActionRequestDialog()";
std::string const enable = "EnableActionRequestDialog()";
std::string const tick = "-- tick";
std::string Confirm(int id) {
    return "ShowConfirmationRequestDialog(" + std::to_string(id) + ")";
}

struct Pending {
    unsigned long long id;
    char const* preActionMessage;  // null: taken without confirmation
};

struct Queued {
    UICommandType command;
    unsigned long long actionID;
    long minutes = 0;
    long long seconds = 0;
};

long long const tenMinutes = 600000000;
// 2000-03-04 07:05:09 UTC in seconds since 1970, as the action dialog hands over a deadline.
long long const someDeadline = 952153509;

class ProcessMessagesFromUITest : public ::testing::Test {
  protected:
    void SetUp() override {
        FiFoQueue<std::unique_ptr<UICommand>> stale;
        uiCommandQ.ReadMessages(stale);
        TakeSentDecisions();
        actions.clear();
        confirmingAll = false;
        confirmAllPosition = 0;
        m_postponedTo = Instant(0);
        m_remindInterval = TimeInterval(tenMinutes);
        m_snoozable = true;
        RecordingDialogs::Reset();
    }

    // One case: the actions pending before, the commands queued before each call, the dialog
    // calls (with "-- tick" after each call), the documents sent and the actions left; then a
    // dialog call that throws (or ""), and m_postponedTo and m_remindInterval afterwards in
    // microseconds (they start at 0 and ten minutes).
    void Run(char const* what, std::vector<Pending> const& before,
             std::vector<std::vector<Queued>> const& ticks,
             std::vector<std::string> const& expectedCalls,
             std::vector<std::string> const& documents,
             std::vector<unsigned long long> const& after, char const* failingCall = "",
             long long postponedTo = 0, long long remindInterval = tenMinutes) {
        SCOPED_TRACE(what);
        SetUp();
        for (Pending const& pending : before) {
            ActionRequest action;
            action.m_id = pending.id;
            if (pending.preActionMessage)
                action.m_preActionMessage =
                    SharedUString<UTF8>(MakeUString(U8(pending.preActionMessage)));
            actions.push_back(action);
        }
        if (*failingCall) RecordingDialogs::FailOn(failingCall);

        std::vector<std::string> calls;
        for (std::vector<Queued> const& commands : ticks) {
            for (Queued const& q : commands)
                QueueCommand(q.command, q.actionID, q.minutes, q.seconds);
            std::size_t const already = RecordingDialogs::Calls().size();
            ProcessMessagesFromUI();
            std::vector<std::string> const& all = RecordingDialogs::Calls();
            calls.insert(calls.end(), all.begin() + static_cast<long>(already), all.end());
            calls.push_back(tick);
            EXPECT_TRUE(uiCommandQ.IsEmpty());
        }
        EXPECT_EQ(calls, expectedCalls);
        EXPECT_EQ(TakeSentDecisions(), documents);
        std::vector<unsigned long long> ids;
        for (ActionRequest const& action : actions) ids.push_back(action.m_id);
        EXPECT_EQ(ids, after);
        EXPECT_EQ(m_postponedTo.Microseconds(), postponedTo);
        EXPECT_EQ(m_remindInterval.Microseconds(), remindInterval);
    }
};

}  // namespace

TEST_F(ProcessMessagesFromUITest, EveryCommand) {
    Run("take without a message answers at once", {{1, nullptr}, {2, nullptr}},
        {{{UICommandTake, 2}}}, {update, enable, tick}, {Taken(2)}, {1});
    Run("take with a message waits for the confirmation, and acceptance answers it",
        {{1, "Save your work"}}, {{{UICommandTake, 1}}, {{UICommandConfirmationAccepted, 1}}},
        {Confirm(1), tick, update, enable, tick}, {Taken(1)}, {});
    Run("take with a message, rejected: nothing goes out and the action stays",
        {{1, "Save your work"}}, {{{UICommandTake, 1}}, {{UICommandConfirmationRejected, 1}}},
        {Confirm(1), tick, enable, tick}, {}, {1});
    Run("an empty message is still a message to confirm", {{3, ""}}, {{{UICommandTake, 3}}},
        {Confirm(3), tick}, {}, {3});
    Run("take of an unknown action only enables the dialog", {{1, nullptr}}, {{{UICommandTake, 9}}},
        {enable, tick}, {}, {1});
    Run("cancel answers with IsCancel true", {{1, "Save your work"}, {2, nullptr}},
        {{{UICommandCancel, 1}}}, {update, enable, tick}, {Cancelled(1)}, {2});
    Run("cancel of an action already removed sends nothing", {{2, nullptr}},
        {{{UICommandCancel, 1}}}, {enable, tick}, {}, {2});
    Run("details, their closing and the quiet-mode dismissal only call the dialogs", {{7, nullptr}},
        {{{UICommandShowDetails, 7},
          {UICommandDetailsClosed, 0},
          {UICommandQuietModeDismissed, 0}}},
        {"ShowActionDetailsDialog(7)", enable, enable, tick}, {}, {7});
    Run("show actions brings the dialog up even with nothing pending", {},
        {{{UICommandShowActions, 0}}}, {"ShowActionRequestDialog(false, 600000000, true)", tick},
        {}, {});
    Run("a command above the last known one is ignored", {{1, nullptr}},
        {{{static_cast<UICommandType>(10), 1}}}, {tick}, {}, {1});
    Run("take all without messages answers everything in order on one tick",
        {{1, nullptr}, {2, nullptr}, {3, nullptr}}, {{{UICommandTakeAll, 0}}},
        {update, enable, tick}, {Taken(1), Taken(2), Taken(3)}, {});
    Run("take all with nothing pending sends nothing and enables the dialog", {},
        {{{UICommandTakeAll, 0}}}, {update, enable, tick}, {}, {});
    Run("take all asks the second's then the third's confirmation, then answers all three",
        {{1, nullptr}, {2, "second"}, {3, "third"}},
        {{{UICommandTakeAll, 0}},
         {{UICommandConfirmationAccepted, 2}},
         {{UICommandConfirmationAccepted, 3}}},
        {Confirm(2), tick, Confirm(3), tick, update, enable, enable, tick},
        {Taken(1), Taken(2), Taken(3)}, {});
    Run("take all with one confirmation rejected answers nothing", {{1, "first"}, {2, "second"}},
        {{{UICommandTakeAll, 0}},
         {{UICommandConfirmationAccepted, 1}},
         {{UICommandConfirmationRejected, 2}}},
        {Confirm(1), tick, Confirm(2), tick, enable, tick}, {}, {1, 2});
    Run("after a rejected walk an acceptance answers only its own action",
        {{1, "first"}, {2, "second"}},
        {{{UICommandTakeAll, 0}},
         {{UICommandConfirmationRejected, 1}},
         {{UICommandConfirmationAccepted, 2}}},
        {Confirm(1), tick, enable, tick, update, enable, tick}, {Taken(2)}, {1});
    Run("actions that shrink under an open confirmation leave the walk past the end: it ends",
        {{1, nullptr}, {2, "last"}},
        {{{UICommandTakeAll, 0}}, {{UICommandCancel, 1}}, {{UICommandConfirmationAccepted, 2}}},
        {Confirm(2), tick, update, enable, tick, update, enable, enable, tick},
        {Cancelled(1), Taken(2)}, {});
    Run("snooze to an absolute time: minutes 0 makes the interval zero", {{1, nullptr}},
        {{{UICommandSnooze, 0, 0, someDeadline}}}, {tick},
        {Reminded("Sat, 04 Mar 2000 07:05:09 +0000"), Interval("PT0S")}, {1}, "",
        someDeadline * 1000000, 0);
    Run("negative minutes move the absolute time back by as much", {{1, nullptr}},
        {{{UICommandSnooze, 0, -2, someDeadline}}}, {tick},
        {Reminded("Sat, 04 Mar 2000 07:03:09 +0000"), Interval("-PT2M")}, {1}, "",
        (someDeadline - 120) * 1000000, -120000000);
    Run("the seconds are read as an unsigned 32-bit count", {{1, nullptr}},
        {{{UICommandSnooze, 0, 0, -1}}}, {tick},
        {Reminded("Sun, 07 Feb 2106 06:28:15 +0000"), Interval("PT0S")}, {1}, "",
        4294967295ll * 1000000, 0);
    Run("snooze with nothing pending sends nothing and postpones nothing", {},
        {{{UICommandSnooze, 0, 5}}}, {tick}, {}, {});
    Run("a command that throws does not stop those behind it", {{1, nullptr}},
        {{{UICommandShowDetails, 1}, {UICommandTake, 1}}},
        {"ShowActionDetailsDialog(1)", update, enable, tick}, {Taken(1)}, {},
        "ShowActionDetailsDialog");
    Run("a throw after the answer went out costs only the rest of that command",
        {{1, nullptr}, {2, nullptr}}, {{{UICommandTake, 1}, {UICommandCancel, 2}}},
        {update, update, tick}, {Taken(1), Cancelled(2)}, {}, "UpdateActionRequestDialog");
}

TEST_F(ProcessMessagesFromUITest, SnoozeOfFiveMinutesRemindsFiveMinutesAhead) {
    actions.emplace_back();
    Instant const before = Instant::Now();
    QueueCommand(UICommandSnooze, 0, 5, 0);
    ProcessMessagesFromUI();
    Instant const after = Instant::Now();
    TimeInterval const fiveMinutes(300000000);

    EXPECT_GE(m_postponedTo, before + fiveMinutes);
    EXPECT_LE(m_postponedTo, after + fiveMinutes);
    EXPECT_EQ(m_remindInterval.Microseconds(), 300000000);
    std::vector<std::string> const sent = TakeSentDecisions();
    ASSERT_EQ(sent.size(), 2u);
    std::string const time = sent[0].substr(Reminded("").size());
    Instant const remindTime(TextToTime(ConstData(time.data(), time.size())));
    // The document carries whole seconds.
    EXPECT_GE(remindTime, before + fiveMinutes - TimeInterval(1000000));
    EXPECT_LE(remindTime, after + fiveMinutes);
    EXPECT_EQ(sent[1], Interval("PT5M"));
    EXPECT_TRUE(RecordingDialogs::Calls().empty());
}
