#include "text/unicode/UString.h"

#include <cstring>

template <>
UStringRef<UTF8> EncodingCast<UStringRef<UTF8>, char>(char const* text) {
    if (text == nullptr) return UStringRef<UTF8>();
    UTF8::Unit const* begin = reinterpret_cast<UTF8::Unit const*>(text);
    return UStringRef<UTF8>(begin, begin + std::strlen(text), true);
}

bool operator==(UStringRef<UTF8> a, UStringRef<UTF8> b) {
    std::size_t length = a.Length();
    if (length != b.Length()) return false;
    return length == 0 || std::memcmp(a.begin, b.begin, length) == 0;
}

bool operator<(UStringRef<UTF8> a, UStringRef<UTF8> b) {
    std::size_t lengthA = a.Length();
    std::size_t lengthB = b.Length();
    std::size_t common = lengthA < lengthB ? lengthA : lengthB;
    if (common != 0) {
        int order = std::memcmp(a.begin, b.begin, common);
        if (order != 0) return order < 0;
    }
    return lengthA < lengthB;
}
