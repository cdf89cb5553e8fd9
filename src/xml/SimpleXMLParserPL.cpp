#include "xml/SimpleXMLParserPL.h"

#include <cstdlib>
#include <cstring>

namespace {

// The empty slot from which new attribute slots are copied.
Pair<std::string, std::string> const& EmptyPair() {
    static Pair<std::string, std::string> const empty;
    return empty;
}

}  // namespace

SimpleXMLParserPL::SimpleXMLParserPL()
    : state(InContent),
      currentByte(0),
      previousByte(0),
      olderByte(0),
      quoteByte(0),
      attributeNameTarget(nullptr),
      attributeValueTarget(nullptr),
      attributeCount(0),
      dashCount(0),
      handler(this) {}

SimpleXMLParserPL::SimpleXMLParserPL(XMLHandler& handler) : SimpleXMLParserPL() {
    this->handler = &handler;
}

SimpleXMLParserPL::~SimpleXMLParserPL() = default;

void SimpleXMLParserPL::StartElement(std::string const&, AttributePointers const&) {}
void SimpleXMLParserPL::EndElement(std::string const&) {}
void SimpleXMLParserPL::Characters(std::string const&) {}

void SimpleXMLParserPL::Parse(std::string const& data) {
    Parse(data.data(), static_cast<unsigned int>(data.size()));
}

// Text, attribute values, names and CDATA, which hold most of a document's bytes, are taken in
// whole runs up to the next byte that matters to their state; the result is the same as taking
// them one by one, as the other states do.
void SimpleXMLParserPL::Parse(char const* data, unsigned int length) {
    char const* p = data;
    char const* const end = data + length;
    while (p != end) {
        switch (state) {
            case InContent: {
                // Most runs between tags are short white space: look at a few bytes directly
                // before handing the rest to the library's scans.
                char const* stop = nullptr;
                char const* const nearEnd = end - p > 16 ? p + 16 : end;
                char const* q = p;
                while (q != nearEnd && *q != '<' && *q != '&') ++q;
                if (q != nearEnd) {
                    stop = q;
                } else if (q != end) {
                    std::size_t const rest = static_cast<std::size_t>(end - q);
                    stop = static_cast<char const*>(std::memchr(q, '<', rest));
                    char const* const limit = stop ? stop : end;
                    char const* amp = static_cast<char const*>(
                        std::memchr(q, '&', static_cast<std::size_t>(limit - q)));
                    if (amp) stop = amp;
                }
                if (!stop) {
                    text.append(p, static_cast<std::size_t>(end - p));
                    currentByte = static_cast<unsigned char>(end[-1]);
                    return;
                }
                text.append(p, static_cast<std::size_t>(stop - p));
                p = stop;
                currentByte = static_cast<unsigned char>(*p++);
                TransitionState(currentByte == '<' ? InTagName : InContentEscape);
                break;
            }
            case InAttributeValue: {
                std::string& value = *attributeValueTarget;
                char const* run = p;
                while (run != end && static_cast<unsigned char>(*run) != quoteByte && *run != '&')
                    ++run;
                if (run != p) {
                    value.append(p, static_cast<std::size_t>(run - p));
                    currentByte = static_cast<unsigned char>(run[-1]);
                    p = run;
                    if (p == end) return;
                }
                currentByte = static_cast<unsigned char>(*p++);
                TransitionState(currentByte == quoteByte ? BeforeAttribute : InAttributeEscape);
                break;
            }
            case InTagName:
            case InEndTag: {
                // Name bytes go in as one run; the bytes that end or steer a name, and the "["
                // that may complete a CDATA opening, take the byte-wise path.
                char const* run = p;
                if (state == InTagName) {
                    while (run != end && *run != ' ' && *run != '/' && *run != '>' && *run != '-' &&
                           *run != '[')
                        ++run;
                } else {
                    while (run != end && *run != '>') ++run;
                }
                if (run != p) {
                    name.append(p, static_cast<std::size_t>(run - p));
                    currentByte = static_cast<unsigned char>(run[-1]);
                    p = run;
                    if (p == end) return;
                }
                currentByte = static_cast<unsigned char>(*p++);
                ParseByte();
                break;
            }
            case InCData: {
                unsigned char c = static_cast<unsigned char>(*p++);
                for (;;) {
                    if (c == '>' && previousByte == ']' && olderByte == ']') {
                        currentByte = c;
                        TransitionState(InContent);
                        break;
                    }
                    if (olderByte != 0) text.push_back(static_cast<char>(olderByte));
                    olderByte = previousByte;
                    previousByte = c;
                    if (p == end) {
                        currentByte = c;
                        return;
                    }
                    c = static_cast<unsigned char>(*p++);
                }
                break;
            }
            default:
                currentByte = static_cast<unsigned char>(*p++);
                ParseByte();
                break;
        }
    }
}

