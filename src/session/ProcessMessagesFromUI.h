#pragma once
// Where the user's decisions take effect: the tick drains the command queue that the dialogs'
// callbacks fill, and each command becomes documents to the agent and calls into the dialogs.

#include <cstddef>

#include "time/Instant.h"

// Carries out every queued command in order. Throws nothing: a command that fails is dropped
// and the commands behind it still run. Main thread only.
void ProcessMessagesFromUI();

// Sends ActionTaken for the pending action at position (an index into actions), with isCancel
// and IsOffer false, erases it and refreshes the action dialog.
void AnswerAction(std::size_t position, bool isCancel);

// Sends ActionTaken for every pending action in order, empties the list, refreshes and enables
// the action dialog.
void TakeAllActions();

// Postpones the action dialog until time and tells the agent so with RemindTime, in the zone
// of offset 0.
void SetRemindTime(Instant const& time);

// Returns false if the action at position needs no confirmation; otherwise opens the
// confirmation dialog for it and returns true.
bool ConfirmAction(std::size_t position);

// The state of a take-all walk between commands; exposed for the tests.
extern bool confirmingAll;
// The next action the walk will look at, as an index: actions can change under an open
// confirmation, so anything past the end counts as the end.
extern std::size_t confirmAllPosition;
