#pragma once
// A private X server for one test: Xvfb on a display number of its own choosing, reported
// through -displayfd, so that several can run at once and none touches the user's display.

#include <sys/types.h>

#include <string>

class XvfbServer {
  public:
    // Starts Xvfb with one 1024x768 screen of depth 24 and no TCP listener. With a font path
    // (a comma-separated list of font directories, each with a fonts.dir), the server offers
    // exactly those fonts: the built-in ones that Xvfb adds when its default font is missing
    // are taken off the path again, so an empty directory gives a server without any font.
    // The server does not reset when its last client leaves, so that path stays.
    // The server is told to die with the thread that starts it, so start it on the test's
    // main thread. Throws std::runtime_error if it does not come up within twenty seconds.
    explicit XvfbServer(std::string const& fontPath = std::string());
    // Kills the server if it still runs and reaps it.
    ~XvfbServer();
    XvfbServer(XvfbServer const&) = delete;
    XvfbServer& operator=(XvfbServer const&) = delete;

    // Returns the display name, ":<number>", for XOpenDisplay or a "-display" argument.
    std::string const& DisplayName() const { return m_displayName; }
    // Returns the server's process id, or -1 once it has been killed.
    pid_t Pid() const { return m_pid; }

    // Kills the server now and waits for it, so that its clients lose their connection.
    void Kill();

  private:
    void SetExactFontPath(std::string const& fontPath);

    pid_t m_pid = -1;
    std::string m_displayName;
};
