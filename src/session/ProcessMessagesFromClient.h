#pragma once
// The one place where the agent's documents take effect, on the main thread: once a second
// while the process waits for its first document, and on every tick of the X loop afterwards.

// Takes the frames that have arrived (or, once, those deferred behind the first document) and
// handles each document's messages in order: "ActionRequest", "InitializationInfo",
// "RemoveRequest", "MessageRequest", "QuietModeStart", "QuietModeEnd"; other children are
// skipped. Throws nothing: any failure drops the frame at hand and the rest of the batch, and
// leaves what was handled before it in place.
void ProcessMessagesFromClient();

// Erases the first pending action with that ID; an ID that is not there is no error.
void RemoveAction(unsigned long long id);
