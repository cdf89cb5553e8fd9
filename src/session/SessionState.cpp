#include "session/SessionState.h"

UIMessageQueue& readQ = *new UIMessageQueue;
UIMessageQueue& writeQ = *new UIMessageQueue;
UICommandQueue uiCommandQ;
std::vector<ActionRequest> actions;
bool initialized = false;
bool inQuietMode = false;
bool international = false;
FileLocation m_baseDirectory;
Instant m_postponedTo;  // zero: long past, so nothing is postponed
TimeInterval m_remindInterval;
bool m_snoozable = true;
XtAppContext app_context = nullptr;
Display* display = nullptr;
Widget zolHidden = nullptr;
UnixPipe* clientPipe = nullptr;
bool hiddenWindowPending = true;
