#pragma once
// Failures of name checks and name arithmetic. They stand outside the file failure family and
// carry no text: they say what is wrong with a name, not with a file.

#include "threads/DebuggableException.h"

// A name that is ".", "..", holds a "/", or is too long once combined.
class IllegalFileName : public DebuggableException {};
// A name of length 0 or above 255.
class IllegalFileNameLength : public DebuggableException {};
// NameBeforeExtension was asked for an extension the name doesn't have.
class ExtensionDoesNotMatch : public DebuggableException {};
// NameAfterPrefix was asked for a prefix the name doesn't have.
class PrefixDoesNotMatch : public DebuggableException {};
