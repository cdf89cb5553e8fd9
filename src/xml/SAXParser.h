#pragma once
// The parser that reports in the system's own string types: it sits on SimpleXMLParserPL and
// turns its callbacks into those of an XMLReceiver.

#include <string>

#include "text/unicode/UString.h"
#include "xml/SimpleXMLParserPL.h"
#include "xml/XMLReceiver.h"

namespace SimpleXML {

class SAXParser : public SimpleXMLParserPL {
  public:
    // The receiver must outlive the parser's use of it.
    explicit SAXParser(XMLReceiver& receiver);
    ~SAXParser() override;

    using SimpleXMLParserPL::Parse;
    // Feeds the text's bytes; pieces may be split anywhere, as with the byte-level Parse.
    void Parse(UStringRef<UTF8> text);

    // Gathers the attributes into a map, the last of a repeated name winning, and passes them on.
    void StartElement(std::string const& name, AttributePointers const& attributes) override;
    // Passes the end on; the name is dropped, so mismatched end tags go unnoticed.
    void EndElement(std::string const& name) override;
    void Characters(std::string const& text) override;
    // Instructions, the XML declaration among them, are not overridden and so vanish here.

  private:
    XMLReceiver* receiver;
};

}  // namespace SimpleXML
