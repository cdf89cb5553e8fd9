#pragma once
// The failure of a text to fit its grammar.

#include "threads/DebuggableException.h"

// The text does not fit the grammar: an unknown or overlong word, a numeral of five digits or
// more, a stray character, a missing piece or text after the end. Carries no data.
class ParsingFailure : public DebuggableException {};
