#include "dialogs/SystemMenuClose.h"

#include "session/ExitCleanup.h"

void SystemMenuClose(Widget widget, XEvent* event, String*, Cardinal*) {
    if (!event || event->type != ClientMessage) return;
    Display* connection = XtDisplay(widget);
    // Atoms that do not exist yet cannot be in the message; they are not made here.
    Atom protocols = XInternAtom(connection, "WM_PROTOCOLS", True);
    Atom deleteWindow = XInternAtom(connection, "WM_DELETE_WINDOW", True);
    if (protocols == None || event->xclient.message_type != protocols) return;
    if (static_cast<Atom>(event->xclient.data.l[0]) != deleteWindow) return;
    ExitCleanup(0, "CLOSED");
}
