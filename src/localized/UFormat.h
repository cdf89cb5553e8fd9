#pragma once
// Format strings with named arguments, the way every user-visible text is made. A text is
// addressed by its key, which is also its default format: UFormat looks the key up in a
// translation override context and keeps the override's text, or the default, as the format.
// Arguments are then appended one by one, and rendering binds them to the variables of the KEY
// in order, sorts the bindings by name, and fills in the FORMAT by name. So an override can
// reorder, repeat or drop the key's variables (and use the reserved ones) but not add any.
//
//     AutoUString<UTF8> text =
//         MakeUString(UFormat("You have {number} pending actions.").With(FormattedNumber(n)));
//
// FormatPlusArguments holds views only: the key, the override's text and the arguments must
// outlive the rendering, so a temporary argument is best rendered within the same expression.

#include <array>
#include <type_traits>

#include "localized/FormatSegments.h"
#include "text/bytes/ArrayOf.h"
#include "text/unicode/AutoNullTerminated.h"
#include "text/unicode/MakeLocalString.h"
#include "text/unicode/UString.h"

class FormatOverrideContext;

// A format waiting to be rendered, with its N arguments.
template <unsigned N>
struct FormatPlusArguments {
    // The key and its format, with no arguments yet.
    FormatPlusArguments(UStringRef<UTF8> k, UStringRef<UTF8> f) : key(k), format(f), arguments() {
        static_assert(N == 0, "arguments are appended one at a time");
    }
    // The previous value with the argument appended behind its arguments.
    template <unsigned M, class = typename std::enable_if<M + 1 == N>::type>
    FormatPlusArguments(FormatPlusArguments<M> const& previous, UStringRef<UTF8> argument)
        : key(previous.key), format(previous.format) {
        for (unsigned i = 0; i < M; ++i) arguments[i] = previous.arguments[i];
        arguments[M] = argument;
    }

    // Returns this value with the argument appended.
    FormatPlusArguments<N + 1> With(UStringRef<UTF8> argument) const {
        return FormatPlusArguments<N + 1>(*this, argument);
    }

    UStringRef<UTF8> key;
    UStringRef<UTF8> format;
    std::array<UStringRef<UTF8>, N> arguments;
};

// Returns the text as key and default format, through the global override context; a null
// pointer is the empty key.
FormatPlusArguments<0u> UFormat(char const* text);
FormatPlusArguments<0u> UFormat(UStringRef<UTF8> key, UStringRef<UTF8> defaultFormat);
// Returns the key with context.Override(key, defaultFormat) as its format. No variable is looked
// at yet, so nothing fails here.
FormatPlusArguments<0u> UFormat(UStringRef<UTF8> key, UStringRef<UTF8> defaultFormat,
                                FormatOverrideContext const& context);

// A format with its arguments bound to names, sorted by name and then by value.
template <unsigned N>
struct FormattedString {
    UStringRef<UTF8> format;
    std::array<FormatBinding, N> bindings;
};

// A walk over the segments of a format together with the bindings that give the variables
// their values. Both must outlive it.
class FormattedStringIterator {
  public:
    // Stands on the first segment. Throws BadFormatStringError.
    FormattedStringIterator(UStringRef<UTF8> format, ConstArrayOf<FormatBinding> bindings)
        : m_segments(format), m_bindings(bindings) {}
    static FormattedStringIterator End(UStringRef<UTF8> format) {
        return FormattedStringIterator(UFormatIterator::End(format));
    }

    // Returns the segment's text, or its variable's value. Throws ImproperFormatVariableName or
    // UndefinedFormatVariable.
    UStringRef<UTF8> Value() const { return FormatSegmentValue(*m_segments, m_bindings); }
    // Throws BadFormatStringError.
    FormattedStringIterator& operator++() {
        ++m_segments;
        return *this;
    }
    bool operator==(FormattedStringIterator const& other) const {
        return m_segments == other.m_segments;
    }
    bool operator!=(FormattedStringIterator const& other) const { return !(*this == other); }

  private:
    explicit FormattedStringIterator(UFormatIterator const& segments) : m_segments(segments) {}

    UFormatIterator m_segments;
    ConstArrayOf<FormatBinding> m_bindings;
};

// Binds the arguments in order to the non-reserved variables of format (the key), checking each
// name, and sorts the bindings. Throws BadFormatStringError, ImproperFormatVariableName,
// UndefinedFormatVariable (an unknown reserved name), TooManyFormatArguments (more variables
// than arguments or places) and TooFewFormatArguments (an argument or a place left over). Each
// occurrence of a variable takes an argument of its own.
void MakeFormatParameterBindings(UStringRef<UTF8> format, ConstArrayOf<UStringRef<UTF8> > arguments,
                                 ArrayOf<FormatBinding> bindings);

// Returns the segments' values one after another, copied into one new buffer; an empty result is
// the null string. Values are inserted as they stand and not parsed again.
AutoUString<UTF8> MakeUString(FormattedStringIterator first, FormattedStringIterator last);

template <unsigned N>
AutoUString<UTF8> MakeUString(FormattedString<N> const& text) {
    ConstArrayOf<FormatBinding> const bindings(text.bindings.data(), text.bindings.data() + N);
    return MakeUString(FormattedStringIterator(text.format, bindings),
                       FormattedStringIterator::End(text.format));
}

// Returns the rendered text: binds the arguments to the key's variables, then renders the
// format. Throws the five format failures; nothing partial is returned.
template <unsigned N>
AutoUString<UTF8> MakeUString(FormatPlusArguments<N> const& text) {
    FormattedString<N> bound;
    bound.format = text.format;
    MakeFormatParameterBindings(
        text.key, ConstArrayOf<UStringRef<UTF8> >(text.arguments.data(), text.arguments.data() + N),
        ArrayOf<FormatBinding>(bound.bindings.data(), bound.bindings.data() + N));
    return MakeUString(bound);
}

// Returns the rendered text in the locale's encoding. Throws what MakeUString throws, and
// InvalidTextEncoding or UnixPlatform::WideToMultiByteConvertError for a text that the locale
// can't express.
template <unsigned N>
AutoNullTerminated<char> MakeLocalString(FormatPlusArguments<N> const& text) {
    AutoUString<UTF8> const rendered = MakeUString(text);
    return MakeLocalString<UTF8>(UStringRef<UTF8>(rendered));
}

// Returns the string that toolkit calls take: here the text in the locale's encoding.
template <class Text>
AutoNullTerminated<char> MakePlatformString(Text const& text) {
    return MakeLocalString(text);
}
