#pragma once
// The locked queue of documents between the main thread and a pipe thread. Writers append one
// message; readers swap out everything at once.

#include "session/FiFoQueue.h"
#include "session/UIMessage.h"
#include "threads/AccessLock.h"

class UIMessageQueue {
  public:
    // Appends a deep copy of the message under the lock; the caller keeps its own.
    void WriteMessage(UIMessage& message);
    // Swaps the whole contents with the caller's queue under the lock. Pass an empty queue.
    void ReadMessages(FiFoQueue<UIMessage>& into);
    // Returns whether the queue holds nothing, under the lock.
    bool IsEmpty() const;

  private:
    mutable AccessLock m_lock;
    FiFoQueue<UIMessage> m_queue;
};
