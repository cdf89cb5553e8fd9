#pragma once
// The one entry point from document text to an element tree.

#include <memory>

#include "text/unicode/UString.h"
#include "xml/XMLElement.h"

namespace SimpleXML {

// Returns the root element of the text, parsed in one pass; the caller owns it. Elements left
// open are part of the tree as they stand. Throws FormatError if the text held no element, and
// only then: empty text, bare text, comments, instructions and self-closed tags alone.
std::unique_ptr<XMLElement> Parse(UStringRef<UTF8> text);

}  // namespace SimpleXML
