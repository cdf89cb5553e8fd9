#pragma once
// Conversions between the multibyte encoding of the current LC_CTYPE locale and the typed
// Unicode strings, through the C library's wide characters (wcstombs, mbstowcs). The C library
// stops at the first zero unit, so whatever follows a zero inside the text is dropped. A
// character that the locale can't express is an error, never a substitute.

#include "text/bytes/FixedCapacityText.h"
#include "text/unicode/UString.h"
#include "text/unicode/UnicodeErrors.h"

namespace UnixPlatform {

// Returns the locale text as code points; the result is never null, an empty text gives a
// non-null begin equal to end. Throws MultiByteToWideConvertError.
AutoUString<UTF32> ToNativeUnicode(UStringRef<Local8Bit> text);
// Returns the code points in the locale's encoding; the result is never null. Throws
// WideToMultiByteConvertError.
AutoUString<Local8Bit> FromNativeUnicode(UStringRef<UTF32> text);

// Return the locale text in a Unicode encoding (null when empty). Throw
// MultiByteToWideConvertError, or InvalidTextEncoding for a value the encoder rejects.
AutoUString<UTF8> ToUTF8(UStringRef<Local8Bit> text);
AutoUString<UTF16> ToUTF16(UStringRef<Local8Bit> text);
AutoUString<UTF32> ToUTF32(UStringRef<Local8Bit> text);

// Return the text in the locale's encoding; a Unicode string passes its decoder first. Throw
// InvalidTextEncoding or WideToMultiByteConvertError.
AutoUString<Local8Bit> ToLocal8Bit(UStringRef<UTF8> text);
AutoUString<Local8Bit> ToLocal8Bit(UStringRef<UTF16> text);
AutoUString<Local8Bit> ToLocal8Bit(UStringRef<UTF32> text);

// Returns the locale's codeset name (nl_langinfo(CODESET)). Throws ConstDataCapacityExceeded
// when it is longer than 48 bytes.
FixedCapacityText<48> IANAEncodingName(Local8Bit);

}  // namespace UnixPlatform
