#include "testing/ToolkitDisplay.h"

#include <stdexcept>

ToolkitDisplay::ToolkitDisplay(std::string const& displayName, char const* applicationClass) {
    XtToolkitInitialize();
    m_context = XtCreateApplicationContext();
    int argc = 0;
    m_display = XtOpenDisplay(m_context, displayName.c_str(), "test", applicationClass, nullptr, 0,
                              &argc, nullptr);
    if (!m_display) {
        XtDestroyApplicationContext(m_context);
        throw std::runtime_error("cannot open display " + displayName);
    }
}

ToolkitDisplay::~ToolkitDisplay() {
    XtDestroyApplicationContext(m_context);
}

void ToolkitDisplay::Settle() {
    // Twice, since dispatching can make requests whose answers come as further events.
    for (int round = 0; round < 2; ++round) {
        XSync(m_display, False);
        while (XtAppPending(m_context) & XtIMXEvent) XtAppProcessEvent(m_context, XtIMXEvent);
    }
}
