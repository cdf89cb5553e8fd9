#pragma once
// The interfaces through which lexemes deliver their tokens. Ranges carry byte positions in the
// text, for callers that want to point at a token.

#include "text/bytes/ConstData.h"
#include "text/bytes/Range.h"

class EndLexemeAcceptor {
  public:
    virtual ~EndLexemeAcceptor() = default;
    // Called at the start of a text; nothing to do for this base.
    virtual void Reset() {}
    // Called after the last token, with the position of the end.
    virtual void AcceptEnd(unsigned long position) = 0;
};

class WordLexemeAcceptor {
  public:
    virtual ~WordLexemeAcceptor() = default;
    // A word that fitted the word buffer; the bytes live in the lexeme's buffer until the next
    // word.
    virtual void AcceptWord(Range<unsigned long> range, ConstData word) = 0;
    // A word that filled the word buffer.
    virtual void AcceptWordOverflow(Range<unsigned long> range) = 0;
};

template <class Action>
class ReservedWordAcceptor {
  public:
    virtual ~ReservedWordAcceptor() = default;
    // A word of the table, with what it stands for.
    virtual void AcceptReservedWord(Range<unsigned long> range, Action action) = 0;
    // A word that is not in the table.
    virtual void AcceptOrdinaryWord(Range<unsigned long> range, ConstData word) = 0;
    // A word too long for the word buffer.
    virtual void AcceptWordOverflow(Range<unsigned long> range) = 0;
};

class TimeNumeralLexemeAcceptor {
  public:
    virtual ~TimeNumeralLexemeAcceptor() = default;
    virtual void AcceptOneDigit(unsigned long value) = 0;
    virtual void AcceptTwoDigits(unsigned long value) = 0;
    virtual void AcceptThreeDigits(unsigned long value) = 0;
    virtual void AcceptFourDigits(unsigned long value) = 0;
    // A numeral of five digits or more.
    virtual void AcceptOtherNumeral() = 0;
};

class CharacterLexemeAcceptor {
  public:
    virtual ~CharacterLexemeAcceptor() = default;
    virtual void AcceptCharacter(Range<unsigned long> range, unsigned char character) = 0;
};
