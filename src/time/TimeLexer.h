#pragma once
// The lexer of the time language: blanks are skipped, letters make words of up to three
// letters in any case, digits make numerals, and every other byte is a character of its own.
// Tokens need no separators: "04Mar2000" is three tokens.

#include "text/bytes/Ascii.h"
#include "time/LexemeAcceptors.h"
#include "time/Lexemes.h"
#include "time/Lexer.h"
#include "time/ReservedWordLexeme.h"
#include "time/TimeLanguage.h"
#include "time/TimeNumeralLexeme.h"

// Everything the lexer of the time language delivers: reserved words, numerals, characters and
// the end of the text.
class TimeLexemeAcceptor : public ReservedWordAcceptor<TimeParsingAction>,
                           public TimeNumeralLexemeAcceptor,
                           public CharacterLexemeAcceptor,
                           public EndLexemeAcceptor {};

class TimeLexer : public Lexer {
  public:
    // The acceptor must outlive the lexer.
    explicit TimeLexer(TimeLexemeAcceptor& acceptor);
    TimeLexer(TimeLexer const&) = delete;
    TimeLexer& operator=(TimeLexer const&) = delete;

    Lexeme& ChooseLexeme(unsigned char first) override;

    // Returns the 54 reserved words in lower case and ascending byte order. The end of the table
    // is found once, on first use.
    static ReservedWordLexeme<TimeParsingAction>::Table ReservedWords();

  private:
    unsigned char wordBuffer[4];
    ReservedWordLexeme<TimeParsingAction> words;
    TimeNumeralLexeme numerals;
    IgnoredTextLexeme blanks;
    CharacterLexeme characters;
    Ascii::CharacterSet const& whiteSpace;
    Ascii::CharacterSet const& numeric;
    Ascii::CharacterSet const& alphabetic;
};
