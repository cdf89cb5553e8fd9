#pragma once
// How values are written into XML content: text either escaped or as one CDATA section,
// numbers as decimal digits, booleans as "true" or "false", local 8-bit strings through UTF-8,
// times and durations in their text forms, paths and names as local text; and the named-element
// forms that wrap a value, or a record's fields, in an element of its own.
//
// A record is saved by an XMLSerialize(XMLWriter&, Record const&) that writes its fields with
// the named forms below; XMLSave(writer, name, record) then wraps them in the record's element.

#include <string>

#include "files/FileLocation.h"
#include "files/FileName.h"
#include "text/unicode/SharedUString.h"
#include "text/unicode/UString.h"
#include "time/TimeInterval.h"
#include "time/TimeObject.h"
#include "xml/XMLWriter.h"

// Writes text into the open element. Text with any of "<", "&", ">" goes as one CDATA section,
// unless it holds "]]>" (which a section cannot hold) or line ends are escaped; everything
// else, the empty text included, is written with escapes.
void XMLSave(XMLWriter& writer, UStringRef<UTF8> text);
void XMLSave(XMLWriter& writer, CopiedUString<UTF8> const& text);
void XMLSave(XMLWriter& writer, SharedUString<UTF8> const& text);
void XMLSave(XMLWriter& writer, AutoUString<UTF8> const& text);
// Writes a local 8-bit string converted to UTF-8 by the text rule. Throws what the locale
// conversion throws.
void XMLSave(XMLWriter& writer, std::string const& text);
// A C string would otherwise be taken for a bool; say which encoding it is in instead.
void XMLSave(XMLWriter& writer, char const* text) = delete;
// Writes "true" or "false".
void XMLSave(XMLWriter& writer, bool value);
// Writes the decimal digits of the number, at least one, without a sign.
void XMLSave(XMLWriter& writer, unsigned long value);
void XMLSave(XMLWriter& writer, unsigned long long value);
// Writes "Sat, 04 Mar 2000 07:05:09 -0530".
void XMLSave(XMLWriter& writer, TimeObject const& value);
// Writes the duration form, "PT5M" and the like.
void XMLSave(XMLWriter& writer, TimeInterval const& value);
// Writes the path as local text; the empty path as the empty text.
void XMLSave(XMLWriter& writer, FileLocation const& value);
// Writes the name as local text.
void XMLSave(XMLWriter& writer, FileName const& value);

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

// Writes an attribute into the open start tag: text as it stands (the writer escapes it; CDATA
// has no place in an attribute), a bool as "true" or "false".
void XMLSaveAttribute(XMLWriter& writer, UStringRef<UTF8> name, UStringRef<UTF8> value);
void XMLSaveAttribute(XMLWriter& writer, UStringRef<UTF8> name, CopiedUString<UTF8> const& value);
void XMLSaveAttribute(XMLWriter& writer, UStringRef<UTF8> name, SharedUString<UTF8> const& value);
void XMLSaveAttribute(XMLWriter& writer, UStringRef<UTF8> name, AutoUString<UTF8> const& value);
void XMLSaveAttribute(XMLWriter& writer, UStringRef<UTF8> name, bool value);
void XMLSaveAttribute(XMLWriter& writer, UStringRef<UTF8> name, char const* value) = delete;
