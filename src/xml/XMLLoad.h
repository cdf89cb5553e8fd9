#pragma once
// How values are read back from a received element tree: the value forms that read an
// element's text, the rules for named children (absent keeps, repeated means last wins), the
// optional and repeated children, and the attribute forms.
//
// A record is read by an XMLSerialize(XMLElement const&, Record&) that loads its fields with the
// named forms below; a record that is itself a child is read through that same function. No
// loader catches anything: a failure passes to the caller, and a record filled half-way stays so.

#include <string>
#include <vector>

#include "files/FileLocation.h"
#include "files/FileName.h"
#include "text/bytes/NullOr.h"
#include "text/unicode/SharedUString.h"
#include "text/unicode/UString.h"
#include "time/TimeInterval.h"
#include "time/TimeObject.h"
#include "xml/XMLElement.h"

// "0" and "false" read as false; every other text, the empty text and "FALSE" included, as true.
void XMLLoad(XMLElement const& element, bool& out);
// Decimal digits. Throws NumeralTooLarge above 4294967295, whatever the width of long, and
// NotANumeral for text that is no numeral.
void XMLLoad(XMLElement const& element, unsigned long& out);
// Decimal digits up to the 64-bit limit. Throws as above.
void XMLLoad(XMLElement const& element, unsigned long long& out);
// A fresh copy of the element's text; no text gives the empty string.
void XMLLoad(XMLElement const& element, CopiedUString<UTF8>& out);
void XMLLoad(XMLElement const& element, SharedUString<UTF8>& out);
void XMLLoad(XMLElement const& element, AutoUString<UTF8>& out);
// The text converted to the local 8-bit encoding. Throws what the conversion throws.
void XMLLoad(XMLElement const& element, std::string& out);
// The time text of TextToTime, which must name its zone. Throws what TextToTime throws.
void XMLLoad(XMLElement const& element, TimeObject& out);
// The duration form. Throws what XMLDurationToTimeInterval throws, also for the empty text.
void XMLLoad(XMLElement const& element, TimeInterval& out);
// The local text as a path.
void XMLLoad(XMLElement const& element, FileLocation& out);
// The local text as a checked name; the empty text gives the empty name. Throws the name
// errors of FileName.
void XMLLoad(XMLElement const& element, FileName& out);

// A record held by a child reads its fields with its own XMLSerialize.
template <class Record>
void XMLLoad(XMLElement const& element, Record& out) {
    XMLSerialize(element, out);
}

// Loads every child of that name into out, in order, so that the last one wins; with none,
// out keeps its value. A failure in any child passes at once, leaving out as it stood before
// that child when the value is a plain one.
template <class T>
void XMLLoad(XMLElement const& element, UStringRef<UTF8> name, T& out) {
    for (XMLElement const& child : element.children)
        if (UStringRef<UTF8>(child.name) == name) XMLLoad(child, out);
}

// Appends one value per child of that name, in order, each read into a fresh default-made T.
// The vector is never cleared first.
template <class T, class A>
void XMLLoad(XMLElement const& element, UStringRef<UTF8> name, std::vector<T, A>& out) {
    std::size_t count = 0;
    for (XMLElement const& child : element.children)
        if (UStringRef<UTF8>(child.name) == name) ++count;
    out.reserve(out.size() + count);
    for (XMLElement const& child : element.children) {
        if (UStringRef<UTF8>(child.name) != name) continue;
        T value;
        XMLLoad(child, value);
        out.push_back(std::move(value));
    }
}

// An optional child: present, it gives a value read as above (last wins), also when its text
// is empty; absent, out becomes null even if it held a value before.
template <class T>
void XMLSerialize(XMLElement const& element, UStringRef<UTF8> name, NullOr<T>& out) {
    for (XMLElement const& child : element.children) {
        if (UStringRef<UTF8>(child.name) != name) continue;
        T value;
        XMLLoad(element, name, value);
        out = value;
        return;
    }
    out = NullOr<T>::Null();
}

// The loading forms of a record's field list: the name as a C string.
template <class T>
void XMLSerialize(XMLElement const& element, char const* name, T& out) {
    XMLLoad(element, EncodingCast<UStringRef<UTF8>, char>(name), out);
}

template <class T>
void XMLSerialize(XMLElement const& element, char const* name, NullOr<T>& out) {
    XMLSerialize(element, EncodingCast<UStringRef<UTF8>, char>(name), out);
}

// Throws NoSuchAttribute when the attribute is absent: a text attribute read this way is
// mandatory. Otherwise gives a fresh copy of its value.
void XMLLoadAttribute(XMLElement const& element, UStringRef<UTF8> name, CopiedUString<UTF8>& out);
void XMLLoadAttribute(XMLElement const& element, UStringRef<UTF8> name, SharedUString<UTF8>& out);
void XMLLoadAttribute(XMLElement const& element, UStringRef<UTF8> name, AutoUString<UTF8>& out);
// An absent attribute reads as false, without a failure; a present one by the bool rule.
void XMLLoadAttribute(XMLElement const& element, UStringRef<UTF8> name, bool& out);
