// The process-wide state at exit: the process may end through exit() at any moment, also while
// the pipe's threads are busy with the two queues.

#include <fcntl.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <atomic>
#include <cstdlib>
#include <string>
#include <thread>

// After the test framework: the X headers it pulls in define None and Bool.
#include "session/SessionState.h"
#include "testing/PipeFrames.h"
#include "testing/TestText.h"

namespace {

// What the child process does: runs the pipe on the two descriptors it was given, keeps the
// write queue full for a moment while frames pour in, and exits with everything still running.
[[noreturn]] void BusyChild(int readDescriptor, int writeDescriptor) {
    clientPipe = new UnixPipe(readQ, writeQ);
    // Held to the end as main holds it; volatile keeps it where the leak checker looks.
    UnixPipeRef* volatile const reference = new UnixPipeRef(clientPipe);
    static_cast<void>(reference);
    clientPipe->Start(readDescriptor, writeDescriptor);
    std::string const text(200, 'w');
    for (int i = 0; i < 2000; ++i) {
        UIMessage message;
        message.m_text = MakeUString(U8(text));
        writeQ.WriteMessage(message);
        if (i % 100 == 0) usleep(1000);
    }
    exit(0);
}

// Runs one child over two pipes: floods its descriptor 0 with frames and drains its descriptor
// 1 until it has gone. Returns its wait status and what it wrote on descriptor 2.
std::pair<int, std::string> RunBusyChild() {
    int toChild[2], fromChild[2], errors[2];
    EXPECT_EQ(0, pipe2(toChild, O_CLOEXEC));
    EXPECT_EQ(0, pipe2(fromChild, O_CLOEXEC));
    EXPECT_EQ(0, pipe2(errors, O_CLOEXEC));
    pid_t const child = fork();
    if (child == 0) {
        dup2(toChild[0], 3);
        dup2(fromChild[1], 4);
        dup2(errors[1], 2);
        setenv("ZOL_BUSY_CHILD", "1", 1);
        execl("/proc/self/exe", "SessionState_test",
              "--gtest_filter=SessionState.ExitWhileThePipeThreadsAreBusyIsClean",
              static_cast<char*>(nullptr));
        _exit(120);
    }
    close(toChild[0]);
    close(fromChild[1]);
    close(errors[1]);
    std::atomic<bool> done{false};
    std::thread flood([&] {
        std::string const frame = Frame(std::string(300, 'r'));
        while (!done && write(toChild[1], frame.data(), frame.size()) > 0) {
        }
    });
    std::string errorText;
    char buffer[65536];
    for (bool open = true; open;) {
        pollfd fds[2] = {{fromChild[0], POLLIN, 0}, {errors[0], POLLIN, 0}};
        if (poll(fds, 2, 20000) <= 0) {
            kill(child, SIGKILL);  // a child stuck on its way out fails the round
            break;
        }
        if (fds[0].revents && read(fromChild[0], buffer, sizeof buffer) <= 0) open = false;
        if (fds[1].revents) {
            ssize_t const n = read(errors[0], buffer, sizeof buffer);
            if (n > 0) errorText.append(buffer, static_cast<std::size_t>(n));
        }
    }
    done = true;
    close(toChild[1]);  // ends a write the flood may be blocked in
    flood.join();
    int status = 0;
    waitpid(child, &status, 0);
    ssize_t n;
    while ((n = read(errors[0], buffer, sizeof buffer)) > 0)
        errorText.append(buffer, static_cast<std::size_t>(n));
    close(fromChild[0]);
    close(errors[0]);
    return {status, errorText};
}

}  // namespace

// Static destruction at exit must not take the queues away from the pipe's detached threads:
// a thread that appends to a destroyed queue corrupts the heap, which AddressSanitizer
// reports. Run many times, since the moment of exit falls differently each time.
TEST(SessionState, ExitWhileThePipeThreadsAreBusyIsClean) {
    if (std::getenv("ZOL_BUSY_CHILD")) BusyChild(3, 4);
    signal(SIGPIPE, SIG_IGN);
    for (int round = 0; round < 20; ++round) {
        std::pair<int, std::string> const end = RunBusyChild();
        ASSERT_TRUE(WIFEXITED(end.first))
            << "round " << round << ": signal " << WTERMSIG(end.first) << "\n"
            << end.second;
        ASSERT_EQ(WEXITSTATUS(end.first), 0) << "round " << round << "\n" << end.second;
        ASSERT_EQ(end.second, "") << "round " << round;
    }
}
