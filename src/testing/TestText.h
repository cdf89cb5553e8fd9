#pragma once
// Text helpers for tests: typed views over std::string literals and back, so that expected
// values can be written as plain string literals.

#include <string>

#include "text/bytes/ConstData.h"
#include "text/unicode/AutoNullTerminated.h"
#include "text/unicode/UString.h"

// Returns a view of the string's bytes as UTF-8; the string must outlive the view. Not
// zero-terminated, so code under test cannot rely on a terminator it would not get.
inline UStringRef<UTF8> U8(std::string const& text) {
    auto const* begin = reinterpret_cast<UTF8::Unit const*>(text.data());
    return UStringRef<UTF8>(begin, begin + text.size());
}

// Returns the bytes of the view as a string; a null view gives the empty string.
inline std::string Str(UStringRef<UTF8> text) {
    if (!text.begin) return std::string();
    return std::string(reinterpret_cast<char const*>(text.begin), text.Length());
}

// Returns the text's bytes as a string.
inline std::string Str(AutoUString<UTF8> const& text) {
    return Str(UStringRef<UTF8>(text));
}

// Returns the local multibyte text as a string; a null text gives the empty string.
inline std::string Str(AutoNullTerminated<char> const& text) {
    return text.pointer ? std::string(text.pointer) : std::string();
}

// Returns the bytes of the range as a string; also takes whatever converts to a range
// (std::vector<unsigned char>, FixedCapacityText).
inline std::string Str(ConstData bytes) {
    if (!bytes.begin) return std::string();
    return std::string(reinterpret_cast<char const*>(bytes.begin),
                       static_cast<std::size_t>(bytes.end - bytes.begin));
}

// Returns -1, 0 or 1 by the sign of a comparison result, so that comparisons whose magnitudes
// differ (memcmp, std::string::compare) can be checked against each other.
inline int Sign(int value) {
    return (value > 0) - (value < 0);
}
