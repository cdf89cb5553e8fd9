#pragma once
// A first-in first-out list that owns its nodes. Readers take everything at once by swapping
// whole lists, so a lock around a queue is held only for a few pointers.

#include <utility>

#include "session/SessionErrors.h"

template <class T>
class FiFoQueue {
  public:
    FiFoQueue() = default;
    ~FiFoQueue() { Clear(); }
    FiFoQueue(FiFoQueue const&) = delete;
    FiFoQueue& operator=(FiFoQueue const&) = delete;

    bool IsEmpty() const { return m_head == nullptr; }

    // Appends a new node holding the value.
    void Append(T value) {
        Node* node = new Node{nullptr, m_tail, std::move(value)};
        if (m_tail)
            m_tail->next = node;
        else
            m_head = node;
        m_tail = node;
    }

    // Returns the first value and removes its node. Throws FiFoQueueIsEmpty on an empty queue.
    T TakeFirst() {
        if (!m_head) throw FiFoQueueIsEmpty();
        Node* node = m_head;
        m_head = node->next;
        if (m_head)
            m_head->previous = nullptr;
        else
            m_tail = nullptr;
        T value = std::move(node->value);
        delete node;
        return value;
    }

    // Exchanges the whole contents with another queue.
    void Swap(FiFoQueue& other) {
        std::swap(m_head, other.m_head);
        std::swap(m_tail, other.m_tail);
    }

    // Frees every node.
    void Clear() {
        while (m_head) {
            Node* next = m_head->next;
            delete m_head;
            m_head = next;
        }
        m_tail = nullptr;
    }

  private:
    struct Node {
        Node* next;
        Node* previous;
        T value;
    };
    Node* m_head = nullptr;
    Node* m_tail = nullptr;
};
