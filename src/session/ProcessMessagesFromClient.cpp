#include "session/ProcessMessagesFromClient.h"

#include <algorithm>
#include <memory>
#include <string>

#include "session/DialogCalls.h"
#include "session/InitializationInfo.h"
#include "session/MessageRequest.h"
#include "session/ProcessInitializationInfo.h"
#include "session/QuietMode.h"
#include "session/RemoveRequest.h"
#include "session/SessionState.h"
#include "session/Trace.h"
#include "xml/SimpleXMLParse.h"
#include "xml/XMLLoad.h"

namespace {

// Frames that followed the first document in its batch. They wait for the next call, when
// the X side is up, and are taken before anything new.
FiFoQueue<UIMessage>& DeferredMessages() {
    static FiFoQueue<UIMessage> deferredMessages;
    return deferredMessages;
}

bool Named(XMLElement const& element, char const* name) {
    return UStringRef<UTF8>(element.name) == EncodingCast<UStringRef<UTF8>, char>(name);
}

void HandleActionRequest(XMLElement const& child) {
    ActionRequest request;
    XMLSerialize(child, request);
    actions.push_back(request);
    Trace([&] { return "handled ActionRequest " + std::to_string(request.m_id); });
    UpdateActionRequestDialog();
    ShowActionRequestDialog(false, m_remindInterval, m_snoozable);
}

void HandleRemoveRequest(XMLElement const& child) {
    RemoveRequest request;
    XMLLoad(child, request);
    Trace([&] {
        return "handled RemoveRequest " + std::to_string(request.m_id) + " of type " +
               std::to_string(request.m_type);
    });
    if (request.m_type == Action || request.m_type == All) {
        RemoveAction(request.m_id);
        UpdateActionRequestDialog();
    }
    if (request.m_type == Message || request.m_type == All) RemoveMessageDialog(request.m_id);
}

void HandleMessageRequest(XMLElement const& child) {
    MessageRequest request;
    XMLSerialize(child, request);
    Trace([&] { return "handled MessageRequest " + std::to_string(request.m_id); });
    ShowMessageDialog(request);
}

void HandleQuietModeStart(XMLElement const& child) {
    // First of all: a start whose times cannot be read still switches quiet mode on.
    inQuietMode = true;
    QuietModeStart start;
    XMLSerialize(child, start);
    Trace([] { return std::string("handled QuietModeStart"); });
    if (IsActionRequestDialogShown()) {
        ShowQuietModeDialog(Instant(start.m_startTime), Instant(start.m_endTime));
        DisableActionRequestDialog();
    }
}

void HandleQuietModeEnd() {
    inQuietMode = false;
    Trace([] { return std::string("handled QuietModeEnd"); });
    RemoveQuietModeDialog();
    if (IsActionRequestDialogShown()) {
        UpdateActionRequestDialog();
        EnableActionRequestDialog();
    }
}

enum class Outcome { goOn, batchDeferred };

// Handles the children of one document in order. Returns batchDeferred once the first document
// has been processed: the rest of the document is dropped and the rest of the batch waits.
Outcome HandleDocument(XMLElement const& root, FiFoQueue<UIMessage>& batch) {
    for (XMLElement const& child : root.children) {
        if (Named(child, "ActionRequest")) {
            HandleActionRequest(child);
        } else if (Named(child, "InitializationInfo")) {
            if (initialized) {
                Trace(
                    [] { return std::string("skipped InitializationInfo: already initialized"); });
                continue;
            }
            InitializationInfo info;
            XMLSerialize(child, info);
            ProcessInitializationInfo(info);
            batch.Swap(DeferredMessages());
            Trace([] {
                return std::string("handled InitializationInfo; the rest of its batch waits");
            });
            return Outcome::batchDeferred;
        } else if (Named(child, "RemoveRequest")) {
            HandleRemoveRequest(child);
        } else if (Named(child, "MessageRequest")) {
            HandleMessageRequest(child);
        } else if (Named(child, "QuietModeStart")) {
            HandleQuietModeStart(child);
        } else if (Named(child, "QuietModeEnd")) {
            HandleQuietModeEnd();
        } else {
            Trace([&] { return "ignored element " + PrintableName(child.name); });
        }
    }
    return Outcome::goOn;
}

}  // namespace

void ProcessMessagesFromClient() {
    FiFoQueue<UIMessage> batch;
    try {
        if (!DeferredMessages().IsEmpty())
            batch.Swap(DeferredMessages());
        else
            readQ.ReadMessages(batch);
        while (!batch.IsEmpty()) {
            UIMessage const message = batch.TakeFirst();
            if (message.Length() == 0) {
                Trace([] { return std::string("skipped an empty frame"); });
                continue;
            }
            std::unique_ptr<XMLElement> const root = SimpleXML::Parse(message.m_text);
            if (HandleDocument(*root, batch) == Outcome::batchDeferred) return;
        }
    } catch (...) {
        Trace(
            [] { return "dropped a frame and the rest of its batch: " + CurrentExceptionName(); });
    }
}

void RemoveAction(unsigned long long id) {
    auto const found =
        std::find_if(actions.begin(), actions.end(),
                     [id](ActionRequest const& action) { return action.m_id == id; });
    if (found != actions.end()) actions.erase(found);
}
