#pragma once
// A trace for integrators. With the environment variable ZOLCLIENTUI_TRACE set to anything but
// the empty text or "0", the process writes one line on standard error for each message it
// handles, each frame or batch it drops, each session directory or support file it refuses,
// and each document it sends. Beside the pipe to the agent this trace is the process's only
// output (the threads' start failures apart): the process keeps no log. The trace never writes
// to standard output, which is the pipe to the agent, and never changes what the process does.

#include <exception>
#include <string>

#include "text/unicode/UString.h"

// Returns whether the trace is on. The environment is read once, at the first call.
bool TraceEnabled();

// Writes "zolclientui: ", the text and a line feed in one write on descriptor 2. Failures are
// ignored.
void WriteTraceLine(std::string const& text);

// Writes the line that describe() returns, when the trace is on. describe is not called when
// it is off, and nothing it throws leaves this function.
template <class Describe>
void Trace(Describe describe) {
    if (!TraceEnabled()) return;
    try {
        WriteTraceLine(describe());
    } catch (...) {
    }
}

// Returns the class name of the exception being handled; call it inside a catch block.
std::string CurrentExceptionName();

// Returns the text with every byte outside printable ASCII shown as "?", cut to 64 bytes: names
// from the agent's documents may hold anything.
std::string PrintableName(UStringRef<UTF8> text);
