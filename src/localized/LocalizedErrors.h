#pragma once
// Every way the localized text can fail. The format failures come from a bad format string, in
// the program's own text or in a translation override, and surface when the text is bound or
// rendered; none of them carries data.

#include "threads/DebuggableException.h"

// A "{" without a later "}".
class BadFormatStringError : public DebuggableException {};
// An empty variable name, or a byte outside letters, digits and "_" in a name of the key.
class ImproperFormatVariableName : public DebuggableException {};
// A reserved name that doesn't exist, or a name in an override that the key doesn't bind.
class UndefinedFormatVariable : public DebuggableException {};
// The key has more variables than the call has arguments.
class TooManyFormatArguments : public DebuggableException {};
// The key has fewer variables than the call has arguments.
class TooFewFormatArguments : public DebuggableException {};

// GetOverride was asked for a key that the set doesn't have.
class FormatOverrideNotFound : public DebuggableException {};
// A translation file longer than 32 bits can count.
class RequiredValueWouldOverflow : public DebuggableException {};
