#pragma once
// Runs code that ends the process in a child process set up like the program: the pipe to the
// agent with its two threads, writing to a pipe that the test reads as the agent would. For
// paths that report to the agent and then exit.

#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstdint>
#include <cstring>
#include <functional>
#include <string>
#include <vector>

#include "session/SessionState.h"

struct ForkedSessionEnd {
    std::vector<std::string> frames;  // the documents the child sent, in order
    bool exited = false;              // it ended by exit, not by a signal or the time limit
    int status = -1;                  // its exit status, or the signal
};

// Forks; the child starts the pipe and runs body, which is expected to end the process (a body
// that returns ends it with status 3, a pipe that does not start with 4). The parent collects
// what arrives until the child closes its end, and the child's end. A child still running after
// timeoutSeconds is killed. Call it only while this process runs no other thread of its own.
inline ForkedSessionEnd RunInForkedSession(std::function<void()> const& body,
                                           int timeoutSeconds = 60) {
    ForkedSessionEnd end;
    int toChild[2], fromChild[2];
    if (::pipe(toChild) != 0) return end;
    if (::pipe(fromChild) != 0) return end;
    pid_t const pid = ::fork();
    if (pid < 0) return end;
    if (pid == 0) {
        ::close(toChild[1]);
        ::close(fromChild[0]);
        clientPipe = new UnixPipe(readQ, writeQ);
        // Held for the life of the child, as main holds its reference.
        static UnixPipeRef* const mainReference = new UnixPipeRef(clientPipe);
        (void)mainReference;
        if (!clientPipe->Start(toChild[0], fromChild[1])) ::_exit(4);
        body();
        ::_exit(3);
    }
    ::close(toChild[0]);
    ::close(fromChild[1]);

    std::string received;
    auto const deadline = std::chrono::steady_clock::now() + std::chrono::seconds(timeoutSeconds);
    for (;;) {
        auto const left = std::chrono::duration_cast<std::chrono::milliseconds>(
                              deadline - std::chrono::steady_clock::now())
                              .count();
        if (left <= 0) break;
        pollfd ready{fromChild[0], POLLIN, 0};
        if (::poll(&ready, 1, static_cast<int>(left)) <= 0) break;
        char buffer[4096];
        ssize_t const got = ::read(fromChild[0], buffer, sizeof buffer);
        if (got <= 0) break;
        received.append(buffer, static_cast<std::size_t>(got));
    }
    ::close(fromChild[0]);

    int status = 0;
    if (::waitpid(pid, &status, WNOHANG) == 0) {
        // Closed its end but still running: give it the time that is left, then kill it.
        for (int waited = 0; waited < timeoutSeconds * 10; ++waited) {
            if (::waitpid(pid, &status, WNOHANG) != 0) break;
            ::usleep(100000);
        }
        if (::waitpid(pid, &status, WNOHANG) == 0) {
            ::kill(pid, SIGKILL);
            ::waitpid(pid, &status, 0);
        }
    }
    ::close(toChild[1]);
    end.exited = WIFEXITED(status);
    end.status = end.exited ? WEXITSTATUS(status) : WTERMSIG(status);

    // Frames: a 32-bit length in host byte order, then the document.
    std::size_t at = 0;
    while (received.size() - at >= 4) {
        std::uint32_t length = 0;
        std::memcpy(&length, received.data() + at, 4);
        if (received.size() - at - 4 < length) break;
        end.frames.push_back(received.substr(at + 4, length));
        at += 4 + length;
    }
    return end;
}
