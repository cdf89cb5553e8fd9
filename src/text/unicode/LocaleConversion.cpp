#include "text/unicode/LocaleConversion.h"

#include <langinfo.h>

#include <cstddef>
#include <cstdlib>
#include <cwchar>

#include "text/unicode/AutoNullTerminated.h"
#include "text/unicode/Transcode.h"

static_assert(sizeof(wchar_t) == sizeof(UTF32::Unit), "UTF-32 units are the wide characters");

namespace {

// Returns the text as a zero-terminated string: the text itself when a zero stands at its end,
// else a temporary copy with a trailing zero, or the static empty string.
template <class E>
AutoNullTerminated<typename E::Unit> ZeroTerminated(UStringRef<E> text) {
    typedef typename E::Unit Unit;
    if (text.nullTerminated) return AutoNullTerminated<Unit>(text.begin, 0);
    if (text.begin == text.end) return AutoNullTerminated<Unit>();
    AutoUString<E> copy = MakeUString(text);
    std::size_t units = copy.Length() + 1;
    AutoNullTerminated<Unit> result(copy.begin, units);
    copy.begin = copy.end = nullptr;
    return result;
}

}  // namespace

namespace UnixPlatform {

AutoUString<UTF32> ToNativeUnicode(UStringRef<Local8Bit> text) {
    AutoNullTerminated<char> source = ZeroTerminated(text);
    std::size_t length = std::mbstowcs(nullptr, source.pointer, 0);
    if (length == static_cast<std::size_t>(-1)) throw MultiByteToWideConvertError();
    AutoUString<UTF32> result(new UTF32::Unit[length + 1], nullptr);
    wchar_t* wide = reinterpret_cast<wchar_t*>(result.begin);
    if (std::mbstowcs(wide, source.pointer, length) == static_cast<std::size_t>(-1)) {
        throw MultiByteToWideConvertError();
    }
    result.begin[length] = 0;
    result.end = result.begin + length;
    return result;
}

AutoUString<Local8Bit> FromNativeUnicode(UStringRef<UTF32> text) {
    AutoNullTerminated<UTF32::Unit> source = ZeroTerminated(text);
    wchar_t const* wide = reinterpret_cast<wchar_t const*>(source.pointer);
    std::size_t length = std::wcstombs(nullptr, wide, 0);
    if (length == static_cast<std::size_t>(-1)) throw WideToMultiByteConvertError();
    AutoUString<Local8Bit> result(new char[length + 1], nullptr);
    if (std::wcstombs(result.begin, wide, length) == static_cast<std::size_t>(-1)) {
        throw WideToMultiByteConvertError();
    }
    result.begin[length] = 0;
    result.end = result.begin + length;
    return result;
}

AutoUString<UTF8> ToUTF8(UStringRef<Local8Bit> text) {
    AutoUString<UTF32> wide = ToNativeUnicode(text);
    return Transcode<UTF8, UTF32>(wide);
}

AutoUString<UTF16> ToUTF16(UStringRef<Local8Bit> text) {
    AutoUString<UTF32> wide = ToNativeUnicode(text);
    return Transcode<UTF16, UTF32>(wide);
}

AutoUString<UTF32> ToUTF32(UStringRef<Local8Bit> text) {
    AutoUString<UTF32> wide = ToNativeUnicode(text);
    return Transcode<UTF32, UTF32>(wide);
}

AutoUString<Local8Bit> ToLocal8Bit(UStringRef<UTF8> text) {
    AutoUString<UTF32> wide = Transcode<UTF32, UTF8>(text);
    return FromNativeUnicode(wide);
}

AutoUString<Local8Bit> ToLocal8Bit(UStringRef<UTF16> text) {
    AutoUString<UTF32> wide = Transcode<UTF32, UTF16>(text);
    return FromNativeUnicode(wide);
}

AutoUString<Local8Bit> ToLocal8Bit(UStringRef<UTF32> text) {
    AutoUString<UTF32> wide = Transcode<UTF32, UTF32>(text);
    return FromNativeUnicode(wide);
}

FixedCapacityText<48> IANAEncodingName(Local8Bit) {
    return FixedCapacityText<48>(ConstData(nl_langinfo(CODESET)));
}

}  // namespace UnixPlatform
