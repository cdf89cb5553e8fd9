#pragma once
// Wraps one message record into a whole document in memory.
//
// A record names its two elements with static members, and its fields are written by an
// XMLSerialize(XMLWriter&, T&) found by overload resolution:
//   static char const* const rootElementName;     // "ClientToUI" or "UIToClient"
//   static char const* const messageElementName;  // "ReadyForData" and the like

#include "text/unicode/UString.h"
#include "text/unicode/UStringBuilder.h"
#include "xml/XMLWriter.h"

// Returns the document: the declaration with its encoding, the root element, the message element
// holding the record's fields, indented by lines. Throws what the record's XMLSerialize throws.
template <class T>
AutoUString<UTF8> ConvertToXML(T& message) {
    UStringBuilder<UTF8> builder(256);
    XMLWriter writer(builder, XMLWriter::IndentedLines);
    writer.BeginDocument(XMLWriter::WithEncoding);
    writer.BeginElement(T::rootElementName);
    writer.BeginElement(T::messageElementName);
    XMLSerialize(writer, message);
    writer.EndElement();
    writer.EndElement();
    writer.EndDocument();
    return MakeUString(builder.Content());
}
