#include "threads/List.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace {

struct Named : ListNode {
    explicit Named(char n) : name(n) {}
    char name;
};

// Returns the names from first to last, and checks that the backward links agree.
std::string NodeNames(List const& list) {
    std::string forward;
    ListNode const* previous = nullptr;
    for (ListNode* node = list.First(); node; node = node->Next()) {
        EXPECT_EQ(node->Previous(), previous);
        EXPECT_EQ(node->Owner(), &list);
        forward += static_cast<Named*>(node)->name;
        previous = node;
    }
    EXPECT_EQ(list.Last(), previous);
    return forward;
}

// Walks the list and calls change once on the node named at; returns the names visited.
std::string WalkChanging(List& list, char at, std::function<void(List::Loop&)> const& change) {
    std::string visited;
    bool changed = false;
    for (List::Loop loop(list); !loop.Done(); loop.Advance()) {
        if (!loop.Current()) continue;
        char const name = static_cast<Named*>(loop.Current())->name;
        visited += name;
        if (name == at && !changed) {
            changed = true;
            change(loop);
        }
    }
    return visited;
}

}  // namespace

TEST(List, AddPlacesNodesAtEitherEndAndNextToOthers) {
    List list;
    Named a('a'), b('b'), c('c'), d('d');
    list.Add(b, AfterEnd());
    list.Add(a, BeforeStart());
    list.Add(d, AfterEnd());
    list.Add(c, Before(), d);
    EXPECT_EQ(NodeNames(list), "abcd");
    EXPECT_EQ(list.Count(), 4u);
    // Adding a listed node moves it.
    list.Add(a, After(), c);
    EXPECT_EQ(NodeNames(list), "bcad");
    list.Remove(c);
    EXPECT_EQ(NodeNames(list), "bad");
    EXPECT_EQ(c.Owner(), nullptr);
    list.RemoveAll();
    EXPECT_TRUE(list.Empty());
    EXPECT_EQ(list.Count(), 0u);
}

TEST(List, WalksSurviveChangesUnderTheLoop) {
    // Each row: a change made while the walk stands on a node, the nodes the walk then visits,
    // and the list afterwards. The list starts as "abcd"; "x" is a node not in it.
    struct Row {
        char const* what;
        char at;
        std::function<void(List&, List::Loop&, std::vector<std::unique_ptr<Named>>&)> change;
        char const* visited;
        char const* after;
    };
    // Finds a node by name; only "destroy current" erases one, and it looks nothing up after.
    auto node = [](std::vector<std::unique_ptr<Named>>& n, char name) -> Named& {
        return *n[std::string("abcdx").find(name)];
    };
    std::vector<Row> const rows = {
        {"remove current", 'b', [&](List& l, List::Loop&, auto& n) { l.Remove(node(n, 'b')); },
         "abcd", "acd"},
        {"remove current, then its next", 'b',
         [&](List& l, List::Loop&, auto& n) {
             l.Remove(node(n, 'b'));
             l.Remove(node(n, 'c'));
         },
         "abd", "ad"},
        {"remove the next", 'b', [&](List& l, List::Loop&, auto& n) { l.Remove(node(n, 'c')); },
         "abd", "abd"},
        {"destroy current", 'c', [&](List&, List::Loop&, auto& n) { n.erase(n.begin() + 2); },
         "abcd", "abd"},
        {"remove the last under the loop, then add at the back", 'd',
         [&](List& l, List::Loop&, auto& n) {
             l.Remove(node(n, 'd'));
             l.Add(node(n, 'x'), AfterEnd());
         },
         "abcdx", "abcx"},
        {"add at the back while on the last", 'd',
         [&](List& l, List::Loop&, auto& n) { l.Add(node(n, 'x'), AfterEnd()); }, "abcdx", "abcdx"},
        {"add at the front is behind the walk", 'b',
         [&](List& l, List::Loop&, auto& n) { l.Add(node(n, 'x'), BeforeStart()); }, "abcd",
         "xabcd"},
        {"remove current, then add before the remembered next", 'b',
         [&](List& l, List::Loop&, auto& n) {
             l.Remove(node(n, 'b'));
             l.Add(node(n, 'x'), Before(), node(n, 'c'));
         },
         "abxcd", "axcd"},
        {"remove current, then add after the remembered previous", 'b',
         [&](List& l, List::Loop& loop, auto& n) {
             l.Remove(node(n, 'b'));
             l.Add(node(n, 'x'), After(), node(n, 'a'));
             // Now before the loop position means behind x, the new previous.
             static Named y('y');
             l.Add(y, Before(), loop);
         },
         "abcd", "axycd"},
        {"after the loop position with a current", 'b',
         [&](List& l, List::Loop& loop, auto& n) { l.Add(node(n, 'x'), After(), loop); }, "abxcd",
         "abxcd"},
        {"before the loop position with a current", 'b',
         [&](List& l, List::Loop& loop, auto& n) { l.Add(node(n, 'x'), Before(), loop); }, "abcd",
         "axbcd"},
        {"after the loop position once current is gone", 'b',
         [&](List& l, List::Loop& loop, auto& n) {
             l.Remove(node(n, 'b'));
             l.Add(node(n, 'x'), After(), loop);
         },
         "abxcd", "axcd"},
        {"after the loop position once the last is gone", 'd',
         [&](List& l, List::Loop& loop, auto& n) {
             l.Remove(node(n, 'd'));
             l.Add(node(n, 'x'), After(), loop);
         },
         "abcdx", "abcx"},
        {"before the loop position once the first is gone", 'a',
         [&](List& l, List::Loop& loop, auto& n) {
             l.Remove(node(n, 'a'));
             l.Add(node(n, 'x'), Before(), loop);
         },
         "abcd", "xbcd"},
        {"remove everything", 'b', [&](List& l, List::Loop&, auto&) { l.RemoveAll(); }, "ab", ""},
    };
    for (Row const& row : rows) {
        SCOPED_TRACE(row.what);
        List list;
        std::vector<std::unique_ptr<Named>> nodes;
        for (char name : std::string("abcdx")) nodes.push_back(std::make_unique<Named>(name));
        for (int i = 0; i < 4; ++i) list.Add(*nodes[i], AfterEnd());
        std::string const visited =
            WalkChanging(list, row.at, [&](List::Loop& loop) { row.change(list, loop, nodes); });
        EXPECT_EQ(visited, row.visited);
        EXPECT_EQ(NodeNames(list), row.after);
    }
}

TEST(List, TwoLoopsOnOneListAreBothKeptValid) {
    List list;
    Named a('a'), b('b'), c('c');
    list.Add(a, AfterEnd());
    list.Add(b, AfterEnd());
    list.Add(c, AfterEnd());
    List::Loop outer(list);
    outer.Advance();  // on b
    {
        List::Loop inner(list);
        inner.Advance();  // also on b
        list.Remove(b);
        EXPECT_EQ(inner.Current(), nullptr);
        inner.Advance();
        EXPECT_EQ(inner.Current(), &c);
    }
    EXPECT_EQ(outer.Current(), nullptr);
    outer.Advance();
    EXPECT_EQ(outer.Current(), &c);
    outer.Advance();
    EXPECT_TRUE(outer.Done());
}

TEST(List, NodesOutlivingTheirListAreUnlisted) {
    Named a('a'), b('b');
    {
        List list;
        list.Add(a, AfterEnd());
        list.Add(b, AfterEnd());
    }
    EXPECT_EQ(a.Owner(), nullptr);
    EXPECT_EQ(a.Next(), nullptr);
    EXPECT_EQ(b.Previous(), nullptr);
}
