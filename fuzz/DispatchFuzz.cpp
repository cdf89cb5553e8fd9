// Feeds whole documents through the dispatch of the agent's messages, with the recording double
// standing in for the dialogs. The input is cut at zero bytes into frames, which arrive together
// as one batch. The session counts as initialized, so a first document is skipped and nothing
// touches the file system; its loader still reads every "InitializationInfo" child on its own.
// Dispatch must swallow every failure, and the batch may not store or show more actions than
// its frames hold "ActionRequest" children, as the parser reads them (it drops dashes from
// names, for one).

#include <cstdint>
#include <cstdlib>
#include <memory>
#include <string>
#include <vector>

#include "session/InitializationInfo.h"
#include "session/ProcessMessagesFromClient.h"
#include "session/SessionState.h"
#include "testing/RecordingDialogs.h"
#include "xml/SimpleXMLParse.h"

namespace {

void Check(bool condition) {
    if (!condition) std::abort();
}

UStringRef<UTF8> View(std::string const& text) {
    auto const* begin = reinterpret_cast<UTF8::Unit const*>(text.data());
    return UStringRef<UTF8>(begin, begin + text.size());
}

bool Named(XMLElement const& element, char const* name) {
    return UStringRef<UTF8>(element.name) == EncodingCast<UStringRef<UTF8>, char>(name);
}

// Returns how many "ActionRequest" children the frame's root has. Loads each first-document
// child into a record, as dispatch would before setting up the session; failures to load are
// expected, only a crash or a leak is a finding.
std::size_t InspectFrame(std::string const& frame) {
    std::unique_ptr<XMLElement> root;
    try {
        root = SimpleXML::Parse(View(frame));
    } catch (...) {
        return 0;
    }
    std::size_t actionRequests = 0;
    for (XMLElement const& child : root->children) {
        if (Named(child, "ActionRequest")) ++actionRequests;
        if (!Named(child, "InitializationInfo")) continue;
        try {
            InitializationInfo info;
            XMLSerialize(child, info);
            info.BrandTranslation();
            info.GeneralLocalization(FileName("fr_CA"), FileName("fr"));
        } catch (...) {
        }
    }
    return actionRequests;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(uint8_t const* data, size_t size) {
    std::vector<std::string> frames(1);
    for (size_t i = 0; i < size; ++i) {
        if (data[i] == 0)
            frames.emplace_back();
        else
            frames.back() += static_cast<char>(data[i]);
    }

    initialized = true;
    inQuietMode = false;
    actions.clear();
    RecordingDialogs::Reset();
    for (std::string const& frame : frames) {
        UIMessage message;
        if (!frame.empty()) message.m_text = MakeUString(View(frame));
        readQ.WriteMessage(message);
    }
    ProcessMessagesFromClient();
    Check(readQ.IsEmpty());

    std::size_t named = 0;
    for (std::string const& frame : frames) named += InspectFrame(frame);
    Check(actions.size() <= named);
    std::size_t shows = 0;
    for (std::string const& call : RecordingDialogs::Calls())
        if (call.compare(0, 24, "ShowActionRequestDialog(") == 0) ++shows;
    Check(shows <= named);
    actions.clear();
    return 0;
}
