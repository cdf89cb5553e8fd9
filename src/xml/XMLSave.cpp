#include "xml/XMLSave.h"

#include <cstring>

#include "text/bytes/AsciiNumerals.h"
#include "text/bytes/ConstData.h"
#include "text/unicode/LocaleConversion.h"
#include "time/TimeText.h"
#include "time/XMLTime.h"

namespace {

bool ContainsMarkup(ConstData bytes) {
    for (unsigned char const* p = bytes.begin; p != bytes.end; ++p)
        if (*p == '<' || *p == '&' || *p == '>') return true;
    return false;
}

UStringRef<UTF8> BoolText(bool value) {
    static UStringRef<UTF8> const trueText = EncodingCast<UStringRef<UTF8>, char>("true");
    static UStringRef<UTF8> const falseText = EncodingCast<UStringRef<UTF8>, char>("false");
    return value ? trueText : falseText;
}

UStringRef<UTF8> AsUTF8(ConstData bytes) {
    return UStringRef<UTF8>(bytes.begin, bytes.end);
}

}  // namespace

void XMLSave(XMLWriter& writer, UStringRef<UTF8> text) {
    ConstData bytes(text.begin, text.end);
    if (!ContainsMarkup(bytes) || bytes.Contains(ConstData("]]>")) || writer.EscapeLineEnds())
        writer.WriteString(text);
    else
        writer.WriteCData(text);
}

void XMLSave(XMLWriter& writer, CopiedUString<UTF8> const& text) {
    XMLSave(writer, UStringRef<UTF8>(text));
}

void XMLSave(XMLWriter& writer, SharedUString<UTF8> const& text) {
    XMLSave(writer, UStringRef<UTF8>(text));
}

void XMLSave(XMLWriter& writer, AutoUString<UTF8> const& text) {
    XMLSave(writer, UStringRef<UTF8>(text));
}

void XMLSave(XMLWriter& writer, std::string const& text) {
    UStringRef<Local8Bit> local(text.data(), text.data() + text.size(), true);
    AutoUString<UTF8> utf8 = UnixPlatform::ToUTF8(local);
    XMLSave(writer, UStringRef<UTF8>(utf8));
}

void XMLSave(XMLWriter& writer, bool value) {
    writer.WriteString(BoolText(value));
}

void XMLSave(XMLWriter& writer, unsigned long value) {
    XMLSave(writer, static_cast<unsigned long long>(value));
}

void XMLSave(XMLWriter& writer, unsigned long long value) {
    auto digits = MakeAsciiDecimalNumeral64(value, 1);
    writer.WriteString(AsUTF8(digits));
}

void XMLSave(XMLWriter& writer, TimeObject const& value) {
    auto text = TimeToText(value);
    writer.WriteString(AsUTF8(text));
}

void XMLSave(XMLWriter& writer, TimeInterval const& value) {
    AutoUString<UTF8> text = TimeIntervalToXMLDuration(value);
    writer.WriteString(text);
}

void XMLSave(XMLWriter& writer, FileLocation const& value) {
    XMLSave(writer, std::string(value.Text()));
}

void XMLSave(XMLWriter& writer, FileName const& value) {
    XMLSave(writer, std::string(value.Text(), value.TextLength()));
}

void XMLSaveAttribute(XMLWriter& writer, UStringRef<UTF8> name, UStringRef<UTF8> value) {
    writer.AddAttribute(name, value);
}

void XMLSaveAttribute(XMLWriter& writer, UStringRef<UTF8> name, CopiedUString<UTF8> const& value) {
    writer.AddAttribute(name, value);
}

void XMLSaveAttribute(XMLWriter& writer, UStringRef<UTF8> name, SharedUString<UTF8> const& value) {
    writer.AddAttribute(name, value);
}

void XMLSaveAttribute(XMLWriter& writer, UStringRef<UTF8> name, AutoUString<UTF8> const& value) {
    writer.AddAttribute(name, value);
}

void XMLSaveAttribute(XMLWriter& writer, UStringRef<UTF8> name, bool value) {
    writer.AddAttribute(name, BoolText(value));
}
