#include "session/UICommand.h"

#include "session/SessionState.h"

UICommand::~UICommand() = default;

void UICommandQueue::WriteMessage(std::unique_ptr<UICommand> command) {
    AccessLocker locker(m_lock);
    m_queue.Append(std::move(command));
}

void UICommandQueue::ReadMessages(FiFoQueue<std::unique_ptr<UICommand>>& into) {
    AccessLocker locker(m_lock);
    m_queue.Swap(into);
}

bool UICommandQueue::IsEmpty() const {
    AccessLocker locker(m_lock);
    return m_queue.IsEmpty();
}

void QueueCommand(UICommandType command, unsigned long long actionID, long minutes,
                  long long seconds) {
    std::unique_ptr<UICommand> made(new UICommand);
    made->m_command = command;
    made->m_actionID = actionID;
    made->m_minutes = minutes;
    made->m_seconds = static_cast<uint32_t>(static_cast<unsigned long long>(seconds));
    uiCommandQ.WriteMessage(std::move(made));
}
