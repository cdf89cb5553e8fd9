#pragma once
// A small push parser for the documents of the agent's protocol. It eats bytes one at a time
// through an eleven-state machine and reports to an XMLHandler. It is not a conforming XML
// processor: it never rejects input and raises nothing of its own, and what it makes of unusual
// input (self-closed tags, dashes in names, raw bytes from character references) is deliberate,
// because the peer's documents are read exactly this way.

#include <string>

#include "xml/XMLHandler.h"

class SimpleXMLParserPL : public XMLHandler {
  public:
    enum State {
        InContent = 0,             // text between tags; the start state
        InContentEscape = 1,       // an entity reference in text
        InTagName = 2,             // the name right after a "<"
        InEndTag = 3,              // the name of an end tag, after a "/"
        BeforeAttribute = 4,       // blanks between attributes
        InAttributeName = 5,       // an attribute's name
        BeforeAttributeValue = 6,  // whatever lies between "=" and the opening quote
        InAttributeValue = 7,      // an attribute's value
        InAttributeEscape = 8,     // an entity reference in an attribute value
        InComment = 9,             // a comment
        InCData = 10               // a CDATA section
    };

    // A parser that is its own handler: a derived class overrides the callbacks.
    SimpleXMLParserPL();
    // A parser that reports to `handler`, which must outlive the parser's use of it.
    explicit SimpleXMLParserPL(XMLHandler& handler);
    ~SimpleXMLParserPL() override;

    SimpleXMLParserPL(SimpleXMLParserPL const&) = delete;
    SimpleXMLParserPL& operator=(SimpleXMLParserPL const&) = delete;

    // Feeds `length` bytes through the machine. State carries over from call to call, so a
    // document may arrive in pieces split at any byte. There is no end-of-input step: whatever
    // stands after the last tag is never delivered. Throws only what the handler throws.
    void Parse(char const* data, unsigned int length);
    void Parse(std::string const& data);

    // The single place where `state` changes: the leaving action of the current state, then the
    // entering action of `newState`. These actions make every callback of the parser.
    void TransitionState(State newState);

    // Returns the text that stands for the reference in `escape` (which holds its "&" and ";"):
    // one of the four named entities, one raw byte for "&#x0;" to "&#xff;", or the reference
    // itself unchanged. A hexadecimal reference gives a byte, deliberately not a UTF-8 character.
    std::string const& DecodeEscapeString();

    // Returns the state the machine is in.
    State GetState() const { return state; }

    // The default callbacks report to nobody.
    void StartElement(std::string const& name, AttributePointers const& attributes) override;
    void EndElement(std::string const& name) override;
    void Characters(std::string const& text) override;

  private:
    void ParseByte();
    void LeaveState(State newState);
    void EnterState(State newState);
    void DeliverText();
    void DeliverStartTag();

    State state;
    unsigned char currentByte;
    unsigned char previousByte;
    unsigned char olderByte;
    unsigned char quoteByte;
    std::string text;
    std::string escape;
    std::string name;
    AttributePointers attributePointers;
    std::vector<Pair<std::string, std::string>> attributes;
    std::string* attributeNameTarget;
    std::string* attributeValueTarget;
    unsigned int attributeCount;
    int dashCount;
    XMLHandler* handler;
};
