#include "xml/XMLElement.h"

#include <utility>

#include "xml/XMLErrors.h"

XMLElement::XMLElement(UStringRef<UTF8> name, AttributeMap const& attributes)
    : name(MakeUString(name)), attributes(attributes) {}

XMLElement::XMLElement(char const* name, AttributeMap const& attributes)
    : XMLElement(EncodingCast<UStringRef<UTF8>, char>(name), attributes) {}

XMLElement::XMLElement(SharedUString<UTF8> const& name, AttributeMap const& attributes)
    : name(name), attributes(attributes) {}

XMLElement::XMLElement(XMLElement const& other) = default;

// The name is shared, not moved: a shared string has no empty state to leave behind without a
// new link, and sharing costs no copy of its bytes.
XMLElement::XMLElement(XMLElement&& other) noexcept
    : name(other.name),
      attributes(std::move(other.attributes)),
      value(std::move(other.value)),
      children(std::move(other.children)) {}

XMLElement& XMLElement::operator=(XMLElement const& other) = default;

XMLElement& XMLElement::operator=(XMLElement&& other) noexcept {
    name = other.name;
    attributes = std::move(other.attributes);
    value = std::move(other.value);
    children = std::move(other.children);
    return *this;
}

// Children are taken apart one level at a time on a flat list, so that the depth of a tree never
// becomes the depth of the call stack: a frame of nothing but nested start tags builds a chain
// hundreds of thousands of elements deep.
XMLElement::~XMLElement() {
    if (children.empty()) return;
    std::vector<XMLElement> pending(std::move(children));
    while (!pending.empty()) {
        XMLElement last(std::move(pending.back()));
        pending.pop_back();
        for (XMLElement& child : last.children) pending.push_back(std::move(child));
        last.children.clear();
    }
}

UStringRef<UTF8> XMLElement::GetValue() const {
    if (value.empty()) return UStringRef<UTF8>();
    return UStringRef<UTF8>(value.data(), value.data() + value.size(), false);
}

XMLElement const& XMLElement::GetChildElement(UStringRef<UTF8> wanted) const {
    for (XMLElement const& child : children) {
        if (UStringRef<UTF8>(child.name) == wanted) return child;
    }
    throw NoSuchChildElement();
}

void XMLElement::AppendCharacters(UStringRef<UTF8> text) {
    value.insert(value.end(), text.begin, text.end);
}

UStringRef<UTF8> XMLElement::GetAttribute(UStringRef<UTF8> wanted) const {
    SharedUString<UTF8> const key(MakeUString(wanted));
    AttributeMap::const_iterator const found = attributes.find(key);
    if (found == attributes.end()) throw NoSuchAttribute();
    return found->second;
}

UStringRef<UTF8> XMLElement::GetAttribute(char const* wanted) const {
    return GetAttribute(EncodingCast<UStringRef<UTF8>, char>(wanted));
}

bool XMLElement::HasAttribute(UStringRef<UTF8> wanted) const {
    SharedUString<UTF8> const key(MakeUString(wanted));
    return attributes.find(key) != attributes.end();
}

bool XMLElement::HasAttribute(char const* wanted) const {
    return HasAttribute(EncodingCast<UStringRef<UTF8>, char>(wanted));
}

XMLElement* XMLElement::AddChildElement(XMLElement const& child) {
    children.push_back(child);
    return &children.back();
}

XMLElement* XMLElement::AddChildElement(XMLElement&& child) {
    children.push_back(std::move(child));
    return &children.back();
}
