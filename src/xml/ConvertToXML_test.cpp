#include "xml/ConvertToXML.h"

#include <gtest/gtest.h>

#include <string>

#include "testing/TestText.h"

namespace {

// A record whose element names come from its static members, without fields.
struct EmptyRecord {
    static char const* const rootElementName;
    static char const* const messageElementName;
};
char const* const EmptyRecord::rootElementName = "Outer";
char const* const EmptyRecord::messageElementName = "Nothing";

void XMLSerialize(XMLWriter&, EmptyRecord&) {}

// The declaration, then the record's root and message elements by name. Records with fields,
// which go inside the message element one level further in, are written byte for byte in
// session/ClientSender_test.cpp.
TEST(ConvertToXML, TheRecordNamesItsElements) {
    EmptyRecord empty;
    EXPECT_EQ(Str(ConvertToXML(empty)),
              "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<Outer>\n"
              "\t<Nothing></Nothing>\n</Outer>");
}

}  // namespace
