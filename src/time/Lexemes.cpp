#include "time/Lexemes.h"

namespace {

// Returns where the run of bytes of the set that starts at the cursor ends.
unsigned char const* EndOfRun(Ascii::CharacterSet const& set, ConstBuffer const& input) {
    unsigned char const* p = input.cursor;
    while (p != input.end && set.Contains(*p)) ++p;
    return p;
}

}  // namespace

void IgnoredTextLexeme::Lex(Range<unsigned long>, ConstBuffer& input) {
    input.cursor = EndOfRun(ignored, input);
}

void CharacterLexeme::Lex(Range<unsigned long> range, ConstBuffer& input) {
    if (taken || input.Empty()) return;
    taken = true;
    unsigned char const character = *input.cursor++;
    acceptor.AcceptCharacter(Range<unsigned long>(range.start, range.end + 1), character);
}

void WordLexeme::Lex(Range<unsigned long> range, ConstBuffer& input) {
    unsigned char const* const runEnd = EndOfRun(letters, input);
    ConstBuffer run(input.cursor, runEnd);
    Buffer target(cursor, word.end);
    if (filter) {
        (*filter)(run, target);
    } else {
        target << run;
    }
    cursor = target.cursor;
    range.end += static_cast<unsigned long>(runEnd - input.cursor);
    input.cursor = runEnd;
    if (!input.Empty()) Deliver(range);
}

void WordLexeme::Deliver(Range<unsigned long> range) {
    if (cursor == word.end) {
        acceptor->AcceptWordOverflow(range);
    } else {
        acceptor->AcceptWord(range, ConstData(word.begin, cursor));
    }
}
