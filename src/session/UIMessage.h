#pragma once
// One document on its way between the pipe and the session logic.

#include <cstdint>

#include "text/unicode/UString.h"

struct UIMessage {
    UIMessage() = default;
    // Copies deep: the queue keeps its own text, the sender keeps theirs.
    UIMessage(UIMessage const& other);
    UIMessage& operator=(UIMessage const& other);
    UIMessage(UIMessage&&) = default;
    UIMessage& operator=(UIMessage&&) = default;

    // Returns the number of bytes of the text; 0 for a null text.
    unsigned long Length() const;

    uint32_t m_type = 0;       // always 0; carried along, never put on the wire
    AutoUString<UTF8> m_text;  // the document; null when empty
};
