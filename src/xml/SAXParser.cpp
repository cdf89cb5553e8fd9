#include "xml/SAXParser.h"

namespace SimpleXML {

namespace {

UStringRef<UTF8> View(std::string const& bytes) {
    UTF8::Unit const* begin = reinterpret_cast<UTF8::Unit const*>(bytes.data());
    return UStringRef<UTF8>(begin, begin + bytes.size(), true);
}

}  // namespace

SAXParser::SAXParser(XMLReceiver& receiver) : SimpleXMLParserPL(), receiver(&receiver) {}

SAXParser::~SAXParser() = default;

void SAXParser::Parse(UStringRef<UTF8> text) {
    Parse(reinterpret_cast<char const*>(text.begin), static_cast<unsigned int>(text.Length()));
}

void SAXParser::StartElement(std::string const& name, AttributePointers const& attributes) {
    XMLReceiver::AttributeMap map;
    for (Pair<std::string, std::string> const* attribute : attributes) {
        map.insert_or_assign(SharedUString<UTF8>(MakeUString(View(attribute->first))),
                             SharedUString<UTF8>(MakeUString(View(attribute->second))));
    }
    receiver->StartElement(View(name), map);
}

void SAXParser::EndElement(std::string const&) {
    receiver->EndElement();
}

void SAXParser::Characters(std::string const& text) {
    receiver->Characters(View(text));
}

}  // namespace SimpleXML
