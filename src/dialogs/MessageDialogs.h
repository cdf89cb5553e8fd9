#pragma once
// Message dialogs: the agent's notifications, each in a dialog of its own with one button, any
// number side by side, each known by the ID of its request. A dialog goes when the user presses
// its button, when the agent removes it, or when its timeout has passed; the agent is told of
// none of these. The calls are in session/DialogCalls.h; this header holds the record.

#include <X11/Intrinsic.h>

#include <list>
#include <string>

#include "time/Instant.h"

// One notification on screen. An entry exists exactly as long as its shell.
struct MessageDialog {
    std::string title;        // the shell's title, local text
    std::string message;      // the text of the box, local text
    std::string buttonLabel;  // local text
    unsigned long long id = 0;
    bool isCompletionMessage = false;
    Instant expiry;  // when it closes by itself; zero for never
    Widget shell = nullptr;
    Widget text = nullptr;  // the "actionmessage" widget
};

// The dialogs on screen, in order of creation.
extern std::list<MessageDialog> messageDialogs;
