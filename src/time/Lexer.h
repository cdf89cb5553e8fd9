#pragma once
// A lexer cuts bytes into tokens: it chooses a lexeme by the class of a token's first byte and
// lets it consume what belongs to it. Text may arrive in chunks of any size.

#include "text/bytes/ConstData.h"
#include "text/streams/DataReceiver.h"
#include "time/Lexeme.h"
#include "time/LexemeAcceptors.h"

class Lexer : public DataReceiver {
  public:
    // The acceptor must outlive the lexer.
    explicit Lexer(EndLexemeAcceptor& a) : acceptor(a), position(0), start(0), current(nullptr) {}

    // Clears the position and the current lexeme, and resets the acceptor.
    void Start() override;
    // Hands the bytes to the current lexeme, and to a newly chosen one wherever a token ends.
    void Receive(ConstData data) override;
    // Ends the current lexeme and reports the end to the acceptor.
    void ReceiveEnd() override;

    // Returns the lexeme for a token that begins with the byte.
    virtual Lexeme& ChooseLexeme(unsigned char first) = 0;

  private:
    void Choose(unsigned char first);

    EndLexemeAcceptor& acceptor;
    unsigned long position;
    unsigned long start;
    Lexeme* current;
};
