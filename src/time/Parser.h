#pragma once
// A table-driven shift-reduce parser over a Grammar. It has no lookahead tables: its stack holds
// nodes, each the position reached within a production in progress. An incoming symbol either
// continues the production on top or starts a new one above it, and a finished production's
// result is handled exactly like an incoming symbol.
//
// Errors come late by design: a symbol that fits nowhere in the production on top starts a new
// production if any right side begins with it, and the failure shows when no production
// continues, at the latest at AcceptEnd.

#include "text/bytes/ConstData.h"
#include "text/bytes/StackBase.h"
#include "time/Grammar.h"
#include "time/TimeErrors.h"

template <class Language, class Semantics>
class Parser {
  public:
    using Node = ProductionNode<Language, Semantics>;
    using PartOfSpeech = typename Language::PartOfSpeech;

    // The grammar and the semantics must outlive the parser; the node stack begins in the
    // caller's storage and continues on the heap only when that is full.
    Parser(Grammar<Language, Semantics> const& g, Semantics& s, Data stackStorage)
        : grammar(g),
          semantics(s),
          pending(nullptr),
          accepted(false),
          ended(false),
          stack(stackStorage, sizeof(Node const*)) {}

    // Forgets any earlier parse; the semantics is not touched.
    void Reset() {
        stack.PopAll();
        pending = nullptr;
        accepted = false;
        ended = false;
    }

    // Prepares the next symbol: finishes the productions it closes and finds where it goes.
    // Throws ParsingFailure when it fits nowhere or comes after a complete phrase.
    void Append(PartOfSpeech symbol) {
        ChooseAlternative(symbol);
        while (!Empty() && Top()->Complete()) {
            Reduce();
            ChooseAlternative(symbol);
        }
        if (accepted) throw ParsingFailure();
        pending = Towards(symbol);
    }

    // Pushes the symbol prepared by Append, then reduces what it completes.
    void Shift() {
        Push(pending);
        pending = nullptr;
        while (!Empty() && Top()->Complete()) Reduce();
    }

    // Reduces to the goal at the end of the text. Throws ParsingFailure when the text stops
    // short of a complete phrase.
    void AcceptEnd() {
        ended = true;
        if (accepted) return;
        ChooseAlternative(Language::EndOfPhrase);
        while (!accepted) {
            if (Empty() || !Top()->Complete()) throw ParsingFailure();
            Reduce();
            ChooseAlternative(Language::EndOfPhrase);
        }
    }

    // Returns whether a goal production has been reduced.
    bool Accepted() const { return accepted; }

  private:
    bool Empty() const { return stack.Count() == 0; }
    Node const*& TopSlot() const { return *static_cast<Node const**>(stack.Top()); }
    Node const* Top() const { return TopSlot(); }
    void Push(Node const* node) { *static_cast<Node const**>(stack.Allocate()) = node; }

    // Makes the top the first node along its alternatives that is complete or expects the
    // symbol; leaves the top alone when there is none.
    void ChooseAlternative(PartOfSpeech symbol) {
        if (Empty()) return;
        for (Node const* node = Top(); node; node = node->alternative) {
            if (node->Complete() || node->part == symbol) {
                TopSlot() = node;
                return;
            }
        }
    }

    // Returns the position after the symbol: on in the production on top when that expects it,
    // else at the start of the productions that begin with it. Throws ParsingFailure when there
    // is none.
    Node const* Towards(PartOfSpeech symbol) const {
        Node const* node = !Empty() && Top()->part == symbol ? Top()->next : grammar[symbol];
        if (!node) throw ParsingFailure();
        return node;
    }

    // Finishes the production on top: pops its symbols, runs its action and handles its result
    // as an incoming symbol. A goal production must leave the stack empty.
    void Reduce() {
        auto const& production = *Top()->production;
        stack.Pop(production.length);
        if (production.action) (semantics.*production.action)();
        if (production.result == Language::EndOfPhrase) {
            if (!Empty()) throw ParsingFailure();
            accepted = true;
            return;
        }
        if (!Empty()) ChooseAlternative(production.result);
        Push(Towards(production.result));
    }

    Grammar<Language, Semantics> const& grammar;
    Semantics& semantics;
    Node const* pending;
    bool accepted;
    bool ended;
    StackBase stack;
};
