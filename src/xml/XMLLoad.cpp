#include "xml/XMLLoad.h"

#include "files/FileLocationFunctions.h"
#include "text/bytes/AsciiNumerals.h"
#include "text/bytes/ConstData.h"
#include "text/unicode/LocaleConversion.h"
#include "time/TextToTime.h"
#include "time/XMLTime.h"

namespace {

ConstData Bytes(UStringRef<UTF8> text) {
    return ConstData(text.begin, text.end);
}

bool BoolFromText(UStringRef<UTF8> text) {
    ConstData const bytes = Bytes(text);
    return !(bytes == ConstData("0") || bytes == ConstData("false"));
}

}  // namespace

void XMLLoad(XMLElement const& element, bool& out) {
    out = BoolFromText(element.GetValue());
}

void XMLLoad(XMLElement const& element, unsigned long& out) {
    unsigned long long const value = ReadAsciiDecimalNumeral64(Bytes(element.GetValue()));
    if (value > 4294967295ull) throw NumeralTooLarge();
    out = static_cast<unsigned long>(value);
}

void XMLLoad(XMLElement const& element, unsigned long long& out) {
    out = ReadAsciiDecimalNumeral64(Bytes(element.GetValue()));
}

void XMLLoad(XMLElement const& element, CopiedUString<UTF8>& out) {
    out = CopiedUString<UTF8>(element.GetValue());
}

void XMLLoad(XMLElement const& element, SharedUString<UTF8>& out) {
    out = MakeUString(element.GetValue());
}

void XMLLoad(XMLElement const& element, AutoUString<UTF8>& out) {
    out = MakeUString(element.GetValue());
}

void XMLLoad(XMLElement const& element, std::string& out) {
    AutoUString<Local8Bit> const local = UnixPlatform::ToLocal8Bit(element.GetValue());
    out = local.begin ? std::string(local.begin, local.end) : std::string();
}

void XMLLoad(XMLElement const& element, TimeObject& out) {
    out = TextToTime(Bytes(element.GetValue()));
}

void XMLLoad(XMLElement const& element, TimeInterval& out) {
    out = XMLDurationToTimeInterval(element.GetValue());
}

void XMLLoad(XMLElement const& element, FileLocation& out) {
    std::string path;
    XMLLoad(element, path);
    out = MakeFileLocation(ConstData(path));
}

void XMLLoad(XMLElement const& element, FileName& out) {
    std::string text;
    XMLLoad(element, text);
    FileName name;
    if (!text.empty()) name.Set(text.data(), text.size());
    out = name;
}

void XMLLoadAttribute(XMLElement const& element, UStringRef<UTF8> name, CopiedUString<UTF8>& out) {
    out = CopiedUString<UTF8>(element.GetAttribute(name));
}

void XMLLoadAttribute(XMLElement const& element, UStringRef<UTF8> name, SharedUString<UTF8>& out) {
    out = MakeUString(element.GetAttribute(name));
}

void XMLLoadAttribute(XMLElement const& element, UStringRef<UTF8> name, AutoUString<UTF8>& out) {
    out = MakeUString(element.GetAttribute(name));
}

void XMLLoadAttribute(XMLElement const& element, UStringRef<UTF8> name, bool& out) {
    out = element.HasAttribute(name) && BoolFromText(element.GetAttribute(name));
}