void SimpleXMLParserPL::ParseByte() {
    unsigned char const c = currentByte;
    switch (state) {
        case InContent:
            if (c == '<')
                TransitionState(InTagName);
            else if (c == '&')
                TransitionState(InContentEscape);
            else
                text.push_back(static_cast<char>(c));
            break;
        case InContentEscape:
            if (c == ';')
                TransitionState(InContent);
            else
                escape.push_back(static_cast<char>(c));
            break;
        case InTagName:
            if (c == ' ') {
                if (!name.empty()) TransitionState(BeforeAttribute);
            } else if (c == '/') {
                TransitionState(InEndTag);
            } else if (c == '>') {
                TransitionState(InContent);
            } else if (c == '-') {
                // Dashes are dropped from names; the second one of a tag makes it a comment.
                if (dashCount++ > 0) TransitionState(InComment);
            } else {
                name.push_back(static_cast<char>(c));
                if (c == '[' && name == "![CDATA[") {
                    name.clear();
                    previousByte = 0;
                    olderByte = 0;
                    TransitionState(InCData);
                }
            }
            break;
        case InEndTag:
            if (c == '>')
                TransitionState(InContent);
            else
                name.push_back(static_cast<char>(c));
            break;
        case BeforeAttribute:
            if (c == ' ' || c == '?') {
            } else if (c == '>') {
                TransitionState(InContent);
            } else {
                TransitionState(InAttributeName);
            }
            break;
        case InAttributeName:
            if (c == '=')
                TransitionState(BeforeAttributeValue);
            else
                attributeNameTarget->push_back(static_cast<char>(c));
            break;
        case BeforeAttributeValue:
            if (c == '"' || c == '\'') {
                quoteByte = c;
                TransitionState(InAttributeValue);
            }
            break;
        case InAttributeValue:
            if (c == quoteByte)
                TransitionState(BeforeAttribute);
            else if (c == '&')
                TransitionState(InAttributeEscape);
            else
                attributeValueTarget->push_back(static_cast<char>(c));
            break;
        case InAttributeEscape:
            if (c == ';')
                TransitionState(InAttributeValue);
            else
                escape.push_back(static_cast<char>(c));
            break;
        case InComment:
            if (c == '-') {
                ++dashCount;
            } else if (c == '>') {
                if (dashCount > 1)
                    TransitionState(InContent);
                else
                    dashCount = 0;
            } else {
                dashCount = 0;
            }
            break;
        case InCData:
            if (c == '>' && previousByte == ']' && olderByte == ']') {
                TransitionState(InContent);
            } else {
                if (olderByte != 0) text.push_back(static_cast<char>(olderByte));
                olderByte = previousByte;
                previousByte = c;
            }
            break;
    }
}

void SimpleXMLParserPL::TransitionState(State newState) {
    LeaveState(newState);
    EnterState(newState);
    state = newState;
}

void SimpleXMLParserPL::DeliverText() {
    if (!text.empty()) {
        handler->Characters(text);
        text.clear();
    }
}

void SimpleXMLParserPL::DeliverStartTag() {
    attributePointers.clear();
    for (unsigned int i = 0; i < attributeCount; ++i) attributePointers.push_back(&attributes[i]);
    if (!name.empty() && name[0] == '?')
        handler->DoProcessingInstructionElement(name, attributePointers);
    else
        handler->StartElement(name, attributePointers);
}

void SimpleXMLParserPL::LeaveState(State newState) {
    switch (state) {
        case InContent:
        case InCData:
            DeliverText();
            break;
        case InContentEscape:
            escape.push_back(';');
            handler->Characters(DecodeEscapeString());
            break;
        case InAttributeEscape:
            escape.push_back(';');
            attributeValueTarget->append(DecodeEscapeString());
            break;
        case InTagName:
        case BeforeAttribute:
            if (newState == InContent) DeliverStartTag();
            break;
        case InEndTag:
            if (newState == InContent) handler->EndElement(name);
            break;
        case InAttributeValue:
            if (newState != InAttributeEscape) ++attributeCount;
            break;
        case InAttributeName:
        case BeforeAttributeValue:
        case InComment:
            break;
    }
}

void SimpleXMLParserPL::EnterState(State newState) {
    switch (newState) {
        case InContentEscape:
        case InAttributeEscape:
            escape.assign(1, '&');
            break;
        case InTagName:
            dashCount = 0;
            name.clear();
            attributeCount = 0;
            break;
        case BeforeAttribute: {
            if (attributes.size() <= attributeCount) attributes.push_back(EmptyPair());
            Pair<std::string, std::string>& slot = attributes[attributeCount];
            attributeNameTarget = &slot.first;
            attributeValueTarget = &slot.second;
            attributeNameTarget->clear();
            attributeValueTarget->clear();
            break;
        }
        case InAttributeName:
            attributeNameTarget->push_back(static_cast<char>(currentByte));
            break;
        case InComment:
            dashCount = 0;
            break;
        case InContent:
        case InEndTag:
        case BeforeAttributeValue:
        case InAttributeValue:
        case InCData:
            break;
    }
}

std::string const& SimpleXMLParserPL::DecodeEscapeString() {
    static std::string const lessThan("<");
    static std::string const greaterThan(">");
    static std::string const ampersand("&");
    static std::string const quote("\"");
    switch (escape.size()) {
        case 4:
            if (escape.compare(0, 4, "&lt;", 4) == 0) return lessThan;
            if (escape.compare(0, 4, "&gt;", 4) == 0) return greaterThan;
            break;
        case 5:
            if (escape.compare(0, 5, "&amp;", 5) == 0) return ampersand;
            break;
        case 6:
            if (escape.compare(0, 6, "&quot;", 6) == 0) return quote;
            break;
    }
    if (escape.size() > 2 && escape[1] == '#' && escape[2] == 'x') {
        // Read like strtol with base 16; a NUL inside the reference stops the number as any
        // other unfit byte does.
        long const number = std::strtol(escape.c_str() + 3, nullptr, 16);
        if (number <= 255) escape.assign(1, static_cast<char>(static_cast<unsigned char>(number)));
    }
    return escape;
}
