#include "xml/ConvertToXML.h"

#include <gtest/gtest.h>

#include <string>

namespace {

// A record with no fields, named like the first document the process sends.
struct EmptyRecord {
    static char const* const rootElementName;
    static char const* const messageElementName;
};
char const* const EmptyRecord::rootElementName = "ClientToUI";
char const* const EmptyRecord::messageElementName = "ReadyForData";

void XMLSerialize(XMLWriter&, EmptyRecord&) {}

TEST(ConvertToXML, EmptyRecordGivesTheExactDocument) {
    EmptyRecord record;
    AutoUString<UTF8> const document = ConvertToXML(record);
    EXPECT_EQ(std::string(reinterpret_cast<char const*>(document.begin), document.Length()),
              "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<ClientToUI>\n"
              "\t<ReadyForData></ReadyForData>\n</ClientToUI>");
}

}  // namespace
