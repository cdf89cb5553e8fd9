#include "session/RemoveRequest.h"

#include <string>

#include "xml/XMLLoad.h"
#include "xml/XMLSave.h"

namespace {

char const* const removeTypeWords[] = {"Action", "Offer", "Message", "All"};

// The type travels as local text holding one of the four words.
struct RemoveTypeText {
    RemoveType& type;
};

void XMLLoad(XMLElement const& element, RemoveTypeText& field) {
    std::string word;
    XMLLoad(element, word);
    for (uint32_t value = Action; value <= All; ++value)
        if (word == removeTypeWords[value]) field.type = static_cast<RemoveType>(value);
}

}  // namespace

void XMLLoad(XMLElement const& element, RemoveRequest& request) {
    RemoveTypeText type{request.m_type};
    XMLSerialize(element, "RemoveType", type);
    XMLSerialize(element, "ID", request.m_id);
}

void XMLSave(XMLWriter& writer, RemoveRequest const& request) {
    XMLSerialize(writer, "RemoveType", std::string(removeTypeWords[request.m_type & 3]));
    XMLSerialize(writer, "ID", request.m_id);
}
