#pragma once
// Texts from the agent as the widgets show them: action titles, descriptions, previews,
// confirmation messages, notification titles and messages, and whatever is built around them.
// Such a text is shown, never refused: the program's own texts and their translations go
// through the strict conversion (a dialog that cannot express one is not built), but a text of
// the agent that the locale cannot express would otherwise hide the pending actions behind it,
// so here every invalid UTF-8 sequence, zero character and character the locale lacks becomes a
// replacement character instead. What one list row, label or shell title draws is also cut, so
// that no text reaches the size limit of an X request.

#include <cstddef>
#include <string>

#include "text/unicode/UString.h"

// The most characters one list row, label or shell title draws: more than a screen shows.
std::size_t const maxShownCharacters = 1000;

// Returns the text in the locale's multibyte encoding, with U+FFFD (or "?" where the locale has
// no such character) for each invalid UTF-8 sequence (its longest ill-formed start, as the
// Unicode standard recommends), each zero character and each character the locale cannot
// express. Throws nothing but std::bad_alloc.
std::string ShownText(UStringRef<UTF8> text);

// Returns ShownText cut to at most maxCharacters whole characters: a longer text keeps its start
// and ends in an ellipsis (U+2026, or "..." where the locale lacks it) inside the limit. Reads
// no further into the text than the limit, so a huge text costs no more than a short one.
std::string ShortShownText(UStringRef<UTF8> text, std::size_t maxCharacters = maxShownCharacters);

// Returns the number of characters of a text in the locale's encoding, or its number of bytes
// when it is not valid in the locale.
std::size_t LocalCharacterCount(std::string const& localText);
