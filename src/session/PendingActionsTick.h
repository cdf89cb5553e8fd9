#pragma once
// The part of the one-second tick that concerns the pending actions once the session is set
// up: the action dialog comes back when a postponement has run out, timed-out messages go, and
// actions whose deadline is binding are answered without the user once it has passed.

// In order: shows the action dialog if m_postponedTo is strictly before now and actions are
// pending (on every tick; the dialog copes with being up already); removes the timed-out
// message dialogs; then, unless quiet mode is on, answers every ForceRun action whose deadline
// lies strictly behind now with ActionTaken and erases it, and refreshes the action dialog if
// one went or a ForceRun deadline is less than five minutes away. Throws what the dialog calls
// throw. Main thread only.
void TickPendingActions();
