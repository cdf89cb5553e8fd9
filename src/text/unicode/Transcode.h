#pragma once
// One-shot conversion of a whole string between two encodings, through a StreamTranscoder into a
// UStringBuilder that reserves the worst case in advance. The result is exact in size and null
// when empty.

#include "text/unicode/UString.h"

// Returns the text converted to Target. Throws InvalidTextEncoding on bad input (nothing is
// returned then); the conversion to Local8Bit throws what UnixPlatform::ToLocal8Bit throws.
// Only the specialisations below exist.
template <class Target, class Source>
AutoUString<Target> Transcode(UStringRef<Source> source);

template <>
AutoUString<UTF8> Transcode<UTF8, UTF32>(UStringRef<UTF32> source);
template <>
AutoUString<UTF16> Transcode<UTF16, UTF32>(UStringRef<UTF32> source);
template <>
AutoUString<UTF32> Transcode<UTF32, UTF16>(UStringRef<UTF16> source);
template <>
AutoUString<UTF32> Transcode<UTF32, UTF8>(UStringRef<UTF8> source);
// A plain copy through a builder.
template <>
AutoUString<UTF32> Transcode<UTF32, UTF32>(UStringRef<UTF32> source);
template <>
AutoUString<UTF8> Transcode<UTF8, USAscii>(UStringRef<USAscii> source);
template <>
AutoUString<UTF16> Transcode<UTF16, USAscii>(UStringRef<USAscii> source);
// The same as UnixPlatform::ToLocal8Bit.
template <>
AutoUString<Local8Bit> Transcode<Local8Bit, UTF8>(UStringRef<UTF8> source);
