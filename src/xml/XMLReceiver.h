#pragma once
// The callback interface of SimpleXML::SAXParser: the parser's findings in the system's own
// string types. Every operation does nothing by default.

#include <map>

#include "text/unicode/SharedUString.h"
#include "text/unicode/UString.h"

class XMLReceiver {
  public:
    // Attributes by name, ordered bytewise; a repeated name keeps its last value.
    typedef std::map<SharedUString<UTF8>, SharedUString<UTF8>> AttributeMap;

    virtual ~XMLReceiver() = default;

    // A start tag; the views are valid only during the call.
    virtual void StartElement(UStringRef<UTF8>, AttributeMap const&) {}
    // An end tag or a self-closed tag, whichever name it had.
    virtual void EndElement() {}
    // A piece of character data; one run of text may arrive in several pieces.
    virtual void Characters(UStringRef<UTF8>) {}
};
