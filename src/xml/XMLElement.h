#pragma once
// One element of a received document, with its name, attributes, all its character data run
// together, and its children by value. Every reading of a document goes through this tree; it
// keeps no trace of comments, CDATA boundaries or how text and children alternated.

#include <map>
#include <vector>

#include "text/unicode/SharedUString.h"
#include "text/unicode/UString.h"

class XMLElement {
  public:
    // Attributes by name, ordered bytewise with a shorter prefix first; names are unique.
    typedef std::map<SharedUString<UTF8>, SharedUString<UTF8>> AttributeMap;

    // Copies the name into a fresh string and copies the map; no value and no children.
    XMLElement(UStringRef<UTF8> name, AttributeMap const& attributes);
    // The same from a C string; a null pointer gives an empty name.
    XMLElement(char const* name, AttributeMap const& attributes);
    // Shares the name's buffer instead of copying it, for builders that meet one name often.
    XMLElement(SharedUString<UTF8> const& name, AttributeMap const& attributes);
    // Deep copies of attributes, value and children; names share their buffers.
    XMLElement(XMLElement const& other);
    XMLElement(XMLElement&& other) noexcept;
    XMLElement& operator=(XMLElement const& other);
    XMLElement& operator=(XMLElement&& other) noexcept;
    ~XMLElement();

    // Returns a view of the character data, or a null view when there is none. It is valid until
    // the element changes or dies.
    UStringRef<UTF8> GetValue() const;

    // Returns the first child with exactly that name. Throws NoSuchChildElement if none has it.
    XMLElement const& GetChildElement(UStringRef<UTF8> name) const;

    // Appends the bytes to the character data.
    void AppendCharacters(UStringRef<UTF8> text);

    // Returns a view of the attribute's value. Throws NoSuchAttribute if the name is absent.
    // A null C string is taken as the null name.
    UStringRef<UTF8> GetAttribute(UStringRef<UTF8> name) const;
    UStringRef<UTF8> GetAttribute(char const* name) const;

    // Returns whether the element has an attribute of that name.
    bool HasAttribute(UStringRef<UTF8> name) const;
    bool HasAttribute(char const* name) const;

    // Appends a copy of the child and returns its address, which holds until the next
    // AddChildElement on this element.
    XMLElement* AddChildElement(XMLElement const& child);
    // The same, taking over the child instead of copying it.
    XMLElement* AddChildElement(XMLElement&& child);

    SharedUString<UTF8> name;
    AttributeMap attributes;
    std::vector<UTF8::Unit> value;
    std::vector<XMLElement> children;
};
