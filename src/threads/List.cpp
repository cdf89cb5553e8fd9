#include "threads/List.h"

ListNode::~ListNode() {
    if (m_list) m_list->Remove(*this);
}

List::~List() {
    ListNode* node = m_first;
    while (node) {
        ListNode* next = node->m_next;
        node->m_next = node->m_previous = nullptr;
        node->m_list = nullptr;
        node = next;
    }
    m_first = m_last = nullptr;
}

void List::Link(ListNode& node, ListNode* previous, ListNode* next) {
    node.m_previous = previous;
    node.m_next = next;
    node.m_list = this;
    if (previous) {
        previous->m_next = &node;
    } else {
        m_first = &node;
    }
    if (next) {
        next->m_previous = &node;
    } else {
        m_last = &node;
    }
}

void List::Add(ListNode& node, BeforeStart) {
    if (node.m_list) node.m_list->Remove(node);
    for (Loop* loop = m_loops; loop; loop = loop->m_nextLoop) {
        if (!loop->m_done && !loop->m_previous) loop->m_previous = &node;
    }
    Link(node, nullptr, m_first);
}

void List::Add(ListNode& node, AfterEnd) {
    if (node.m_list) node.m_list->Remove(node);
    for (Loop* loop = m_loops; loop; loop = loop->m_nextLoop) {
        if (!loop->m_done && !loop->m_next) loop->m_next = &node;
    }
    Link(node, m_last, nullptr);
}

void List::Add(ListNode& node, Before, ListNode const& other) {
    if (&node == &other) return;
    if (node.m_list) node.m_list->Remove(node);
    for (Loop* loop = m_loops; loop; loop = loop->m_nextLoop) {
        if (!loop->m_done && loop->m_next == &other) loop->m_next = &node;
    }
    Link(node, other.m_previous, const_cast<ListNode*>(&other));
}

void List::Add(ListNode& node, After, ListNode const& other) {
    if (&node == &other) return;
    if (node.m_list) node.m_list->Remove(node);
    for (Loop* loop = m_loops; loop; loop = loop->m_nextLoop) {
        if (!loop->m_done && loop->m_previous == &other) loop->m_previous = &node;
    }
    Link(node, const_cast<ListNode*>(&other), other.m_next);
}

void List::Add(ListNode& node, Before, Loop const& position) {
    if (position.m_current) {
        Add(node, Before(), *position.m_current);
    } else if (position.m_previous) {
        Add(node, After(), *position.m_previous);
    } else {
        Add(node, BeforeStart());
    }
}

void List::Add(ListNode& node, After, Loop const& position) {
    if (position.m_current) {
        Add(node, After(), *position.m_current);
    } else if (position.m_next) {
        Add(node, Before(), *position.m_next);
    } else {
        Add(node, AfterEnd());
    }
}

void List::Remove(ListNode& node) {
    if (node.m_list != this) return;
    for (Loop* loop = m_loops; loop; loop = loop->m_nextLoop) {
        if (loop->m_current == &node) {
            loop->m_current = nullptr;
            loop->m_next = node.m_next;
            loop->m_previous = node.m_previous;
        } else if (loop->m_next == &node) {
            loop->m_next = node.m_next;
        } else if (loop->m_previous == &node) {
            loop->m_previous = node.m_previous;
        }
    }
    if (node.m_previous) {
        node.m_previous->m_next = node.m_next;
    } else {
        m_first = node.m_next;
    }
    if (node.m_next) {
        node.m_next->m_previous = node.m_previous;
    } else {
        m_last = node.m_previous;
    }
    node.m_next = node.m_previous = nullptr;
    node.m_list = nullptr;
}

void List::RemoveAll() {
    while (m_first) Remove(*m_first);
}

unsigned long List::Count() const {
    unsigned long count = 0;
    for (ListNode* node = m_first; node; node = node->m_next) ++count;
    return count;
}

void List::Register(Loop& loop) const {
    loop.m_nextLoop = m_loops;
    m_loops = &loop;
}

void List::Unregister(Loop& loop) const {
    for (Loop** link = &m_loops; *link; link = &(*link)->m_nextLoop) {
        if (*link == &loop) {
            *link = loop.m_nextLoop;
            loop.m_nextLoop = nullptr;
            return;
        }
    }
}
