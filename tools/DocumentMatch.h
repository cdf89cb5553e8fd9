#pragma once
// Reading the documents that cross the pipe and comparing one with what a scenario expects.
// Documents are parsed with expat, not with the program's own parser, so that a fault in that
// parser cannot hide a fault in what the program sends.

#include <string>
#include <utility>
#include <vector>

struct DocumentElement {
    std::string name;
    std::string text;  // all character data directly inside, run together
    std::vector<DocumentElement> children;
};

// Returns the root element of the text. Throws std::runtime_error with expat's message and
// line if the text is not a well-formed document.
DocumentElement ParseDocument(std::string const& text);

struct Expectation {
    std::string message;  // name of the root's first child element
    // Children of the message by name, each with its exact text, or "*" for any text.
    std::vector<std::pair<std::string, std::string>> fields;
};

// Returns the empty string if the document's message element has the expected name and, for
// each field, a child of that name with that text; otherwise a sentence saying what differs.
std::string Mismatch(DocumentElement const& document, Expectation const& expected);

// Returns each message of the document on one line: its name and its leaf children as
// NAME=VALUE, long values cut, such as "ActionTaken IsCancel=false IsOffer=false ID=1001".
std::string Summary(DocumentElement const& document);
