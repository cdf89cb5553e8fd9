#pragma once
// The syntax of format strings: UTF-8 text with variables named in braces, walked segment by
// segment, and the lookup of a variable's value among the bindings of one rendering or in the
// reserved table. Work is on bytes; the text is never decoded, since no UTF-8 sequence holds
// a brace.
//
// A "{" opens a variable that the first "}" behind it closes. There is no escape and no nesting:
// "{{" opens a variable whose name begins with "{", and a "}" without a "{" before it is a plain
// character. A literal brace is written "{_obrace}" or "{_cbrace}".

#include <utility>

#include "text/bytes/ArrayOf.h"
#include "text/unicode/UString.h"

// A variable's name and its value.
typedef std::pair<UStringRef<UTF8>, UStringRef<UTF8> > FormatBinding;

// One piece of a format: literal text, or the name of a variable without its braces.
struct UFormatSegment {
    bool isVariable;
    UStringRef<UTF8> text;
};

// A walk over the segments of a format. The format must outlive the iterator. An iterator whose
// cursor stands at the format's end is the end iterator; iterators compare by their cursors.
class UFormatIterator {
  public:
    typedef UTF8::Unit Unit;

    // Stands on the first segment of the format. Throws BadFormatStringError for a "{" that
    // no "}" closes.
    explicit UFormatIterator(UStringRef<UTF8> text);
    // Returns the end iterator of the format.
    static UFormatIterator End(UStringRef<UTF8> text);

    UFormatSegment const& operator*() const { return segment; }
    UFormatSegment const* operator->() const { return &segment; }
    // Goes on to the next segment. Throws BadFormatStringError.
    UFormatIterator& operator++();
    bool operator==(UFormatIterator const& other) const { return cursor == other.cursor; }
    bool operator!=(UFormatIterator const& other) const { return cursor != other.cursor; }

    // Reads the segment that starts at the cursor into segment and sets next behind it. Throws
    // BadFormatStringError.
    void GetNextSegment();

    UStringRef<UTF8> format;
    Unit const* cursor;
    Unit const* next;
    UFormatSegment segment;
};

// Returns whether the name begins with "_". Throws ImproperFormatVariableName for an empty name.
bool IsFormatVariableNameReserved(UStringRef<UTF8> name);

// Throws ImproperFormatVariableName for an empty name, or for a byte outside ASCII letters,
// digits and "_" from the second byte on; throws UndefinedFormatVariable for a reserved name
// that the reserved table lacks. The first byte is deliberately not tested beyond "_", so "{-a}"
// is a name.
void CheckFormatVariableName(UStringRef<UTF8> name);

// Returns the reserved table, made once on first use and sorted by name: "_cbrace", "_cr",
// "_crlf", "_lf", "_obrace" and "_tab" with the characters they stand for.
ConstArrayOf<FormatBinding> ReservedFormatBindings();

// Returns the value of the variable: from the reserved table for a reserved name, else from the
// bindings, which are sorted by name and then value. Of several bindings of one name the value
// that sorts first is taken. Throws ImproperFormatVariableName for an empty name and
// UndefinedFormatVariable for a name without a binding.
UStringRef<UTF8> FormatExpressionValue(UStringRef<UTF8> name, ConstArrayOf<FormatBinding> bindings);

// Returns the text of a literal segment, or the value of a variable segment.
UStringRef<UTF8> FormatSegmentValue(UFormatSegment const& segment,
                                    ConstArrayOf<FormatBinding> bindings);
