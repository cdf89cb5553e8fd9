#include "text/unicode/MakeLocalString.h"

#include <cstddef>

#include "text/unicode/LocaleConversion.h"

template <>
AutoNullTerminated<char> MakeLocalString<UTF8>(UStringRef<UTF8> text) {
    AutoUString<Local8Bit> local = UnixPlatform::ToLocal8Bit(text);
    if (local.begin == local.end) return AutoNullTerminated<char>();
    std::size_t units = local.Length() + 1;
    AutoNullTerminated<char> result(local.begin, units);
    local.begin = local.end = nullptr;
    return result;
}
