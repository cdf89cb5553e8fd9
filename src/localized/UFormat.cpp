#include "localized/UFormat.h"

#include <algorithm>
#include <cstring>

#include "localized/FormatOverrides.h"
#include "localized/LocalizedErrors.h"

FormatPlusArguments<0u> UFormat(char const* text) {
    UStringRef<UTF8> const key = EncodingCast<UStringRef<UTF8> >(text);
    return UFormat(key, key, GlobalFormatOverrideContext());
}

FormatPlusArguments<0u> UFormat(UStringRef<UTF8> key, UStringRef<UTF8> defaultFormat) {
    return UFormat(key, defaultFormat, GlobalFormatOverrideContext());
}

FormatPlusArguments<0u> UFormat(UStringRef<UTF8> key, UStringRef<UTF8> defaultFormat,
                                FormatOverrideContext const& context) {
    return FormatPlusArguments<0u>(key, context.Override(key, defaultFormat));
}

void MakeFormatParameterBindings(UStringRef<UTF8> format, ConstArrayOf<UStringRef<UTF8> > arguments,
                                 ArrayOf<FormatBinding> bindings) {
    UStringRef<UTF8> const* argument = arguments.begin;
    FormatBinding* place = bindings.begin;
    UFormatIterator const end = UFormatIterator::End(format);
    for (UFormatIterator segment(format); segment != end; ++segment) {
        if (!segment->isVariable) continue;
        CheckFormatVariableName(segment->text);
        if (IsFormatVariableNameReserved(segment->text)) continue;
        if (argument == arguments.end || place == bindings.end) throw TooManyFormatArguments();
        *place++ = FormatBinding(segment->text, *argument++);
    }
    if (argument != arguments.end || place != bindings.end) throw TooFewFormatArguments();
    std::sort(bindings.begin, bindings.end);
}

AutoUString<UTF8> MakeUString(FormattedStringIterator first, FormattedStringIterator last) {
    // Two passes, so that the result is allocated once at its exact size and every failure
    // comes before anything is allocated.
    std::size_t length = 0;
    for (FormattedStringIterator segment = first; segment != last; ++segment) {
        length += segment.Value().Length();
    }
    if (length == 0) return AutoUString<UTF8>();
    UTF8::Unit* const buffer = new UTF8::Unit[length + 1];
    UTF8::Unit* cursor = buffer;
    for (FormattedStringIterator segment = first; segment != last; ++segment) {
        UStringRef<UTF8> const value = segment.Value();
        if (!value.Empty()) {
            std::memcpy(cursor, value.begin, value.Length());
            cursor += value.Length();
        }
    }
    *cursor = 0;
    return AutoUString<UTF8>(buffer, cursor);
}
