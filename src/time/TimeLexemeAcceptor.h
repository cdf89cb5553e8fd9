#pragma once
// Everything the lexer of the time language delivers: reserved words, numerals, characters and
// the end of the text.

#include "time/LexemeAcceptors.h"
#include "time/TimeLanguage.h"

class TimeLexemeAcceptor : public ReservedWordAcceptor<TimeParsingAction>,
                           public TimeNumeralLexemeAcceptor,
                           public CharacterLexemeAcceptor,
                           public EndLexemeAcceptor {};
