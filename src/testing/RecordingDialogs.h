#pragma once
// A recording double of the dialogs, for the session's tests: every call the session makes into
// the dialogs (session/DialogCalls.h) is logged as one line of text with its arguments, such as
// "ShowActionRequestDialog(false, 600000000, true)". Intervals and instants show as
// microseconds, texts in double quotes, a null value as "null". A test scripts the answers of
// IsActionRequestDialogShown and can make one kind of call fail. Main thread only.

#include <string>
#include <vector>

#include "threads/DebuggableException.h"

// What a call named by FailOn throws.
class RecordedDialogFailure : public DebuggableException {};

struct RecordingDialogs {
    // Returns the calls logged since the last Reset, oldest first.
    static std::vector<std::string> const& Calls();
    // Forgets the calls, the script and the failure: IsActionRequestDialogShown answers false.
    static void Reset();
    // IsActionRequestDialogShown answers these in turn, then afterwards from then on.
    static void ScriptDialogShown(std::vector<bool> const& answers, bool afterwards);
    // Calls of that function name, such as "ShowMessageDialog", are logged and then throw
    // RecordedDialogFailure.
    static void FailOn(std::string const& function);
};
