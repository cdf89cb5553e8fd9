#pragma once
// The greeting: the first document the process sends, before it has received anything.

struct ReadyForData {
    static char const* const rootElementName;     // "ClientToUI"
    static char const* const messageElementName;  // "ReadyForData"
};
