#include "session/ProcessMessagesFromUI.h"

#include <memory>
#include <string>

#include "session/ClientSender.h"
#include "session/DecisionDocuments.h"
#include "session/DialogCalls.h"
#include "session/SessionState.h"
#include "session/Trace.h"
#include "time/TimeInterval.h"
#include "time/TimeObject.h"

bool confirmingAll = false;
std::size_t confirmAllPosition = 0;

namespace {

char const* const commandNames[] = {"TakeAll",
                                    "ShowDetails",
                                    "DetailsClosed",
                                    "Cancel",
                                    "Take",
                                    "Snooze",
                                    "ConfirmationAccepted",
                                    "ConfirmationRejected",
                                    "QuietModeDismissed",
                                    "ShowActions"};

// Returns the index of the first pending action with that ID, or the size of actions.
std::size_t FindAction(unsigned long long id) {
    std::size_t position = 0;
    while (position < actions.size() && actions[position].m_id != id) ++position;
    return position;
}

void SendActionTaken(unsigned long long id, bool isCancel) {
    ActionTaken taken;
    taken.m_id = id;
    taken.m_isCancel = isCancel;
    taken.m_isOffer = false;
    SendToClient(pipeWriter, taken);
}

// Asks for the confirmations from confirmAllPosition on. Returns true when a confirmation
// dialog opened and the walk waits for its answer.
bool ContinueTakeAll() {
    while (confirmAllPosition < actions.size()) {
        std::size_t const position = confirmAllPosition++;
        if (ConfirmAction(position)) {
            confirmingAll = true;
            return true;
        }
    }
    return false;
}

void StartTakeAll() {
    confirmingAll = false;
    confirmAllPosition = 0;
    if (!ContinueTakeAll()) TakeAllActions();
}

// Every end of a take-all walk leaves confirmingAll clear: here after the last confirmation was
// accepted, on a rejection, and in StartTakeAll, which clears it before a walk that may open no
// confirmation at all. So once the walk is over, an accepted confirmation answers only its own
// action and never resumes a walk that has ended.
void FinishTakeAll() {
    TakeAllActions();
    confirmingAll = false;
    EnableActionRequestDialog();
}

void Snooze(UICommand const& command) {
    if (actions.empty()) return;
    TimeInterval const interval(static_cast<std::int64_t>(command.m_minutes) * 60000000);
    Instant remindAt;
    if (command.m_minutes > 0)
        remindAt = Instant::Now() + interval;
    else
        remindAt = Instant(interval.Microseconds() +
                           static_cast<std::int64_t>(command.m_seconds) * 1000000);
    SetRemindTime(remindAt);
    m_remindInterval = interval;
    RemindInterval sent;
    sent.m_timeInterval = interval;
    SendToClient(pipeWriter, sent);
}

void CarryOut(UICommand const& command) {
    std::size_t const found = FindAction(command.m_actionID);
    bool const isFound = found < actions.size();
    switch (command.m_command) {
        case UICommandTakeAll:
            StartTakeAll();
            break;
        case UICommandShowDetails:
            ShowActionDetailsDialog(command.m_actionID);
            break;
        case UICommandDetailsClosed:
            EnableActionRequestDialog();
            break;
        case UICommandCancel:
            if (isFound) AnswerAction(found, true);
            EnableActionRequestDialog();
            break;
        case UICommandTake:
            if (!isFound) {
                EnableActionRequestDialog();
            } else if (actions[found].m_preActionMessage.IsNull()) {
                AnswerAction(found, false);
                EnableActionRequestDialog();
            } else {
                // The action dialog stays disabled until the confirmation is answered.
                ShowConfirmationRequestDialog(command.m_actionID);
            }
            break;
        case UICommandSnooze:
            Snooze(command);
            break;
        case UICommandConfirmationAccepted:
            if (confirmingAll) {
                if (!ContinueTakeAll()) FinishTakeAll();
            } else {
                if (isFound) AnswerAction(found, false);
                EnableActionRequestDialog();
            }
            break;
        case UICommandConfirmationRejected:
            confirmingAll = false;
            EnableActionRequestDialog();
            break;
        case UICommandQuietModeDismissed:
            EnableActionRequestDialog();
            break;
        case UICommandShowActions:
            ShowActionRequestDialog(false, m_remindInterval, m_snoozable);
            break;
        default:
            break;  // an unknown command is ignored
    }
}

}  // namespace

void AnswerAction(std::size_t position, bool isCancel) {
    SendActionTaken(actions[position].m_id, isCancel);
    actions.erase(actions.begin() + static_cast<std::ptrdiff_t>(position));
    UpdateActionRequestDialog();
}

void TakeAllActions() {
    for (ActionRequest const& action : actions) SendActionTaken(action.m_id, false);
    actions.clear();
    UpdateActionRequestDialog();
    EnableActionRequestDialog();
}

void SetRemindTime(Instant const& time) {
    m_postponedTo = time;
    RemindTime sent;
    sent.m_timeObject = TimeObject(time, TimeZone(0));
    SendToClient(pipeWriter, sent);
}

bool ConfirmAction(std::size_t position) {
    ActionRequest const& action = actions[position];
    if (action.m_preActionMessage.IsNull()) return false;
    ShowConfirmationRequestDialog(action.m_id);
    return true;
}

void ProcessMessagesFromUI() {
    FiFoQueue<std::unique_ptr<UICommand>> commands;
    uiCommandQ.ReadMessages(commands);
    while (!commands.IsEmpty()) {
        std::unique_ptr<UICommand> command = commands.TakeFirst();
        try {
            Trace([&] {
                std::string name = command->m_command <= UICommandShowActions
                                       ? commandNames[command->m_command]
                                       : std::to_string(command->m_command);
                return "handled command " + name + " " + std::to_string(command->m_actionID);
            });
            CarryOut(*command);
        } catch (...) {
            Trace([] { return "dropped a command: " + CurrentExceptionName(); });
        }
        command.reset();
    }
}
