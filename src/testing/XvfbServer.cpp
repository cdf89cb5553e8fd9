#include "testing/XvfbServer.h"

#include <X11/Xlib.h>
#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <time.h>
#include <unistd.h>

#include <cerrno>
#include <stdexcept>
#include <vector>

namespace {

long NowMs() {
    timespec now;
    clock_gettime(CLOCK_MONOTONIC, &now);
    return now.tv_sec * 1000L + now.tv_nsec / 1000000L;
}

// Reads the line the server writes on its display descriptor: the display number and a
// newline. Returns the number, or an empty string if none came in time.
std::string ReadDisplayNumber(int descriptor, long timeoutMs) {
    long deadline = NowMs() + timeoutMs;
    std::string text;
    while (text.find('\n') == std::string::npos) {
        long left = deadline - NowMs();
        if (left <= 0) return std::string();
        pollfd ready{descriptor, POLLIN, 0};
        int got = poll(&ready, 1, static_cast<int>(left));
        if (got < 0 && errno == EINTR) continue;
        if (got <= 0) return std::string();
        char buffer[64];
        ssize_t n = read(descriptor, buffer, sizeof buffer);
        if (n < 0 && errno == EINTR) continue;
        if (n <= 0) return std::string();
        text.append(buffer, static_cast<size_t>(n));
    }
    text.erase(text.find('\n'));
    if (text.empty() || text.find_first_not_of("0123456789") != std::string::npos)
        return std::string();
    return text;
}

bool fontPathRefused = false;

int NoteFontPathError(Display*, XErrorEvent*) {
    fontPathRefused = true;
    return 0;
}

}  // namespace

XvfbServer::XvfbServer(std::string const& fontPath) {
    int report[2];
    if (pipe2(report, O_CLOEXEC) != 0) throw std::runtime_error("cannot make a pipe for Xvfb");
    // Everything the child needs is made before fork: only exec-safe calls happen after it.
    std::string descriptorText = std::to_string(report[1]);
    std::vector<std::string> arguments = {"Xvfb",      "-displayfd", descriptorText,
                                          "-screen",   "0",          "1024x768x24",
                                          "-nolisten", "tcp",        "-noreset"};
    if (!fontPath.empty()) {
        arguments.push_back("-fp");
        arguments.push_back(fontPath);
    }
    std::vector<char*> argv;
    for (std::string& argument : arguments) argv.push_back(&argument[0]);
    argv.push_back(nullptr);
    pid_t parent = getpid();

    pid_t pid = fork();
    if (pid < 0) {
        close(report[0]);
        close(report[1]);
        throw std::runtime_error("cannot fork for Xvfb");
    }
    if (pid == 0) {
        // The server dies with the test that started it, even if the test crashes.
        prctl(PR_SET_PDEATHSIG, SIGTERM);
        if (getppid() != parent) _exit(126);
        int quiet = open("/dev/null", O_RDWR);
        if (quiet >= 0) {
            dup2(quiet, 0);
            dup2(quiet, 1);
            dup2(quiet, 2);
        }
        // The display descriptor is the one the server must inherit.
        fcntl(report[1], F_SETFD, 0);
        execvp("Xvfb", argv.data());
        _exit(127);
    }
    m_pid = pid;
    close(report[1]);
    std::string number = ReadDisplayNumber(report[0], 20000);
    close(report[0]);
    if (number.empty()) {
        Kill();
        throw std::runtime_error("Xvfb did not report a display");
    }
    m_displayName = ":" + number;
    if (!fontPath.empty()) {
        try {
            SetExactFontPath(fontPath);
        } catch (...) {
            Kill();
            throw;
        }
    }
}

XvfbServer::~XvfbServer() {
    Kill();
}

void XvfbServer::Kill() {
    if (m_pid <= 0) return;
    kill(m_pid, SIGTERM);
    int status;
    long deadline = NowMs() + 5000;
    while (waitpid(m_pid, &status, WNOHANG) == 0) {
        if (NowMs() >= deadline) {
            kill(m_pid, SIGKILL);
            waitpid(m_pid, &status, 0);
            break;
        }
        usleep(10000);
    }
    m_pid = -1;
}

void XvfbServer::SetExactFontPath(std::string const& fontPath) {
    std::vector<std::string> directories;
    size_t start = 0;
    for (;;) {
        size_t comma = fontPath.find(',', start);
        directories.push_back(fontPath.substr(start, comma - start));
        if (comma == std::string::npos) break;
        start = comma + 1;
    }
    std::vector<char*> names;
    for (std::string& directory : directories) names.push_back(&directory[0]);

    Display* connection = XOpenDisplay(m_displayName.c_str());
    if (!connection) throw std::runtime_error("cannot connect to the new Xvfb");
    fontPathRefused = false;
    XErrorHandler previous = XSetErrorHandler(NoteFontPathError);
    XSetFontPath(connection, names.data(), static_cast<int>(names.size()));
    XSync(connection, False);
    XSetErrorHandler(previous);
    XCloseDisplay(connection);
    if (fontPathRefused) throw std::runtime_error("Xvfb refused the font path " + fontPath);
}
