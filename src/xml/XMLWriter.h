#pragma once
// A streaming XML writer: calls to begin an element, add an attribute, write text and end an
// element become XML text, handed piece by piece to a UTextReceiver<UTF8>. It builds no tree and
// never validates names or the order of calls. Its output is exact to the byte, because the peer
// reads it with a parser that is sensitive to the form of a tag.

#include <cstdint>
#include <vector>

#include "text/unicode/SharedUString.h"
#include "text/unicode/UString.h"
#include "text/unicode/UTextReceiver.h"

class XMLElement;

class XMLWriter {
  public:
    // Line breaks and indentation. Any value from NoLines up means no line feed and no tab.
    enum XMLFormatStyle : std::uint32_t {
        IndentedLines = 0,  // a line feed before tags as needed, one tab per level of depth
        PlainLines = 1,     // the same line feeds, no tabs
        NoLines = 2         // no line feed and no tab anywhere
    };

    // What BeginDocument writes; any value other than WithEncoding means WithoutEncoding.
    enum EncodingDeclaration : std::uint32_t { WithEncoding = 0, WithoutEncoding = 1 };

    // What was written last.
    enum TagState : std::uint32_t {
        NothingWritten = 0,  // nothing since construction
        InStartTag = 1,      // a start tag is open: its ">" is not written yet
        StartTagClosed = 2,  // the ">" has just been written
        AfterContent = 3,    // text or CDATA came last
        AfterEndTag = 4      // an end tag came last
    };

    // Sends nothing yet. The receiver must outlive the writer.
    XMLWriter(UTextReceiver<UTF8>& receiver, XMLFormatStyle const& style);
    ~XMLWriter();

    XMLWriter(XMLWriter const&) = delete;
    XMLWriter& operator=(XMLWriter const&) = delete;

    // Starts the receiver and writes the XML declaration, with no line feed after it.
    void BeginDocument(EncodingDeclaration declaration);
    // Opens an element on a line of its own (by the style); the name is written unescaped.
    // A null name is written as an empty one.
    void BeginElement(UStringRef<UTF8> name);
    void BeginElement(char const* name);
    // Writes an attribute into the open start tag. Nothing checks that a start tag is open:
    // called after content, the attribute text lands in the content.
    void AddAttribute(UStringRef<UTF8> name, UStringRef<UTF8> value);
    void AddAttribute(char const* name, UStringRef<UTF8> value);
    // Writes text with "<", "&" and ">" escaped.
    void WriteString(UStringRef<UTF8> text);
    // Writes the text byte for byte in one CDATA section. Text holding "]]>" ends the section
    // early; keeping that out is the caller's task.
    void WriteCData(UStringRef<UTF8> text);
    // Closes the innermost open element; there is never a self-closed form. The calls must be
    // balanced: ending with nothing open is not tested for.
    void EndElement();
    // Closes every open element and ends the receiver's stream; no line feed follows.
    void EndDocument();
    // Writes a whole tree: attributes in name order, then the value, then the children.
    void WriteXMLElement(XMLElement const& element);

    // The two steps around every piece of content; only the writer itself calls them.
    void BeginWritingTagContent();
    void AfterWritingTagContent();

    // Returns whether CR and LF are written as character references; always false here.
    bool EscapeLineEnds() const { return escapeLineEnds != 0; }

  protected:
    UTextReceiver<UTF8>& receiver;
    XMLFormatStyle style;
    std::uint8_t writerArmed;     // set by the constructor, read by nothing
    std::uint8_t escapeLineEnds;  // no operation of the class sets it
    std::vector<SharedUString<UTF8>> openElements;
    TagState tagState;

  private:
    void Write(char const* text, std::size_t length);
    void Write(UStringRef<UTF8> text);
    void CloseStartTag();
    void NewLine(std::size_t tabs);
    void WriteEscaped(UStringRef<UTF8> text, bool inAttribute);
};
