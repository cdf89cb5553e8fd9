// Feeds arbitrary bytes to SimpleXML::Parse. No input may crash, leak or misbehave: the parser
// rejects nothing, and the tree builder refuses only a text without any element. A tree that
// comes out is written back with the writer, which must accept any tree the parser builds.

#include <cstddef>
#include <cstdint>

#include "text/unicode/UStringBuilder.h"
#include "xml/SimpleXMLParse.h"
#include "xml/XMLElement.h"
#include "xml/XMLErrors.h"
#include "xml/XMLWriter.h"

extern "C" int LLVMFuzzerTestOneInput(uint8_t const* data, size_t size) {
    UStringRef<UTF8> const text(data, data + size);
    try {
        std::unique_ptr<XMLElement> const root = SimpleXML::Parse(text);
        UStringBuilder<UTF8> out(64);
        XMLWriter writer(out, XMLWriter::IndentedLines);
        writer.BeginDocument(XMLWriter::WithEncoding);
        writer.WriteXMLElement(*root);
        writer.EndDocument();
    } catch (FormatError const&) {
    }
    return 0;
}
