#pragma once
// An intrusive doubly linked list whose walks survive changes to it: a loop position kept on the
// stack (SequenceLoop) registers with its list, and every Add and Remove first moves the running
// loops' positions, so that removing the node under a loop, or adding next to it, never leaves
// the loop pointing at a node that is gone. The list owns nothing; a node takes itself out of
// its list when it is destroyed. No lock: the owner of a list serialises its use.

class List;
class ListNode;

// Where Add places a node: at the front, at the back, before or after a node or a loop position.
struct BeforeStart {};
struct AfterEnd {};
struct Before {};
struct After {};

// The base of anything that is to be listed. All three links are null when not in a list.
class ListNode {
  public:
    ListNode() : m_next(nullptr), m_previous(nullptr), m_list(nullptr) {}
    // Takes the node out of its list, so that no list keeps a pointer to it.
    virtual ~ListNode();
    // A copy starts unlisted: links belong to one node in one place.
    ListNode(ListNode const&) : ListNode() {}
    ListNode& operator=(ListNode const&) { return *this; }

    ListNode* Next() const { return m_next; }
    ListNode* Previous() const { return m_previous; }
    // Returns the list the node is in, or null.
    List* Owner() const { return m_list; }

  private:
    friend class List;
    ListNode* m_next;
    ListNode* m_previous;
    List* m_list;
};

// A position in a walk over a list, kept on the stack for the length of the walk. While it
// exists it is registered with its list, which keeps it valid through changes. Only the
// instance SequenceLoop<List, ListNode> exists.
template <class L, class N>
class SequenceLoop {
  public:
    // Starts on the first node of the list; done at once when the list is empty.
    explicit SequenceLoop(L const& list);
    ~SequenceLoop();
    SequenceLoop(SequenceLoop const&) = delete;
    SequenceLoop& operator=(SequenceLoop const&) = delete;

    // Returns the node under the loop; null once that node has been removed, until the next
    // Advance.
    N* Current() const { return m_current; }
    // Returns whether the walk has passed the last node.
    bool Done() const { return m_done; }
    // Goes on to the node behind the current one, or, when the current one was removed, to the
    // node remembered in its place.
    void Advance();

  private:
    friend class List;
    N* m_current;
    N* m_next;
    N* m_previous;
    L* m_list;
    SequenceLoop* m_nextLoop;
    bool m_done;
};

class List {
  public:
    typedef SequenceLoop<List, ListNode> Loop;

    List() : m_loops(nullptr), m_first(nullptr), m_last(nullptr) {}
    // Leaves every node that is still listed unlisted, so that a node outliving its list never
    // reaches back into it.
    ~List();
    List(List const&) = delete;
    List& operator=(List const&) = delete;

    // Each Add first takes the node out of any list it is in.
    void Add(ListNode& node, BeforeStart);
    void Add(ListNode& node, AfterEnd);
    // Next to a node of this list.
    void Add(ListNode& node, Before, ListNode const& other);
    void Add(ListNode& node, After, ListNode const& other);
    // Before a loop position: before its current node; without one, after the remembered
    // previous node; without that, at the front. After: after its current node; without one,
    // before the remembered next node; without that, at the back.
    void Add(ListNode& node, Before, Loop const& position);
    void Add(ListNode& node, After, Loop const& position);

    // Takes the node out; a node that isn't in this list is left alone.
    void Remove(ListNode& node);
    void RemoveAll();
    // Returns the number of nodes, walking the list.
    unsigned long Count() const;

    ListNode* First() const { return m_first; }
    ListNode* Last() const { return m_last; }
    bool Empty() const { return m_first == nullptr; }

  private:
    friend class SequenceLoop<List, ListNode>;

    // Links the node between previous and next, which are neighbours in this list (either may
    // be null at an end).
    void Link(ListNode& node, ListNode* previous, ListNode* next);
    void Register(Loop& loop) const;
    void Unregister(Loop& loop) const;

    // Loops register on lists they only read, so the chain can change on a const list.
    mutable Loop* m_loops;
    ListNode* m_first;
    ListNode* m_last;
};

template <class L, class N>
SequenceLoop<L, N>::SequenceLoop(L const& list)
    : m_current(list.First()),
      m_next(nullptr),
      m_previous(nullptr),
      m_list(const_cast<L*>(&list)),
      m_nextLoop(nullptr),
      m_done(m_current == nullptr) {
    list.Register(*this);
}

template <class L, class N>
SequenceLoop<L, N>::~SequenceLoop() {
    m_list->Unregister(*this);
}

template <class L, class N>
void SequenceLoop<L, N>::Advance() {
    if (m_done) return;
    if (m_current) {
        m_current = m_current->Next();
    } else {
        m_current = m_next;
    }
    m_next = nullptr;
    m_previous = nullptr;
    if (!m_current) m_done = true;
}
