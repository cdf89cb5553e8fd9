#pragma once
// Text in the local multibyte encoding, zero-terminated, for the X toolkit and other C
// interfaces.

#include "text/unicode/AutoNullTerminated.h"
#include "text/unicode/SharedUString.h"
#include "text/unicode/UString.h"

// Returns the text converted by UnixPlatform::ToLocal8Bit, owning the converted buffer
// (ownedUnits is the length plus one); an empty result is EmptyString(). Throws
// InvalidTextEncoding or UnixPlatform::WideToMultiByteConvertError. Only UTF8 exists.
template <class E>
AutoNullTerminated<char> MakeLocalString(UStringRef<E> text);

template <>
AutoNullTerminated<char> MakeLocalString<UTF8>(UStringRef<UTF8> text);

template <class E>
AutoNullTerminated<char> MakeLocalString(SharedUString<E> const& text) {
    return MakeLocalString<E>(UStringRef<E>(text));
}

template <class E>
AutoNullTerminated<char> MakeLocalString(AutoUString<E> const& text) {
    return MakeLocalString<E>(UStringRef<E>(text));
}
