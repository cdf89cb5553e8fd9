#pragma once
// Numerals of the time language, delivered by their count of digits: one to four digits each
// have a part of speech, and longer numerals are refused.

#include <cstdint>

#include "time/Lexeme.h"
#include "time/LexemeAcceptors.h"

class TimeNumeralLexeme : public Lexeme {
  public:
    explicit TimeNumeralLexeme(TimeNumeralLexemeAcceptor& a) : acceptor(a), count(0), value(0) {}

    void Start(unsigned long) override {
        count = 0;
        value = 0;
    }
    void Lex(Range<unsigned long> range, ConstBuffer& input) override;
    void End(Range<unsigned long>) override { Deliver(); }

  private:
    void Deliver();

    TimeNumeralLexemeAcceptor& acceptor;
    // The count of digits stops at its maximum; the value wraps in 32 bits, which only a numeral
    // of five digits or more, refused anyway, can reach.
    std::uint8_t count;
    std::uint32_t value;
};
