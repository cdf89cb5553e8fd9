#pragma once
// A snapshot of the pending actions by ID, which the action dialog builds whenever it redraws
// and drops afterwards, so that a summary over several actions finds each one. In the snapshot
// a forced action never looks closer than five minutes away; the session's own list keeps the
// true deadlines, and the expiry of forced actions works from those.

#include <map>
#include <vector>

#include "session/ActionRequest.h"
#include "time/Instant.h"

class ActionRequestStore {
  public:
    // How close a forced deadline may look in the snapshot: five minutes.
    static TimeInterval const forcedDeadlineFloor;

    bool HasAction(unsigned long long const& id) const;
    // Returns the entry of the ID. Throws NoSuchActionRequestID if there is none.
    ActionRequest const& GetAction(unsigned long long const& id) const;
    // Erases the entry of the ID. Throws NoSuchActionRequestID if there is none.
    void RemoveAction(unsigned long long const& id);

    // Replaces, for each element of the list in order, the entry of its ID by the element,
    // inserting one where there is none: of two elements with one ID the later stays. A forced
    // action whose deadline lies strictly before now plus five minutes gets that limit as its
    // deadline, in the zone of offset 0. Entries missing from the list stay; nothing else
    // changes. Reads the clock once.
    void UpdateActions(std::vector<ActionRequest> const& list);
    // The same with now given, for a caller that has read the clock already.
    void UpdateActions(std::vector<ActionRequest> const& list, Instant now);

  private:
    std::map<unsigned long long, ActionRequest> m_actions;
};
