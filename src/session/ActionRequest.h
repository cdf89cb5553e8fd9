#pragma once
// One action the agent wants to run, as an "ActionRequest" document describes it. Pending
// actions are kept by value in the session's list, in order of arrival; their texts share
// their bytes between copies.

#include "text/bytes/NullOr.h"
#include "text/unicode/SharedUString.h"
#include "text/unicode/UString.h"
#include "time/Instant.h"
#include "time/TimeObject.h"

class XMLElement;

struct ActionRequest {
    // Returns null without a deadline, else the instant of the stored reading, converted
    // afresh at each call. Session code reads a deadline only through this.
    NullOr<Instant> Deadline() const;

    // For whoever composes a request; this process only loads them.
    void SetTitle(UStringRef<UTF8> title);
    void SetDescription(UStringRef<UTF8> description);

    unsigned long long m_id = 0;
    NullOr<TimeObject> m_deadline;                   // null: no deadline
    NullOr<SharedUString<UTF8>> m_preview;           // what the details dialog shows
    NullOr<SharedUString<UTF8>> m_preActionMessage;  // null: taken without confirmation
    SharedUString<UTF8> m_title;
    SharedUString<UTF8> m_shortDescription;
    bool m_cancellable = false;
    bool m_shutdown = false;
    bool m_restart = false;
    bool m_forceRun = false;  // the deadline is binding: the process answers it when it passes
    bool m_requestSave = false;
    // The agent always sends this one; without it the request reads as false. Nothing in this
    // process reads it; it is loaded and copied along.
    bool m_useCannedStrings = false;
};

// Loads the fields in the order the agent's documents have always been read: PreActionMessage,
// Deadline, ShortDescription, Preview, ID, Title, Cancellable, Restart, Shutdown, ForceRun,
// RequestSave, UseCannedStrings. Throws what the value forms throw; the record then stays
// filled half-way.
void XMLSerialize(XMLElement const& element, ActionRequest& request);
