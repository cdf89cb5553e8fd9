#include "DocumentMatch.h"

#include <expat.h>

#include <memory>
#include <stdexcept>

namespace {

struct TreeBuilder {
    DocumentElement root;
    std::vector<DocumentElement*> open;
};

void XMLCALL StartElement(void* data, XML_Char const* name, XML_Char const**) {
    auto* builder = static_cast<TreeBuilder*>(data);
    if (builder->open.empty()) {
        builder->root.name = name;
        builder->open.push_back(&builder->root);
        return;
    }
    DocumentElement* parent = builder->open.back();
    parent->children.push_back(DocumentElement{name, {}, {}});
    builder->open.push_back(&parent->children.back());
}

void XMLCALL EndElement(void* data, XML_Char const*) {
    static_cast<TreeBuilder*>(data)->open.pop_back();
}

void XMLCALL Characters(void* data, XML_Char const* text, int length) {
    auto* builder = static_cast<TreeBuilder*>(data);
    if (!builder->open.empty()) builder->open.back()->text.append(text, length);
}

DocumentElement const* FindChild(DocumentElement const& element, std::string const& name) {
    for (DocumentElement const& child : element.children)
        if (child.name == name) return &child;
    return nullptr;
}

std::string Quoted(std::string const& value) {
    return "\"" + value + "\"";
}

std::string ShortValue(std::string value) {
    size_t const longest = 40;
    if (value.size() > longest) value = value.substr(0, longest) + "...";
    for (char& c : value)
        if (c == '\n' || c == '\t') c = ' ';
    if (value.empty() || value.find(' ') != std::string::npos) return Quoted(value);
    return value;
}

}  // namespace

DocumentElement ParseDocument(std::string const& text) {
    // The open-element stack points into vectors that grow: an element's children are only
    // appended to while it is the innermost open one, so no pointer on the stack moves.
    TreeBuilder builder;
    std::unique_ptr<XML_ParserStruct, void (*)(XML_Parser)> parser(XML_ParserCreate("UTF-8"),
                                                                   XML_ParserFree);
    if (!parser) throw std::runtime_error("cannot make an XML parser");
    XML_SetUserData(parser.get(), &builder);
    XML_SetElementHandler(parser.get(), StartElement, EndElement);
    XML_SetCharacterDataHandler(parser.get(), Characters);
    if (XML_Parse(parser.get(), text.data(), static_cast<int>(text.size()), XML_TRUE) !=
        XML_STATUS_OK) {
        throw std::runtime_error(std::string("not a well-formed document: ") +
                                 XML_ErrorString(XML_GetErrorCode(parser.get())) + " at line " +
                                 std::to_string(XML_GetCurrentLineNumber(parser.get())));
    }
    return builder.root;
}

std::string Mismatch(DocumentElement const& document, Expectation const& expected) {
    if (document.children.empty()) return "the document " + document.name + " holds no message";
    DocumentElement const& message = document.children.front();
    if (message.name != expected.message)
        return "expected " + expected.message + ", got " + message.name;
    for (auto const& [name, value] : expected.fields) {
        DocumentElement const* child = FindChild(message, name);
        if (!child) return message.name + " has no " + name;
        if (value != "*" && child->text != value)
            return message.name + " " + name + " is " + Quoted(child->text) + ", expected " +
                   Quoted(value);
    }
    return std::string();
}

std::string Summary(DocumentElement const& document) {
    std::string line;
    for (DocumentElement const& message : document.children) {
        if (!line.empty()) line += "; ";
        line += message.name;
        for (DocumentElement const& child : message.children)
            if (child.children.empty()) line += " " + child.name + "=" + ShortValue(child.text);
    }
    return line.empty() ? document.name + " (empty)" : line;
}
