#pragma once
// The parser of the time language as the acceptor of its lexer: each token becomes a part of
// speech for the grammar, and numerals and reserved words push their values on the semantics.

#include "time/Parser.h"
#include "time/TimeLanguage.h"
#include "time/TimeLexer.h"
#include "time/TimeRPNSemantics.h"

class TimeParser : public TimeLexemeAcceptor {
  public:
    // The semantics and the grammar must outlive the parser. The first 100 entries of the node
    // stack stand inside the parser, so a parse of ordinary text uses no heap.
    TimeParser(TimeRPNSemantics& semantics, TimeLanguage::TimeGrammar const& grammar);
    TimeParser(TimeParser const&) = delete;
    TimeParser& operator=(TimeParser const&) = delete;

    // Forgets any earlier parse, in the parser and in the semantics.
    void Reset() override;
    // Throws ParsingFailure when the text stops short of a complete phrase.
    void AcceptEnd(unsigned long position) override;

    void AcceptReservedWord(Range<unsigned long> range, TimeParsingAction action) override;
    // Throw ParsingFailure: the language has no other words, and none of four letters or more.
    void AcceptOrdinaryWord(Range<unsigned long> range, ConstData word) override;
    void AcceptWordOverflow(Range<unsigned long> range) override;

    void AcceptOneDigit(unsigned long value) override;
    void AcceptTwoDigits(unsigned long value) override;
    void AcceptThreeDigits(unsigned long value) override;
    void AcceptFourDigits(unsigned long value) override;
    // Throws ParsingFailure for a numeral of five digits or more.
    void AcceptOtherNumeral() override;

    // Takes "+", ",", "-" and ":"; throws ParsingFailure for any other byte.
    void AcceptCharacter(Range<unsigned long> range, unsigned char character) override;

    // Returns whether a complete phrase has been read.
    bool Accepted() const { return parser.Accepted(); }

    static constexpr unsigned nodeRoom = 100;

  private:
    void Token(TimeLanguage::PartOfSpeech part, long value);

    TimeLanguage::TimeGrammar::Node const* nodes[nodeRoom];
    TimeRPNSemantics& semantics;
    Parser<TimeLanguage, TimeRPNSemantics> parser;
};
