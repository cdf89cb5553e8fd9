#pragma once
// One checked leaf name of a path, in the local 8-bit encoding: never empty once set, at most 255
// bytes, never "." or "..", never holding a "/". UnixPlatform::FileName does the work; the plain
// FileName adds the constructors from texts that apply the name rules.

#include <string>

#include "files/AdviceFileTypes.h"
#include "files/PathStorage.h"
#include "text/bytes/ConstData.h"
#include "text/unicode/UString.h"

namespace UnixPlatform {

class FileName : public PathStorage<24> {
  public:
    FileName() = default;
    // Transcodes the text to the local encoding, then applies Set.
    explicit FileName(UStringRef<UTF8> const& text);

    // Stores the text. Throws IllegalFileNameLength for a length of 0 or above 255, and
    // IllegalFileName for ".", ".." or a text that holds a "/".
    void Set(char const* text, unsigned long length);
    // Stores the text with no check; for text that came from a valid name.
    void SafeSet(char const* text, unsigned long length);

    // Returns whether the name matches the pattern of MatchesWildCard (case-sensitive).
    bool MatchesWildCard(char const* pattern) const;
    bool HasSuffix(char const* text, bool ignoreCase) const;
    bool HasPrefix(char const* text, bool ignoreCase) const;
    // Returns whether the name ends in the extension text: a text that begins with "." needs
    // only to be a suffix; otherwise the name must be longer and have "." before the text.
    bool HasExtension(char const* text, bool ignoreCase) const;

    // Returns the name less the length of text. Throws ExtensionDoesNotMatch without that
    // extension, and IllegalFileName when nothing would be left.
    FileName NameBeforeExtension(char const* text, bool ignoreCase) const;
    // Returns the name less the prefix. Throws PrefixDoesNotMatch without that prefix, and
    // IllegalFileName when nothing would be left.
    FileName NameAfterPrefix(char const* text, bool ignoreCase) const;
    // Returns the name up to its last "."; a name without "." whole; ".x" gives the empty name.
    FileName BaseName() const;
    // Returns the leading ASCII digits; throws IllegalFileName if the name has none.
    FileName PrefixDigits() const;
    // Returns the type that AdviceFileTypes gives the part from the last "." on.
    KetralFileType ExtensionType() const;

    // Returns the name transcoded to UTF-8; throws InvalidTextEncoding for bad local text.
    AutoUString<UTF8> MakeUTF8String() const;
    // Returns a view of the name; valid while the name is unchanged.
    UStringRef<Local8Bit> MakeLocal8BitRef() const;
    // Returns the bytes of the name; valid while the name is unchanged.
    ConstData Bytes() const { return ConstData(Text(), TextLength()); }
};

// Returns the checked name made of the two texts. Throws IllegalFileName when together they
// hold 255 bytes or more, so a combined name is one byte shorter than Set would take.
FileName CombineNames(char const* first, unsigned long firstLength, char const* second,
                      unsigned long secondLength);

FileName operator+(FileName const& a, FileName const& b);
FileName operator+(FileName const& a, char const* b);
FileName operator+(char const* a, FileName const& b);
FileName operator+(FileName const& a, ConstData b);
FileName operator+(ConstData a, FileName const& b);
FileName operator+(FileName const& a, UStringRef<UTF8> const& b);
FileName operator+(UStringRef<UTF8> const& a, FileName const& b);

}  // namespace UnixPlatform

// The public name type: the platform name with checked constructors from texts.
class FileName : public UnixPlatform::FileName {
  public:
    FileName() = default;
    FileName(UnixPlatform::FileName const& name)  // NOLINT: implicit by design
        : UnixPlatform::FileName(name) {}
    // Applies the name rules of Set; a null text gives the empty name.
    explicit FileName(char const* text);
    explicit FileName(ConstData text);
    explicit FileName(UStringRef<UTF8> const& text) : UnixPlatform::FileName(text) {}

    std::string LogString() const { return Text(); }
};
