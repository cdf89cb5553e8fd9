#pragma once
// The general lexemes: runs of ignored bytes, single characters, and words gathered into a small
// buffer through an optional filter.

#include "text/bytes/Ascii.h"
#include "text/bytes/ConstData.h"
#include "text/streams/DataFilter.h"
#include "time/Lexeme.h"
#include "time/LexemeAcceptors.h"

// Consumes the bytes of its set and delivers nothing.
class IgnoredTextLexeme : public Lexeme {
  public:
    explicit IgnoredTextLexeme(Ascii::CharacterSet const& set) : ignored(set) {}
    void Lex(Range<unsigned long> range, ConstBuffer& input) override;
    void End(Range<unsigned long>) override {}

  private:
    Ascii::CharacterSet const& ignored;
};

// Takes exactly one byte and delivers it.
class CharacterLexeme : public Lexeme {
  public:
    explicit CharacterLexeme(CharacterLexemeAcceptor& a) : acceptor(a), taken(false) {}
    void Start(unsigned long) override { taken = false; }
    // Consumes nothing once its byte is taken, so that a chunk boundary right after the byte
    // does not make it take the next one.
    void Lex(Range<unsigned long> range, ConstBuffer& input) override;
    void End(Range<unsigned long>) override {}

  private:
    CharacterLexemeAcceptor& acceptor;
    bool taken;
};

// Gathers the bytes of its set into the caller's buffer, through the filter when there is one.
// What does not fit is dropped; a word that fills the buffer counts as an overflow, so a buffer
// of n bytes matches words of up to n-1 bytes.
class WordLexeme : public Lexeme {
  public:
    // The buffer must outlive the lexeme; the acceptor may be given later with SetAcceptor.
    WordLexeme(Ascii::CharacterSet const& set, Data buffer, WordLexemeAcceptor* acceptor,
               DataFilter* filter = nullptr)
        : letters(set), word(buffer), cursor(buffer.begin), filter(filter), acceptor(acceptor) {}

    void Start(unsigned long) override { cursor = word.begin; }
    void Lex(Range<unsigned long> range, ConstBuffer& input) override;
    void End(Range<unsigned long> range) override { Deliver(range); }

  protected:
    void SetAcceptor(WordLexemeAcceptor& a) { acceptor = &a; }

  private:
    void Deliver(Range<unsigned long> range);

    Ascii::CharacterSet const& letters;
    Data word;
    unsigned char* cursor;
    DataFilter* filter;
    WordLexemeAcceptor* acceptor;
};
