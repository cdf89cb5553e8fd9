#pragma once
// The failures of typed text: strict transcoders and conversions to and from the locale's
// encoding. None carries data; the class says what went wrong.

#include "threads/DebuggableException.h"

// The failure of a strict transcoder: a bad byte pattern, a bad surrogate pair, a code point out
// of range, a high bit in 7-bit text, or a partial character at the end of the text.
class InvalidTextEncoding : public DebuggableException {};

namespace UnixPlatform {

// Wide text that the locale can't express.
class WideToMultiByteConvertError : public DebuggableException {};
// Bytes that aren't valid in the locale.
class MultiByteToWideConvertError : public DebuggableException {};

}  // namespace UnixPlatform
