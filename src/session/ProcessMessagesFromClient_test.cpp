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

struct Case {
    char const* what;
    std::vector<std::vector<std::string>> frames;  // what arrives before each call, by call
    std::vector<unsigned long long> actionsBefore;
    bool initializedBefore;
    std::vector<bool> dialogShown;   // successive answers of IsActionRequestDialogShown
    char const* failingCall;         // a dialog call that throws, or ""
    std::vector<std::string> calls;  // the dialog calls, with "-- tick" after each call
    std::vector<unsigned long long> actionsAfter;
    bool quietAfter;
};

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

    void Run(Case const& c) {
        SCOPED_TRACE(c.what);
        actions.clear();
        for (unsigned long long id : c.actionsBefore) {
            ActionRequest action;
            action.m_id = id;
            actions.push_back(action);
        }
        initialized = c.initializedBefore;
        inQuietMode = false;
        m_remindInterval = TimeInterval(600000000);
        m_snoozable = true;
        RecordingDialogs::Reset();
        RecordingDialogs::ScriptDialogShown(c.dialogShown, false);
        if (*c.failingCall) RecordingDialogs::FailOn(c.failingCall);

        std::vector<std::string> calls;
        for (std::vector<std::string> const& frames : c.frames) {
            for (std::string const& frame : frames) Send(frame);
            std::size_t const before = RecordingDialogs::Calls().size();
            ProcessMessagesFromClient();
            std::vector<std::string> const& all = RecordingDialogs::Calls();
            calls.insert(calls.end(), all.begin() + static_cast<long>(before), all.end());
            calls.push_back(tick);
        }
        EXPECT_EQ(calls, c.calls);
        std::vector<unsigned long long> ids;
        for (ActionRequest const& action : actions) ids.push_back(action.m_id);
        EXPECT_EQ(ids, c.actionsAfter);
        EXPECT_EQ(inQuietMode, c.quietAfter);
        EXPECT_TRUE(initialized) << "every case ends initialized";
    }
};

}  // namespace

TEST_F(ProcessMessagesFromClientTest, DispatchOfEachMessage) {
    Case const cases[] = {
        {"two actions in one document: an update and a show after each",
         {{Document(Action(1) + Action(2))}},
         {},
         true,
         {},
         "",
         {update, show, update, show, tick},
         {1, 2},
         false},
        {"a second request with a known ID stands beside the first",
         {{Document(Action(1)), Document(Action(1))}},
         {},
         true,
         {},
         "",
         {update, show, update, show, tick},
         {1, 1},
         false},
        {"a removal then a bad message: the removal stays, the rest of the batch is lost",
         {{Document(Remove(5, "Action") +
                    "<MessageRequest><ID>7</ID><Timeout></Timeout></MessageRequest>" + Action(8)),
           Document(Action(9))},
          {Document(Action(10))}},
         {4, 5},
         true,
         {},
         "",
         {update, tick, update, show, tick},
         {4, 10},
         false},
        {"the first document and an action in one document: the action is lost",
         {{Document(initialization + Action(1))}, {}},
         {},
         false,
         {},
         "",
         {tick, tick},
         {},
         false},
        {"the first document and an action in two frames: the action waits for the next call",
         {{Document(initialization), Document(Action(1))}, {Document(Action(2))}, {}},
         {},
         false,
         {},
         "",
         {tick, update, show, tick, update, show, tick},
         {1, 2},
         false},
        {"documents before the first one are dispatched as usual",
         {{Document(Action(1))}, {Document(initialization)}},
         {},
         false,
         {},
         "",
         {update, show, tick, tick},
         {1},
         false},
        {"a second first document is skipped, the rest of it handled",
         {{Document(initialization + Action(1))}},
         {},
         true,
         {},
         "",
         {update, show, tick},
         {1},
         false},
        {"\"action\" in lower case acts as All, on the first match only",
         {{Document(Remove(5, "action"))}},
         {5, 6, 5},
         true,
         {},
         "",
         {update, "RemoveMessageDialog(5)", tick},
         {6, 5},
         false},
        {"Offer does nothing at all",
         {{Document(Remove(5, "Offer"))}},
         {5},
         true,
         {},
         "",
         {tick},
         {5},
         false},
        {"Message removes only the message dialog",
         {{Document(Remove(5, "Message"))}},
         {5},
         true,
         {},
         "",
         {"RemoveMessageDialog(5)", tick},
         {5},
         false},
        {"an unknown ID is no error",
         {{Document(Remove(9, "Action"))}},
         {5},
         true,
         {},
         "",
         {update, tick},
         {5},
         false},
        {"a message goes to its own dialog",
         {{Document("<MessageRequest><Title>T</Title><Message>M</Message><ID>7</ID><Timeout>"
                    "PT30S</Timeout></MessageRequest>")}},
         {},
         true,
         {},
         "",
         {"ShowMessageDialog(7, \"T\", \"M\", false, 30000000)", tick},
         {},
         false},
        {"quiet mode starting while no action dialog is shown shows nothing",
         {{Document(quietStart)}},
         {},
         true,
         {false},
         "",
         {"IsActionRequestDialogShown() = false", tick},
         {},
         true},
        {"quiet mode starting while the action dialog is shown",
         {{Document(quietStart)}},
         {},
         true,
         {true},
         "",
         {"IsActionRequestDialogShown() = true", quietDialog, "DisableActionRequestDialog()", tick},
         {},
         true},
        {"a start whose times cannot be read still switches quiet mode on",
         {{Document("<QuietModeStart><StartTime>soon</StartTime></QuietModeStart>" + Action(1))}},
         {},
         true,
         {true},
         "",
         {tick},
         {},
         true},
        {"quiet mode ending while the action dialog is shown",
         {{Document(quietStart), Document("<QuietModeEnd>ignored</QuietModeEnd>")}},
         {},
         true,
         {true, true},
         "",
         {"IsActionRequestDialogShown() = true", quietDialog, "DisableActionRequestDialog()",
          "RemoveQuietModeDialog()", "IsActionRequestDialogShown() = true", update,
          "EnableActionRequestDialog()", tick},
         {},
         false},
        {"quiet mode ending without a start",
         {{Document("<QuietModeEnd></QuietModeEnd>")}},
         {},
         true,
         {false},
         "",
         {"RemoveQuietModeDialog()", "IsActionRequestDialogShown() = false", tick},
         {},
         false},
        {"empty frames are skipped, unknown and misspelt children ignored, the root not looked at",
         {{"", Document("<Foo>1</Foo><actionrequest><ID>3</ID></actionrequest>"),
           "<AnyRoot>" + Action(1) + "</AnyRoot>", Document("")}},
         {},
         true,
         {},
         "",
         {update, show, tick},
         {1},
         false},
        {"a frame without any element costs the rest of its batch, not later frames",
         {{Document(Action(1)), "no element here", Document(Action(2))}, {Document(Action(3))}},
         {},
         true,
         {},
         "",
         {update, show, tick, update, show, tick},
         {1, 3},
         false},
        {"a failing dialog call costs the rest of the batch; what it did stays",
         {{Document(Action(1) + Action(2)), Document(Action(3))}, {Document(Action(4))}},
         {},
         true,
         {},
         "ShowActionRequestDialog",
         {update, show, tick, update, show, tick},
         {1, 4},
         false},
    };
    for (Case const& c : cases) Run(c);
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
