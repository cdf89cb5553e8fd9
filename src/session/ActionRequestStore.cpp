#include "session/ActionRequestStore.h"

#include "session/SessionErrors.h"

TimeInterval const ActionRequestStore::forcedDeadlineFloor(300000000);

bool ActionRequestStore::HasAction(unsigned long long const& id) const {
    return m_actions.find(id) != m_actions.end();
}

ActionRequest const& ActionRequestStore::GetAction(unsigned long long const& id) const {
    auto const found = m_actions.find(id);
    if (found == m_actions.end()) throw NoSuchActionRequestID();
    return found->second;
}

void ActionRequestStore::RemoveAction(unsigned long long const& id) {
    auto const found = m_actions.find(id);
    if (found == m_actions.end()) throw NoSuchActionRequestID();
    m_actions.erase(found);
}

void ActionRequestStore::UpdateActions(std::vector<ActionRequest> const& list) {
    UpdateActions(list, Instant::Now());
}

void ActionRequestStore::UpdateActions(std::vector<ActionRequest> const& list, Instant now) {
    Instant const limit = now + forcedDeadlineFloor;
    for (ActionRequest const& action : list) {
        ActionRequest& entry = m_actions[action.m_id];
        entry = action;
        if (!entry.m_forceRun) continue;
        NullOr<Instant> const deadline = entry.Deadline();
        if (!deadline.IsNull() && *deadline < limit)
            entry.m_deadline = TimeObject(limit, TimeZone(0));
    }
}
