#pragma once
// The report of a fatal condition to the agent, sent just before the process ends.

#include <cstdint>
#include <string>

class XMLWriter;

struct ClientUIErrorMessage {
    enum ErrorCode : uint32_t {
        NoError = 0,
        NoFont = 1,            // Xt warned of kind "noFont"
        DialogBuildFailed = 2  // building a dialog threw; the debug string names the dialog
    };

    static char const* const rootElementName;     // "ClientToUI"
    static char const* const messageElementName;  // "ClientUIErrorMessage"

    ErrorCode m_code = NoError;
    std::string m_debugString;  // local 8-bit text
};

// Writes "DebugString", then "ErrorCode".
void XMLSerialize(XMLWriter& writer, ClientUIErrorMessage& message);
