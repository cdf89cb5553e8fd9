#pragma once
// An Xt application context with one display open on a test's own server, for tests that make
// widgets or read the toolkit's resource database.

#include <X11/Intrinsic.h>

#include <string>

class ToolkitDisplay {
  public:
    // Makes a context and opens the display under the given class, with no command-line
    // arguments. Throws std::runtime_error if the display cannot be opened.
    explicit ToolkitDisplay(std::string const& displayName,
                            char const* applicationClass = "XZOLClientUI");
    // Destroys the context, which closes the display and every widget on it.
    ~ToolkitDisplay();
    ToolkitDisplay(ToolkitDisplay const&) = delete;
    ToolkitDisplay& operator=(ToolkitDisplay const&) = delete;

    XtAppContext Context() const { return m_context; }
    Display* Connection() const { return m_display; }

    // Makes a round trip to the server, then dispatches every event that has arrived, so that
    // what the test asked for has happened on the server and in the widgets.
    void Settle();

  private:
    XtAppContext m_context = nullptr;
    Display* m_display = nullptr;
};
