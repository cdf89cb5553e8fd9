#include "session/UIMessageQueue.h"

void UIMessageQueue::WriteMessage(UIMessage& message) {
    AccessLocker locker(m_lock);
    m_queue.Append(message);
}

void UIMessageQueue::ReadMessages(FiFoQueue<UIMessage>& into) {
    AccessLocker locker(m_lock);
    m_queue.Swap(into);
}

bool UIMessageQueue::IsEmpty() const {
    AccessLocker locker(m_lock);
    return m_queue.IsEmpty();
}
