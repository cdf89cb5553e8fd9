#pragma once
// The failure of a strict transcoder: a bad byte pattern, a bad surrogate pair, a code point out
// of range, a high bit in 7-bit text, or a partial character at the end of the text.

#include "threads/DebuggableException.h"

class InvalidTextEncoding : public DebuggableException {};
