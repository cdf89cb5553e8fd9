#pragma once
// Words looked up in a constant table of reserved words, sorted in ascending byte order.

#include "text/bytes/ConstData.h"
#include "text/bytes/Range.h"
#include "time/Lexemes.h"

// One entry of a table of reserved words: the word, and what it stands for.
template <class Action>
struct ReservedWord {
    char const* word;
    Action action;
};

// A word lexeme that is its own word acceptor: it looks each word up by binary search and hands
// a reserved word, an ordinary word or an overflow to its acceptor.
template <class Action>
class ReservedWordLexeme : public WordLexeme, public WordLexemeAcceptor {
  public:
    using Table = Range<ReservedWord<Action> const*>;

    // The buffer, the table and the acceptor must outlive the lexeme.
    ReservedWordLexeme(Ascii::CharacterSet const& set, Data buffer, DataFilter* filter,
                       Table reserved, ReservedWordAcceptor<Action>& a)
        : WordLexeme(set, buffer, nullptr, filter), table(reserved), acceptor(a) {
        SetAcceptor(*this);
    }

    void AcceptWord(Range<unsigned long> range, ConstData word) override {
        ReservedWord<Action> const* low = table.start;
        ReservedWord<Action> const* high = table.end;
        while (low < high) {
            ReservedWord<Action> const* middle = low + (high - low) / 2;
            int const order = Compare(ConstData(middle->word), word);
            if (order == 0) {
                acceptor.AcceptReservedWord(range, middle->action);
                return;
            }
            if (order < 0) {
                low = middle + 1;
            } else {
                high = middle;
            }
        }
        acceptor.AcceptOrdinaryWord(range, word);
    }

    void AcceptWordOverflow(Range<unsigned long> range) override {
        acceptor.AcceptWordOverflow(range);
    }

  private:
    Table table;
    ReservedWordAcceptor<Action>& acceptor;
};
