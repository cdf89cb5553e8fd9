#pragma once
// How values are written into XML content: text either escaped or as one CDATA section,
// numbers as decimal digits, local 8-bit strings through UTF-8, and the named-element forms
// that wrap a value in its own element.

#include <string>

#include "text/unicode/UString.h"
#include "xml/XMLWriter.h"

// Writes text into the open element. Text with any of "<", "&", ">" goes as one CDATA section,
// unless it holds "]]>" (which a section cannot hold) or line ends are escaped; everything
// else, the empty text included, is written with escapes.
void XMLSave(XMLWriter& writer, UStringRef<UTF8> text);
// Writes a local 8-bit string converted to UTF-8 by the text rule. Throws what the locale
// conversion throws.
void XMLSave(XMLWriter& writer, std::string const& text);
// Writes the decimal digits of the number, at least one, without a sign.
void XMLSave(XMLWriter& writer, unsigned long value);
void XMLSave(XMLWriter& writer, unsigned long long value);

// Writes the value wrapped in an element of the given name.
template <class T>
void XMLSave(XMLWriter& writer, UStringRef<UTF8> name, T const& value) {
    writer.BeginElement(name);
    XMLSave(writer, value);
    writer.EndElement();
}

// Writes the value wrapped in an element named by a C string.
template <class T>
void XMLSerialize(XMLWriter& writer, char const* name, T const& value) {
    XMLSave(writer, EncodingCast<UStringRef<UTF8>, char>(name), value);
}
