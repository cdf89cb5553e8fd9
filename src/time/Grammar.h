#pragma once
// The grammar of a small language as linked production objects: a table by part of speech of the
// prefix trees over the productions' right sides. Productions are constant objects, linked into
// their grammar once when they are made; parsing computes no tables.

#include <cstddef>

template <class Language, class Semantics>
class Production;

// One position within a production: the symbol expected here, the position after it, another
// position at the same place in the tree, and the production it belongs to. The last node of a
// production expects EndOfPhrase and has no next; such a node is complete.
template <class Language, class Semantics>
struct ProductionNode {
    typename Language::PartOfSpeech part;
    ProductionNode const* next;
    ProductionNode const* alternative;
    Production<Language, Semantics> const* production;

    bool Complete() const { return next == nullptr; }
};

// An array of node pointers indexed by part of speech, all null at the start. Entry f is the tree
// of what may follow a first symbol f, with alternatives in order of declaration.
template <class Language, class Semantics>
class Grammar {
  public:
    using Node = ProductionNode<Language, Semantics>;
    using PartOfSpeech = typename Language::PartOfSpeech;

    Grammar() : first() {}
    Grammar(Grammar const&) = delete;
    Grammar& operator=(Grammar const&) = delete;

    // Returns the tree for the first symbol, or null when no production begins with it.
    Node const* operator[](PartOfSpeech symbol) const {
        return static_cast<std::size_t>(symbol) < Language::partCount ? first[symbol] : nullptr;
    }

    // Links the nodes of a production whose first symbol is given. Where the tree already has a
    // node for the same symbol at the same place, the walk goes on to both next nodes; at the
    // first place without one, the new node hangs at the end of the alternatives.
    void Link(PartOfSpeech symbol, Node* nodes) {
        Node const** slot = &first[symbol];
        Node* adding = nodes;
        while (*slot) {
            Node* level = const_cast<Node*>(*slot);
            while (level->part != adding->part && level->alternative)
                level = const_cast<Node*>(level->alternative);
            if (level->part != adding->part) {
                level->alternative = adding;
                return;
            }
            // A duplicate right side adds nothing.
            if (!level->next || !adding->next) return;
            slot = &level->next;
            adding = const_cast<Node*>(adding->next);
        }
        *slot = adding;
    }

  private:
    Node const* first[Language::partCount];
};

// What every production holds: the action run at its reduction (a member of the semantics, or
// null), the number of symbols on its right side, and the part of speech it reduces to.
template <class Language, class Semantics>
class Production {
  public:
    using Action = void (Semantics::*)();
    using PartOfSpeech = typename Language::PartOfSpeech;

    Action action;
    unsigned length;
    PartOfSpeech result;

  protected:
    Production(Action a, unsigned l, PartOfSpeech r) : action(a), length(l), result(r) {}
    Production(Production const&) = delete;
    Production& operator=(Production const&) = delete;
};

// A production of Length symbols: one node for each symbol after the first, and the end node.
// It links itself into the grammar on construction and must live as long as the grammar.
template <class Language, class Semantics, unsigned Length>
class ProductionOfLength : public Production<Language, Semantics> {
  public:
    using Base = Production<Language, Semantics>;
    using PartOfSpeech = typename Language::PartOfSpeech;
    using Node = ProductionNode<Language, Semantics>;

  protected:
    ProductionOfLength(Grammar<Language, Semantics>& grammar, PartOfSpeech const (&symbols)[Length],
                       typename Base::Action action, PartOfSpeech result)
        : Base(action, Length, result) {
        for (unsigned i = 0; i < Length; ++i) {
            bool const last = i + 1 == Length;
            nodes[i].part = last ? Language::EndOfPhrase : symbols[i + 1];
            nodes[i].next = last ? nullptr : &nodes[i + 1];
            nodes[i].alternative = nullptr;
            nodes[i].production = this;
        }
        grammar.Link(symbols[0], nodes);
    }

  private:
    Node nodes[Length];
};

template <class Language, class Semantics>
class Production1 : public ProductionOfLength<Language, Semantics, 1> {
  public:
    using Base = ProductionOfLength<Language, Semantics, 1>;
    Production1(Grammar<Language, Semantics>& grammar, typename Base::PartOfSpeech s1,
                typename Base::Action action, typename Base::PartOfSpeech result)
        : Base(grammar, {s1}, action, result) {}
};

template <class Language, class Semantics>
class Production2 : public ProductionOfLength<Language, Semantics, 2> {
  public:
    using Base = ProductionOfLength<Language, Semantics, 2>;
    Production2(Grammar<Language, Semantics>& grammar, typename Base::PartOfSpeech s1,
                typename Base::PartOfSpeech s2, typename Base::Action action,
                typename Base::PartOfSpeech result)
        : Base(grammar, {s1, s2}, action, result) {}
};

template <class Language, class Semantics>
class Production3 : public ProductionOfLength<Language, Semantics, 3> {
  public:
    using Base = ProductionOfLength<Language, Semantics, 3>;
    Production3(Grammar<Language, Semantics>& grammar, typename Base::PartOfSpeech s1,
                typename Base::PartOfSpeech s2, typename Base::PartOfSpeech s3,
                typename Base::Action action, typename Base::PartOfSpeech result)
        : Base(grammar, {s1, s2, s3}, action, result) {}
};

template <class Language, class Semantics>
class Production4 : public ProductionOfLength<Language, Semantics, 4> {
  public:
    using Base = ProductionOfLength<Language, Semantics, 4>;
    Production4(Grammar<Language, Semantics>& grammar, typename Base::PartOfSpeech s1,
                typename Base::PartOfSpeech s2, typename Base::PartOfSpeech s3,
                typename Base::PartOfSpeech s4, typename Base::Action action,
                typename Base::PartOfSpeech result)
        : Base(grammar, {s1, s2, s3, s4}, action, result) {}
};
