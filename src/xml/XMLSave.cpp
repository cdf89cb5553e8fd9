#include "xml/XMLSave.h"

#include <cstring>

#include "text/bytes/AsciiNumerals.h"
#include "text/bytes/ConstData.h"
#include "text/unicode/LocaleConversion.h"

namespace {

bool ContainsMarkup(ConstData bytes) {
    for (unsigned char const* p = bytes.begin; p != bytes.end; ++p)
        if (*p == '<' || *p == '&' || *p == '>') return true;
    return false;
}

}  // namespace

void XMLSave(XMLWriter& writer, UStringRef<UTF8> text) {
    ConstData bytes(text.begin, text.end);
    if (!ContainsMarkup(bytes) || bytes.Contains(ConstData("]]>")) || writer.EscapeLineEnds())
        writer.WriteString(text);
    else
        writer.WriteCData(text);
}

void XMLSave(XMLWriter& writer, std::string const& text) {
    UStringRef<Local8Bit> local(text.data(), text.data() + text.size(), true);
    AutoUString<UTF8> utf8 = UnixPlatform::ToUTF8(local);
    XMLSave(writer, UStringRef<UTF8>(utf8));
}

void XMLSave(XMLWriter& writer, unsigned long value) {
    XMLSave(writer, static_cast<unsigned long long>(value));
}

void XMLSave(XMLWriter& writer, unsigned long long value) {
    auto digits = MakeAsciiDecimalNumeral64(value, 1);
    auto bytes = reinterpret_cast<unsigned char const*>(digits.CString());
    writer.WriteString(UStringRef<UTF8>(bytes, bytes + digits.Length()));
}
