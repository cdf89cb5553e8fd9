// The dispatch of the agent's documents, against the recording double of the dialogs: which
// dialog calls each message makes, in which order, what becomes of the pending actions, and
// what a failure costs.

#include "session/ProcessMessagesFromClient.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <string>
#include <vector>

#include "session/SessionState.h"
#include "testing/RecordingDialogs.h"
#include "testing/TemporaryDirectory.h"
#include "testing/TestText.h"

namespace {

std::string Document(std::string const& children) {
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?><ClientToUI>" + children + "</ClientToUI>";
}

std::string Action(int id) {
    return "<ActionRequest><ID>" + std::to_string(id) + "</ID><Title>t</Title></ActionRequest>";
}

std::string Remove(int id, std::string const& type) {
    return "<RemoveRequest><ID>" + std::to_string(id) + "</ID><RemoveType>" + type +
           "</RemoveType></RemoveRequest>";
}

// Where a case's InitializationInfo puts the session; "$DIR" stands for the test's directory.
std::string const initialization =
    "<InitializationInfo><BaseDirectory>$DIR/session</BaseDirectory><InitialUISettings>"
    "<RemindInterval>PT10M</RemindInterval></InitialUISettings></InitializationInfo>";

std::string const show = "ShowActionRequestDialog(false, 600000000, true)";
std::string const update = "UpdateActionRequestDialog()";
std::string const tick = "-- tick";

// 2000-03-04 07:00:00 and 08:00:00 UTC in microseconds.
std::string const quietStart =
    "<QuietModeStart><StartTime>Sat, 04 Mar 2000 07:00:00 +0000</StartTime><EndTime>Sat, 04 "
    "Mar 2000 09:00:00 +0100</EndTime></QuietModeStart>";
std::string const quietDialog = "ShowQuietModeDialog(952153200000000, 952156800000000)";

class ProcessMessagesFromClientTest : public TemporaryDirectory {
  protected:
    void SetUp() override {
        TemporaryDirectory::SetUp();
        FiFoQueue<UIMessage> stale;
        readQ.ReadMessages(stale);
    }

    void Send(std::string text) {
        for (std::string::size_type at; (at = text.find("$DIR")) != std::string::npos;)
            text.replace(at, 4, m_root);
        UIMessage message;
        message.m_text = MakeUString(U8(text));
        readQ.WriteMessage(message);
    }

    // One case: what arrives before each call, the dialog calls (with "-- tick" after each
    // call) and the actions left; then the actions pending before, whether a first document
    // was taken before, the successive answers of IsActionRequestDialogShown, a dialog call
    // that throws (or ""), and whether quiet mode is on afterwards.
    void Run(char const* what, std::vector<std::vector<std::string>> const& frames,
             std::vector<std::string> const& expectedCalls,
             std::vector<unsigned long long> const& actionsAfter,
             std::vector<unsigned long long> const& actionsBefore = {},
             bool initializedBefore = true, std::vector<bool> const& dialogShown = {},
             char const* failingCall = "", bool quietAfter = false) {
        SCOPED_TRACE(what);
        actions.clear();
        for (unsigned long long id : actionsBefore) {
            ActionRequest action;
            action.m_id = id;
            actions.push_back(action);
        }
        initialized = initializedBefore;
        inQuietMode = false;
        m_remindInterval = TimeInterval(600000000);
        m_snoozable = true;
        RecordingDialogs::Reset();
        RecordingDialogs::ScriptDialogShown(dialogShown, false);
        if (*failingCall) RecordingDialogs::FailOn(failingCall);

        std::vector<std::string> calls;
        for (std::vector<std::string> const& batch : frames) {
            for (std::string const& frame : batch) Send(frame);
            std::size_t const before = RecordingDialogs::Calls().size();
            ProcessMessagesFromClient();
            std::vector<std::string> const& all = RecordingDialogs::Calls();
            calls.insert(calls.end(), all.begin() + static_cast<long>(before), all.end());
            calls.push_back(tick);
        }
        EXPECT_EQ(calls, expectedCalls);
        std::vector<unsigned long long> ids;
        for (ActionRequest const& action : actions) ids.push_back(action.m_id);
        EXPECT_EQ(ids, actionsAfter);
        EXPECT_EQ(inQuietMode, quietAfter);
        EXPECT_TRUE(initialized) << "every case ends initialized";
    }
};

}  // namespace

