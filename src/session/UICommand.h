#pragma once
// A decision on its way from a dialog to the session logic. Widget callbacks decide nothing:
// each disables or hides its dialog and queues a command, and the next tick carries it out.

#include <cstdint>
#include <memory>

#include "session/FiFoQueue.h"
#include "threads/AccessLock.h"

enum UICommandType : uint32_t {
    UICommandTakeAll = 0,
    UICommandShowDetails = 1,
    UICommandDetailsClosed = 2,
    UICommandCancel = 3,
    UICommandTake = 4,
    UICommandSnooze = 5,
    UICommandConfirmationAccepted = 6,
    UICommandConfirmationRejected = 7,
    UICommandQuietModeDismissed = 8,
    UICommandShowActions = 9
};

class UICommand {
  public:
    virtual ~UICommand();

    UICommandType m_command = UICommandTakeAll;
    unsigned long long m_actionID = 0;  // the action concerned, 0 if none
    long m_minutes = 0;                 // snooze length; zero or less selects the absolute time
    uint32_t m_seconds = 0;             // absolute remind time in whole seconds, low 32 bits
};

// The locked queue of commands, shaped like the queue of documents: writers append one
// command, the reader swaps out everything at once. Only the main thread uses it; it is locked
// all the same.
class UICommandQueue {
  public:
    // Takes over the command and appends it.
    void WriteMessage(std::unique_ptr<UICommand> command);
    // Swaps the whole contents with the caller's queue. Pass an empty queue.
    void ReadMessages(FiFoQueue<std::unique_ptr<UICommand>>& into);
    bool IsEmpty() const;

  private:
    mutable AccessLock m_lock;
    FiFoQueue<std::unique_ptr<UICommand>> m_queue;
};

// Makes a command and appends it to the session's command queue. Only the low 32 bits of
// seconds are kept, as the record holds them.
void QueueCommand(UICommandType command, unsigned long long actionID, long minutes,
                  long long seconds);
