#include "session/SessionState.h"

UIMessageQueue readQ;
UIMessageQueue writeQ;
bool initialized = false;
bool inQuietMode = false;
bool international = false;
bool m_snoozable = true;
XtAppContext app_context = nullptr;
Display* display = nullptr;
Widget zolHidden = nullptr;
UnixPipe* clientPipe = nullptr;
bool hiddenWindowPending = true;
