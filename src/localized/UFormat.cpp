#include "localized/UFormat.h"

#include <algorithm>
#include <cstring>
#include <vector>

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
    // The values are gathered first, so that every failure comes before anything is allocated
    // and the result is allocated once at its exact size. Texts of the dialogs have a few
    // segments; longer ones spill into the heap.
    UStringRef<UTF8> inlineValues[24];
    std::vector<UStringRef<UTF8> > spilled;
    std::size_t count = 0, length = 0;
    for (FormattedStringIterator segment = first; segment != last; ++segment) {
        UStringRef<UTF8> const value = segment.Value();
        length += value.Length();
        if (count < 24) {
            inlineValues[count] = value;
        } else {
            if (spilled.empty()) spilled.assign(inlineValues, inlineValues + 24);
            spilled.push_back(value);
        }
        ++count;
    }
    if (length == 0) return AutoUString<UTF8>();
    UStringRef<UTF8> const* const values = spilled.empty() ? inlineValues : spilled.data();
    UTF8::Unit* const buffer = new UTF8::Unit[length + 1];
    UTF8::Unit* cursor = buffer;
    for (std::size_t i = 0; i < count; ++i) {
        if (!values[i].Empty()) {
            std::memcpy(cursor, values[i].begin, values[i].Length());
            cursor += values[i].Length();
        }
    }
    *cursor = 0;
    return AutoUString<UTF8>(buffer, cursor);
}
