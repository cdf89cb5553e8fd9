#include "xml/XMLWriter.h"

#include <cstring>

#include "xml/XMLElement.h"

namespace {

// A line feed and enough tabs for any depth a document of this system reaches in one piece.
char const lineAndTabs[] = "\n\t\t\t\t\t\t\t\t\t\t\t\t\t\t\t\t\t\t\t\t\t\t\t\t\t\t\t\t\t\t\t";
std::size_t const maxTabsInOnePiece = sizeof lineAndTabs - 2;

}  // namespace

XMLWriter::XMLWriter(UTextReceiver<UTF8>& receiver, XMLFormatStyle const& style)
    : receiver(receiver),
      style(style),
      writerArmed(1),
      escapeLineEnds(0),
      tagState(NothingWritten) {}

XMLWriter::~XMLWriter() = default;

void XMLWriter::Write(char const* text, std::size_t length) {
    UTF8::Unit const* begin = reinterpret_cast<UTF8::Unit const*>(text);
    receiver.Receive(ConstArrayOf<UTF8::Unit>(begin, begin + length));
}

void XMLWriter::Write(UStringRef<UTF8> text) {
    receiver.Receive(ConstArrayOf<UTF8::Unit>(text.begin, text.end));
}

void XMLWriter::BeginDocument(EncodingDeclaration declaration) {
    receiver.Start(UTF8());
    static char const withEncoding[] = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>";
    static char const withoutEncoding[] = "<?xml version=\"1.0\"?>";
    if (declaration == WithEncoding)
        Write(withEncoding, sizeof withEncoding - 1);
    else
        Write(withoutEncoding, sizeof withoutEncoding - 1);
}

void XMLWriter::CloseStartTag() {
    if (tagState == InStartTag) {
        Write(">", 1);
        tagState = StartTagClosed;
    }
}

// A line feed and, in the indented style, `tabs` tabs; nothing in the line-less styles.
void XMLWriter::NewLine(std::size_t tabs) {
    if (style == IndentedLines) {
        std::size_t piece = tabs < maxTabsInOnePiece ? tabs : maxTabsInOnePiece;
        Write(lineAndTabs, 1 + piece);
        for (tabs -= piece; tabs > 0; tabs -= piece) {
            piece = tabs < maxTabsInOnePiece ? tabs : maxTabsInOnePiece;
            Write(lineAndTabs + 1, piece);
        }
    } else if (style == PlainLines) {
        Write(lineAndTabs, 1);
    }
}

void XMLWriter::BeginElement(UStringRef<UTF8> name) {
    CloseStartTag();
    NewLine(openElements.size());
    Write("<", 1);
    Write(name);
    openElements.push_back(SharedUString<UTF8>(MakeUString(name)));
    tagState = InStartTag;
}

void XMLWriter::BeginElement(char const* name) {
    BeginElement(EncodingCast<UStringRef<UTF8>, char>(name));
}

void XMLWriter::AddAttribute(UStringRef<UTF8> name, UStringRef<UTF8> value) {
    Write(" ", 1);
    Write(name);
    Write("=\"", 2);
    WriteEscaped(value, true);
    Write("\"", 1);
}

void XMLWriter::AddAttribute(char const* name, UStringRef<UTF8> value) {
    AddAttribute(EncodingCast<UStringRef<UTF8>, char>(name), value);
}

// Sends the runs between escapes as whole pieces and each escape as a piece of its own. Bytes are
// not interpreted: multibyte sequences and control characters pass untouched.
void XMLWriter::WriteEscaped(UStringRef<UTF8> text, bool inAttribute) {
    UTF8::Unit const* run = text.begin;
    for (UTF8::Unit const* p = text.begin; p != text.end; ++p) {
        char const* escape;
        std::size_t length;
        switch (*p) {
            case '<':
                escape = "&lt;";
                length = 4;
                break;
            case '&':
                escape = "&amp;";
                length = 5;
                break;
            case '>':
                escape = "&gt;";
                length = 4;
                break;
            case '"':
                if (!inAttribute) continue;
                escape = "&quot;";
                length = 6;
                break;
            case '\r':
                if (!escapeLineEnds) continue;
                escape = "&#xd;";
                length = 5;
                break;
            case '\n':
                if (!escapeLineEnds) continue;
                escape = "&#xa;";
                length = 5;
                break;
            default:
                continue;
        }
        if (run != p) Write(UStringRef<UTF8>(run, p));
        Write(escape, length);
        run = p + 1;
    }
    if (run != text.end) Write(UStringRef<UTF8>(run, text.end));
}

void XMLWriter::BeginWritingTagContent() {
    CloseStartTag();
    if (tagState == AfterEndTag && (style == IndentedLines || style == PlainLines))
        Write(lineAndTabs, 1);
}

void XMLWriter::AfterWritingTagContent() {
    tagState = AfterContent;
}

void XMLWriter::WriteString(UStringRef<UTF8> text) {
    BeginWritingTagContent();
    WriteEscaped(text, false);
    AfterWritingTagContent();
}

void XMLWriter::WriteCData(UStringRef<UTF8> text) {
    BeginWritingTagContent();
    Write("<![CDATA[", 9);
    Write(text);
    Write("]]>", 3);
    AfterWritingTagContent();
}

void XMLWriter::EndElement() {
    CloseStartTag();
    if (tagState == AfterEndTag) NewLine(openElements.size() - 1);
    Write("</", 2);
    Write(openElements.back());
    Write(">", 1);
    tagState = AfterEndTag;
    openElements.pop_back();
}

void XMLWriter::EndDocument() {
    while (!openElements.empty()) EndElement();
    receiver.ReceiveEnd();
}

void XMLWriter::WriteXMLElement(XMLElement const& element) {
    BeginElement(element.name);
    for (auto const& attribute : element.attributes)
        AddAttribute(attribute.first, attribute.second);
    WriteString(element.GetValue());
    for (auto const& child : element.children) WriteXMLElement(child);
    EndElement();
}
