#pragma once
// A kind of token, as the lexer sees it: it consumes the bytes that belong to it and reports the
// token to its acceptor when it meets the first byte that does not, or at the end of the text.

#include "text/bytes/ConstData.h"
#include "text/bytes/Range.h"

class Lexeme {
  public:
    virtual ~Lexeme() = default;
    // Called when the lexer chooses this lexeme at the byte position; nothing to do for this base.
    virtual void Start(unsigned long) {}
    // Consumes from input the bytes that belong to the token and returns. Bytes left in input
    // mean that the token has ended and has been delivered; the range runs from the token's start
    // to the position of input's cursor.
    virtual void Lex(Range<unsigned long> range, ConstBuffer& input) = 0;
    // Delivers the token at the end of the text.
    virtual void End(Range<unsigned long> range) = 0;
};
