#include "files/FileName.h"

#include <cstring>

#include "files/AdviceFileTypes.h"
#include "files/FileErrors.h"
#include "files/WildCard.h"
#include "text/bytes/Ascii.h"
#include "text/unicode/LocaleConversion.h"

namespace UnixPlatform {

namespace {

bool SameBytes(char const* a, char const* b, std::size_t length, bool ignoreCase) {
    ConstData left(a, length);
    ConstData right(b, length);
    return ignoreCase ? Ascii::EqualIgnoringCase(left, right) : left == right;
}

}  // namespace

FileName::FileName(UStringRef<UTF8> const& text) {
    AutoUString<Local8Bit> const local = ToLocal8Bit(text);
    Set(local.begin ? local.begin : "", local.Length());
}

void FileName::Set(char const* text, unsigned long length) {
    if (length == 0 || length > 255) {
        throw IllegalFileNameLength();
    }
    if ((length == 1 && text[0] == '.') || (length == 2 && text[0] == '.' && text[1] == '.')) {
        throw IllegalFileName();
    }
    if (std::memchr(text, '/', length)) {
        throw IllegalFileName();
    }
    SafeSet(text, length);
}

void FileName::SafeSet(char const* text, unsigned long length) {
    Assign(text, length);
}

bool FileName::MatchesWildCard(char const* pattern) const {
    return ::MatchesWildCard(Text(), pattern);
}

bool FileName::HasSuffix(char const* text, bool ignoreCase) const {
    std::size_t const length = std::strlen(text);
    std::size_t const own = TextLength();
    return length <= own && SameBytes(Text() + own - length, text, length, ignoreCase);
}

bool FileName::HasPrefix(char const* text, bool ignoreCase) const {
    std::size_t const length = std::strlen(text);
    return length <= TextLength() && SameBytes(Text(), text, length, ignoreCase);
}

bool FileName::HasExtension(char const* text, bool ignoreCase) const {
    if (!HasSuffix(text, ignoreCase)) {
        return false;
    }
    if (text[0] == '.') {
        return true;
    }
    std::size_t const length = std::strlen(text);
    std::size_t const own = TextLength();
    return own > length && Text()[own - length - 1] == '.';
}

FileName FileName::NameBeforeExtension(char const* text, bool ignoreCase) const {
    if (!HasExtension(text, ignoreCase)) {
        throw ExtensionDoesNotMatch();
    }
    std::size_t const length = std::strlen(text);
    if (length == TextLength()) {
        throw IllegalFileName();
    }
    FileName result;
    result.SafeSet(Text(), TextLength() - length);
    return result;
}

FileName FileName::NameAfterPrefix(char const* text, bool ignoreCase) const {
    if (!HasPrefix(text, ignoreCase)) {
        throw PrefixDoesNotMatch();
    }
    std::size_t const length = std::strlen(text);
    if (length == TextLength()) {
        throw IllegalFileName();
    }
    FileName result;
    result.SafeSet(Text() + length, TextLength() - length);
    return result;
}

FileName FileName::BaseName() const {
    char const* dot = std::strrchr(Text(), '.');
    FileName result;
    result.SafeSet(Text(), dot ? dot - Text() : TextLength());
    return result;
}

FileName FileName::PrefixDigits() const {
    char const* text = Text();
    std::size_t count = 0;
    while (text[count] >= '0' && text[count] <= '9') {
        ++count;
    }
    if (count == 0) {
        throw IllegalFileName();
    }
    FileName result;
    result.SafeSet(text, count);
    return result;
}

KetralFileType FileName::ExtensionType() const {
    char const* dot = std::strrchr(Text(), '.');
    return AdviceFileTypes::TypeOfExtension(dot ? dot : "");
}

AutoUString<UTF8> FileName::MakeUTF8String() const {
    return ToUTF8(MakeLocal8BitRef());
}

UStringRef<Local8Bit> FileName::MakeLocal8BitRef() const {
    char const* text = Text();
    return UStringRef<Local8Bit>(text, text + TextLength(), true);
}

FileName CombineNames(char const* first, unsigned long firstLength, char const* second,
                      unsigned long secondLength) {
    if (firstLength + secondLength >= 255) {
        throw IllegalFileName();
    }
    char joined[256];
    if (firstLength) {
        std::memcpy(joined, first, firstLength);
    }
    if (secondLength) {
        std::memcpy(joined + firstLength, second, secondLength);
    }
    FileName result;
    result.Set(joined, firstLength + secondLength);
    return result;
}

FileName operator+(FileName const& a, FileName const& b) {
    return CombineNames(a.Text(), a.TextLength(), b.Text(), b.TextLength());
}
FileName operator+(FileName const& a, char const* b) {
    return CombineNames(a.Text(), a.TextLength(), b ? b : "", b ? std::strlen(b) : 0);
}
FileName operator+(char const* a, FileName const& b) {
    return CombineNames(a ? a : "", a ? std::strlen(a) : 0, b.Text(), b.TextLength());
}
FileName operator+(FileName const& a, ConstData b) {
    return CombineNames(a.Text(), a.TextLength(), b.Chars(), b.Size());
}
FileName operator+(ConstData a, FileName const& b) {
    return CombineNames(a.Chars(), a.Size(), b.Text(), b.TextLength());
}

FileName operator+(FileName const& a, UStringRef<UTF8> const& b) {
    AutoUString<Local8Bit> const local = ToLocal8Bit(b);
    return CombineNames(a.Text(), a.TextLength(), local.begin, local.Length());
}
FileName operator+(UStringRef<UTF8> const& a, FileName const& b) {
    AutoUString<Local8Bit> const local = ToLocal8Bit(a);
    return CombineNames(local.begin, local.Length(), b.Text(), b.TextLength());
}

}  // namespace UnixPlatform

FileName::FileName(char const* text) {
    if (text) {
        Set(text, std::strlen(text));
    }
}

FileName::FileName(ConstData text) {
    Set(text.Chars(), text.Size());
}
