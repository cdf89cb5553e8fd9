#include "session/ActionRequest.h"

#include "xml/XMLLoad.h"

NullOr<Instant> ActionRequest::Deadline() const {
    if (m_deadline.IsNull()) return NullOr<Instant>();
    return NullOr<Instant>(Instant(*m_deadline));
}

void ActionRequest::SetTitle(UStringRef<UTF8> title) {
    m_title = MakeUString(title);
}

void ActionRequest::SetDescription(UStringRef<UTF8> description) {
    m_shortDescription = MakeUString(description);
}

void XMLSerialize(XMLElement const& element, ActionRequest& request) {
    XMLSerialize(element, "PreActionMessage", request.m_preActionMessage);
    XMLSerialize(element, "Deadline", request.m_deadline);
    XMLSerialize(element, "ShortDescription", request.m_shortDescription);
    XMLSerialize(element, "Preview", request.m_preview);
    XMLSerialize(element, "ID", request.m_id);
    XMLSerialize(element, "Title", request.m_title);
    XMLSerialize(element, "Cancellable", request.m_cancellable);
    XMLSerialize(element, "Restart", request.m_restart);
    XMLSerialize(element, "Shutdown", request.m_shutdown);
    XMLSerialize(element, "ForceRun", request.m_forceRun);
    XMLSerialize(element, "RequestSave", request.m_requestSave);
    XMLSerialize(element, "UseCannedStrings", request.m_useCannedStrings);
}
