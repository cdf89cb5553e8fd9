#include "session/PendingActionsTick.h"

#include "session/ClientSender.h"
#include "session/DecisionDocuments.h"
#include "session/DialogCalls.h"
#include "session/SessionState.h"

namespace {

// A deadline nearer than this is shown counting down, so the dialog is refreshed every tick.
TimeInterval const soonWindow(300000000);

}  // namespace

void TickPendingActions() {
    if (m_postponedTo < Instant::Now() && !actions.empty())
        ShowActionRequestDialog(false, m_remindInterval, m_snoozable);
    RemoveTimedoutMessageDialogs();
    // Nothing expires in quiet mode: the first tick after it ends answers what has passed.
    if (inQuietMode) return;

    Instant const now = Instant::Now();
    Instant const soon = now + soonWindow;
    bool changed = false;
    for (auto action = actions.begin(); action != actions.end();) {
        if (!action->m_forceRun) {
            ++action;
            continue;
        }
        NullOr<Instant> const deadline = action->Deadline();
        if (deadline.IsNull()) {
            ++action;
            continue;
        }
        if (now > *deadline) {
            ActionTaken taken;
            taken.m_id = action->m_id;
            taken.m_isCancel = false;
            taken.m_isOffer = false;
            SendToClient(pipeWriter, taken);
            action = actions.erase(action);
            changed = true;
            continue;
        }
        if (*deadline < soon) changed = true;
        ++action;
    }
    if (changed) UpdateActionRequestDialog();
}
