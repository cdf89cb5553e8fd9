#pragma once
// The callback interface of the byte-level XML parser: what it found, in the parser's own byte
// strings. Everything handed to a handler belongs to the parser and is valid only during the call.

#include <string>
#include <vector>

// A plain pair of two values with public fields, as the parser hands attributes to its handler:
// `first` is the attribute's name, `second` its value.
template <typename A, typename B>
struct Pair {
    A first;
    B second;
};
class XMLHandler {
  public:
    // The attributes of one tag, in the order they were written; first is the name, second the
    // value. A name may occur more than once.
    typedef std::vector<Pair<std::string, std::string> const*> AttributePointers;

    virtual ~XMLHandler() = default;

    // A start tag (or `<>`, with an empty name) has been read completely.
    virtual void StartElement(std::string const& name, AttributePointers const& attributes) = 0;
    // An end tag, or the end part of a self-closed tag; the name is not checked against anything.
    virtual void EndElement(std::string const& name) = 0;
    // A piece of character data; one run of text may arrive in several pieces.
    virtual void Characters(std::string const& text) = 0;
    // A tag whose name begins with "?", the XML declaration among them. Ignored by default.
    virtual void DoProcessingInstructionElement(std::string const&, AttributePointers const&) {}
};
