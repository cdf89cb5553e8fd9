#include "localized/FormatSegments.h"

#include <algorithm>
#include <cstring>

#include "localized/LocalizedErrors.h"
#include "text/bytes/Ascii.h"

namespace {

UStringRef<UTF8> Literal(char const* text) {
    return EncodingCast<UStringRef<UTF8> >(text);
}

// Returns the first byte equal to wanted in [from, to), or to.
UTF8::Unit const* Find(UTF8::Unit const* from, UTF8::Unit const* to, UTF8::Unit wanted) {
    if (from == to) return to;
    void const* hit = std::memchr(from, wanted, static_cast<std::size_t>(to - from));
    return hit ? static_cast<UTF8::Unit const*>(hit) : to;
}

}  // namespace

UFormatIterator::UFormatIterator(UStringRef<UTF8> text)
    : format(text), cursor(text.begin), next(text.begin), segment{false, UStringRef<UTF8>()} {
    if (cursor != format.end) GetNextSegment();
}

UFormatIterator UFormatIterator::End(UStringRef<UTF8> text) {
    UFormatIterator end(UStringRef<UTF8>(text.end, text.end));
    end.format = text;
    return end;
}

UFormatIterator& UFormatIterator::operator++() {
    cursor = next;
    if (cursor != format.end) GetNextSegment();
    return *this;
}

void UFormatIterator::GetNextSegment() {
    Unit const* const open = Find(cursor, format.end, '{');
    if (open != cursor) {
        segment.isVariable = false;
        segment.text = UStringRef<UTF8>(cursor, open);
        next = open;
        return;
    }
    Unit const* const close = Find(open + 1, format.end, '}');
    if (close == format.end) throw BadFormatStringError();
    segment.isVariable = true;
    segment.text = UStringRef<UTF8>(open + 1, close);
    next = close + 1;
}

bool IsFormatVariableNameReserved(UStringRef<UTF8> name) {
    if (name.Empty()) throw ImproperFormatVariableName();
    return name.begin[0] == '_';
}

ConstArrayOf<FormatBinding> ReservedFormatBindings() {
    struct Table {
        FormatBinding entries[6];
        Table()
            : entries{{Literal("_tab"), Literal("\t")},   {Literal("_crlf"), Literal("\r\n")},
                      {Literal("_cr"), Literal("\r")},    {Literal("_lf"), Literal("\n")},
                      {Literal("_obrace"), Literal("{")}, {Literal("_cbrace"), Literal("}")}} {
            std::sort(entries, entries + 6);
        }
    };
    static Table const table;
    return ConstArrayOf<FormatBinding>(table.entries, table.entries + 6);
}

namespace {

// Returns the binding of the name in the sorted table, or null.
FormatBinding const* FindBinding(UStringRef<UTF8> name, ConstArrayOf<FormatBinding> table) {
    FormatBinding const* const found =
        std::lower_bound(table.begin, table.end, FormatBinding(name, UStringRef<UTF8>()));
    if (found == table.end || found->first != name) return nullptr;
    return found;
}

}  // namespace

void CheckFormatVariableName(UStringRef<UTF8> name) {
    if (IsFormatVariableNameReserved(name)) {
        if (!FindBinding(name, ReservedFormatBindings())) throw UndefinedFormatVariable();
        return;
    }
    Ascii::CharacterSet const& allowed = Ascii::Alphanumeric_();
    for (UTF8::Unit const* byte = name.begin + 1; byte != name.end; ++byte) {
        if (!allowed.Contains(*byte)) throw ImproperFormatVariableName();
    }
}

UStringRef<UTF8> FormatExpressionValue(UStringRef<UTF8> name,
                                       ConstArrayOf<FormatBinding> bindings) {
    ConstArrayOf<FormatBinding> const table =
        IsFormatVariableNameReserved(name) ? ReservedFormatBindings() : bindings;
    FormatBinding const* const found = FindBinding(name, table);
    if (!found) throw UndefinedFormatVariable();
    return found->second;
}

UStringRef<UTF8> FormatSegmentValue(UFormatSegment const& segment,
                                    ConstArrayOf<FormatBinding> bindings) {
    return segment.isVariable ? FormatExpressionValue(segment.text, bindings) : segment.text;
}
