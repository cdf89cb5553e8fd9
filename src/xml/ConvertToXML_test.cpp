#include "xml/ConvertToXML.h"

#include <gtest/gtest.h>

#include <string>

#include "testing/TestText.h"

namespace {

// Records whose element names come from their static members, one without fields and one with.
struct EmptyRecord {
    static char const* const rootElementName;
    static char const* const messageElementName;
};
char const* const EmptyRecord::rootElementName = "Outer";
char const* const EmptyRecord::messageElementName = "Nothing";

void XMLSerialize(XMLWriter&, EmptyRecord&) {}

struct NamedRecord {
    static char const* const rootElementName;
    static char const* const messageElementName;
    std::string name;
};
char const* const NamedRecord::rootElementName = "UIToClient";
char const* const NamedRecord::messageElementName = "Named";

void XMLSerialize(XMLWriter& writer, NamedRecord& record) {
    writer.BeginElement("Name");
    writer.WriteString(U8(record.name));
    writer.EndElement();
}

// The declaration, the record's root and message elements by name, and the fields inside the
// message element, one level further in.
TEST(ConvertToXML, TheRecordNamesItsElementsAndItsFieldsGoInside) {
    EmptyRecord empty;
    EXPECT_EQ(Str(ConvertToXML(empty)),
              "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<Outer>\n"
              "\t<Nothing></Nothing>\n</Outer>");
    NamedRecord named;
    named.name = "a < b";
    EXPECT_EQ(Str(ConvertToXML(named)),
              "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<UIToClient>\n\t<Named>\n"
              "\t\t<Name>a &lt; b</Name>\n\t</Named>\n</UIToClient>");
}

}  // namespace