TEST_F(ProcessMessagesFromClientTest, DispatchOfEachMessage) {
    Run("two actions in one document: an update and a show after each",
        {{Document(Action(1) + Action(2))}}, {update, show, update, show, tick}, {1, 2});
    Run("a second request with a known ID stands beside the first",
        {{Document(Action(1)), Document(Action(1))}}, {update, show, update, show, tick}, {1, 1});
    Run("a removal then a bad message: the removal stays, the rest of the batch is lost",
        {{Document(Remove(5, "Action") +
                   "<MessageRequest><ID>7</ID><Timeout></Timeout></MessageRequest>" + Action(8)),
          Document(Action(9))},
         {Document(Action(10))}},
        {update, tick, update, show, tick}, {4, 10}, {4, 5});
    Run("the first document and an action in one document: the action is lost",
        {{Document(initialization + Action(1))}, {}}, {tick, tick}, {}, {}, false);
    Run("the first document and an action in two frames: the action waits for the next call",
        {{Document(initialization), Document(Action(1))}, {Document(Action(2))}, {}},
        {tick, update, show, tick, update, show, tick}, {1, 2}, {}, false);
    Run("documents before the first one are dispatched as usual",
        {{Document(Action(1))}, {Document(initialization)}}, {update, show, tick, tick}, {1}, {},
        false);
    Run("a second first document is skipped, the rest of it handled",
        {{Document(initialization + Action(1))}}, {update, show, tick}, {1});
    Run("\"action\" in lower case acts as All, on the first match only",
        {{Document(Remove(5, "action"))}}, {update, "RemoveMessageDialog(5)", tick}, {6, 5},
        {5, 6, 5});
    Run("Offer does nothing at all", {{Document(Remove(5, "Offer"))}}, {tick}, {5}, {5});
    Run("Message removes only the message dialog", {{Document(Remove(5, "Message"))}},
        {"RemoveMessageDialog(5)", tick}, {5}, {5});
    Run("an unknown ID is no error", {{Document(Remove(9, "Action"))}}, {update, tick}, {5}, {5});
    Run("a message goes to its own dialog",
        {{Document("<MessageRequest><Title>T</Title><Message>M</Message><ID>7</ID><Timeout>"
                   "PT30S</Timeout></MessageRequest>")}},
        {"ShowMessageDialog(7, \"T\", \"M\", false, 30000000)", tick}, {});
    Run("quiet mode starting while no action dialog is shown shows nothing",
        {{Document(quietStart)}}, {"IsActionRequestDialogShown() = false", tick}, {}, {}, true,
        {false}, "", true);
    Run("quiet mode starting while the action dialog is shown", {{Document(quietStart)}},
        {"IsActionRequestDialogShown() = true", quietDialog, "DisableActionRequestDialog()", tick},
        {}, {}, true, {true}, "", true);
    Run("a start whose times cannot be read still switches quiet mode on",
        {{Document("<QuietModeStart><StartTime>soon</StartTime></QuietModeStart>" + Action(1))}},
        {tick}, {}, {}, true, {true}, "", true);
    Run("quiet mode ending while the action dialog is shown",
        {{Document(quietStart), Document("<QuietModeEnd>ignored</QuietModeEnd>")}},
        {"IsActionRequestDialogShown() = true", quietDialog, "DisableActionRequestDialog()",
         "RemoveQuietModeDialog()", "IsActionRequestDialogShown() = true", update,
         "EnableActionRequestDialog()", tick},
        {}, {}, true, {true, true});
    Run("quiet mode ending without a start", {{Document("<QuietModeEnd></QuietModeEnd>")}},
        {"RemoveQuietModeDialog()", "IsActionRequestDialogShown() = false", tick}, {}, {}, true,
        {false});
    Run("empty frames are skipped, unknown and misspelt children ignored, the root not looked at",
        {{"", Document("<Foo>1</Foo><actionrequest><ID>3</ID></actionrequest>"),
          "<AnyRoot>" + Action(1) + "</AnyRoot>", Document("")}},
        {update, show, tick}, {1});
    Run("a frame without any element costs the rest of its batch, not later frames",
        {{Document(Action(1)), "no element here", Document(Action(2))}, {Document(Action(3))}},
        {update, show, tick, update, show, tick}, {1, 3});
    Run("a failing dialog call costs the rest of the batch; what it did stays",
        {{Document(Action(1) + Action(2)), Document(Action(3))}, {Document(Action(4))}},
        {update, show, tick, update, show, tick}, {1, 4}, {}, true, {}, "ShowActionRequestDialog");
}

// A first document that cannot be processed costs its batch and leaves the process waiting
// for another; the next one that can be processed is taken.
TEST_F(ProcessMessagesFromClientTest, AFailedFirstDocumentKeepsTheProcessWaiting) {
    ASSERT_EQ(0, ::symlink(m_root.c_str(), Path("link").c_str()));
    actions.clear();
    initialized = false;
    RecordingDialogs::Reset();
    Send(
        Document("<InitializationInfo><BaseDirectory>$DIR/link</BaseDirectory>"
                 "</InitializationInfo>"));
    Send(Document(Action(1)));
    ProcessMessagesFromClient();
    EXPECT_FALSE(initialized);
    EXPECT_TRUE(actions.empty());
    EXPECT_TRUE(Exists(Path("link"))) << "emptied through the link";

    Send(Document(initialization));
    ProcessMessagesFromClient();
    EXPECT_TRUE(initialized);
    EXPECT_EQ(m_baseDirectory.LogString(), m_root + "/session");
}
