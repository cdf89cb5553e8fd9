#include "DocumentMatch.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

TEST(DocumentMatch, ComparesTheMessageAndItsFields) {
    std::string const taken =
        "<?xml version=\"1.0\"?><UIToClient><ActionTaken><ID>1001</ID>"
        "<IsCancel>false</IsCancel><IsOffer>false</IsOffer></ActionTaken></UIToClient>";
    struct Case {
        Expectation expected;
        char const* mismatch;
    } const cases[] = {
        {{"ActionTaken", {}}, ""},
        {{"ActionTaken", {{"ID", "1001"}, {"IsCancel", "false"}}}, ""},
        {{"ActionTaken", {{"ID", "*"}}}, ""},
        {{"RemindTime", {}}, "expected RemindTime, got ActionTaken"},
        {{"ActionTaken", {{"ID", "1002"}}}, "ActionTaken ID is \"1001\", expected \"1002\""},
        {{"ActionTaken", {{"ID", "100"}}}, "ActionTaken ID is \"1001\", expected \"100\""},
        {{"ActionTaken", {{"Time", "*"}}}, "ActionTaken has no Time"},
    };
    DocumentElement document = ParseDocument(taken);
    for (Case const& c : cases)
        EXPECT_EQ(c.mismatch, Mismatch(document, c.expected)) << c.expected.message;
    EXPECT_EQ("the document UIToClient holds no message",
              Mismatch(ParseDocument("<UIToClient/>"), Expectation{"ActionTaken", {}}));
}

TEST(DocumentMatch, TextIsDecodedBeforeItIsCompared) {
    DocumentElement document = ParseDocument(
        "<UIToClient><ClientUIErrorMessage><Text><![CDATA[a<b]]> &amp; c</Text>"
        "</ClientUIErrorMessage></UIToClient>");
    EXPECT_EQ("", Mismatch(document, Expectation{"ClientUIErrorMessage", {{"Text", "a<b & c"}}}));
}

TEST(DocumentMatch, SummaryListsLeafFieldsAndCutsLongValues) {
    DocumentElement document = ParseDocument(
        "<UIToClient><RemindTime><TimeObject><Time>2026-11-23T12:00:00Z</Time></TimeObject>"
        "</RemindTime><X><Note>one two</Note><Long>" +
        std::string(50, 'z') + "</Long></X></UIToClient>");
    EXPECT_EQ("RemindTime; X Note=\"one two\" Long=" + std::string(40, 'z') + "...",
              Summary(document));
}

TEST(DocumentMatch, ABrokenDocumentSaysWhereItBreaks) {
    try {
        ParseDocument("<UIToClient>\n<A></B>\n</UIToClient>");
        FAIL() << "no error";
    } catch (std::runtime_error const& failure) {
        EXPECT_NE(std::string::npos, std::string(failure.what()).find("at line 2"))
            << failure.what();
    }
}
