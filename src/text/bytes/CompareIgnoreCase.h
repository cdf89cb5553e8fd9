#pragma once
// Case-blind comparison of C strings through the C library, and so through the locale; the
// Ascii comparisons are the ones that never look at the locale.

#include <strings.h>
#include <cstddef>

// Returns the order of strcasecmp.
inline int CompareIgnoreCase(char const* a, char const* b) {
    return strcasecmp(a, b);
}
// Returns the order of strncasecmp over at most count bytes.
inline int CompareIgnoreCaseN(char const* a, char const* b, std::size_t count) {
    return strncasecmp(a, b, count);
}
