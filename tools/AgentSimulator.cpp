#include "AgentSimulator.h"

#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <sys/wait.h>
#include <time.h>
#include <unistd.h>

#include <cerrno>
#include <cstdint>
#include <cstring>
#include <stdexcept>

extern char** environ;

namespace {

long NowMs() {
    timespec now;
    clock_gettime(CLOCK_MONOTONIC, &now);
    return now.tv_sec * 1000L + now.tv_nsec / 1000000L;
}

// Returns the simulator's environment with each NAME=VALUE of changes put in place of the
// variable of that name, or added; of two changes to one name the later counts.
std::vector<std::string> MergedEnvironment(std::vector<std::string> const& changes) {
    std::vector<std::string> merged;
    auto nameOf = [](std::string const& entry) { return entry.substr(0, entry.find('=')); };
    for (char** entry = environ; *entry; ++entry) {
        std::string variable = *entry;
        bool replaced = false;
        for (auto const& change : changes)
            replaced = replaced || nameOf(change) == nameOf(variable);
        if (!replaced) merged.push_back(variable);
    }
    for (size_t i = 0; i < changes.size(); ++i) {
        bool overridden = false;
        for (size_t later = i + 1; later < changes.size(); ++later)
            overridden = overridden || nameOf(changes[later]) == nameOf(changes[i]);
        if (!overridden) merged.push_back(changes[i]);
    }
    return merged;
}

}  // namespace

AgentSimulator::~AgentSimulator() {
    if (m_toProcess >= 0) close(m_toProcess);
    if (m_errorsFromProcess >= 0) close(m_errorsFromProcess);
    if (m_fromProcess >= 0) close(m_fromProcess);
    if (m_pid > 0 && !m_end) {
        kill(m_pid, SIGKILL);
        int status;
        waitpid(m_pid, &status, 0);
    }
}

void AgentSimulator::SetEnvironment(std::string const& name, std::string const& value) {
    m_environment.push_back(name + "=" + value);
}

void AgentSimulator::CaptureErrorOutput() {
    m_captureErrors = true;
}

void AgentSimulator::MakeInputNonBlocking() {
    m_nonBlockingInput = true;
}

void AgentSimulator::Launch(std::string const& program, std::vector<std::string> const& arguments,
                            bool closeReadEnd, std::vector<std::string> const& environment) {
    int toProcess[2], fromProcess[2];
    if (pipe2(toProcess, O_CLOEXEC) != 0 || pipe2(fromProcess, O_CLOEXEC) != 0)
        throw std::runtime_error("cannot make pipes");
    // The simulator itself must survive writing to a process that has gone.
    signal(SIGPIPE, SIG_IGN);
    std::vector<char*> argv;
    argv.push_back(const_cast<char*>(program.c_str()));
    for (auto const& argument : arguments) argv.push_back(const_cast<char*>(argument.c_str()));
    argv.push_back(nullptr);
    if (closeReadEnd) {
        close(fromProcess[0]);
        fromProcess[0] = -1;
    }
    int errors[2] = {-1, -1};
    if (m_captureErrors && pipe2(errors, O_CLOEXEC) != 0)
        throw std::runtime_error("cannot make pipes");
    if (m_nonBlockingInput) fcntl(toProcess[0], F_SETFL, fcntl(toProcess[0], F_GETFL) | O_NONBLOCK);
    // The environment is put together before fork: the child only calls what is safe there. The
    // settings made with SetEnvironment come first, so that the arguments of Launch win.
    std::vector<std::string> changes = m_environment;
    changes.insert(changes.end(), environment.begin(), environment.end());
    std::vector<std::string> variables = MergedEnvironment(changes);
    std::vector<char*> envp;
    for (auto& variable : variables) envp.push_back(&variable[0]);
    envp.push_back(nullptr);

    pid_t pid = fork();
    if (pid < 0) throw std::runtime_error("cannot fork");
    if (pid == 0) {
        // The process gets SIGPIPE at its default disposition, as an agent would leave it.
        signal(SIGPIPE, SIG_DFL);
        dup2(toProcess[0], 0);
        dup2(fromProcess[1], 1);
        if (errors[1] >= 0) dup2(errors[1], 2);
        execve(program.c_str(), argv.data(), envp.data());
        _exit(127);
    }
    m_pid = pid;
    close(toProcess[0]);
    close(fromProcess[1]);
    m_toProcess = toProcess[1];
    m_fromProcess = fromProcess[0];
    if (errors[1] >= 0) close(errors[1]);
    m_errorsFromProcess = errors[0];
}

bool AgentSimulator::SendRaw(std::string const& bytes) {
    size_t done = 0;
    while (done < bytes.size()) {
        ssize_t n = write(m_toProcess, bytes.data() + done, bytes.size() - done);
        if (n < 0 && errno == EINTR) continue;
        if (n <= 0) return false;
        done += static_cast<size_t>(n);
    }
    return true;
}

bool AgentSimulator::SendFrame(std::string const& text) {
    uint32_t length = static_cast<uint32_t>(text.size());
    return SendRaw(std::string(reinterpret_cast<char const*>(&length), sizeof length) + text);
}

void AgentSimulator::CloseToProcess() {
    if (m_toProcess >= 0) close(m_toProcess);
    m_toProcess = -1;
}

void AgentSimulator::CloseFromProcess() {
    if (m_fromProcess >= 0) close(m_fromProcess);
    m_fromProcess = -1;
}

bool AgentSimulator::TakeFrameFromBuffer(std::string& frame) {
    if (m_received.size() < 4) return false;
    uint32_t length;
    std::memcpy(&length, m_received.data(), 4);
    if (m_received.size() < 4 + static_cast<size_t>(length)) return false;
    frame = m_received.substr(4, length);
    m_received.erase(0, 4 + static_cast<size_t>(length));
    return true;
}

std::optional<std::string> AgentSimulator::ReceiveFrame(int timeoutMs) {
    long deadline = NowMs() + timeoutMs;
    std::string frame;
    while (!TakeFrameFromBuffer(frame)) {
        if (m_fromProcess < 0) return std::nullopt;
        long left = deadline - NowMs();
        if (left <= 0) return std::nullopt;
        pollfd fd{m_fromProcess, POLLIN, 0};
        int ready = poll(&fd, 1, static_cast<int>(left));
        if (ready < 0 && errno == EINTR) continue;
        if (ready <= 0) return std::nullopt;
        char buffer[65536];
        ssize_t n = read(m_fromProcess, buffer, sizeof buffer);
        if (n < 0 && errno == EINTR) continue;
        if (n <= 0) {
            close(m_fromProcess);
            m_fromProcess = -1;
            return std::nullopt;
        }
        m_received.append(buffer, static_cast<size_t>(n));
    }
    return frame;
}

std::string const& AgentSimulator::ErrorOutput(int timeoutMs) {
    long deadline = NowMs() + timeoutMs;
    while (m_errorsFromProcess >= 0) {
        long left = deadline - NowMs();
        pollfd fd{m_errorsFromProcess, POLLIN, 0};
        int ready = poll(&fd, 1, left > 0 ? static_cast<int>(left) : 0);
        if (ready < 0 && errno == EINTR) continue;
        if (ready <= 0) break;
        char buffer[65536];
        ssize_t n = read(m_errorsFromProcess, buffer, sizeof buffer);
        if (n < 0 && errno == EINTR) continue;
        if (n <= 0) {
            close(m_errorsFromProcess);
            m_errorsFromProcess = -1;
            break;
        }
        m_errorOutput.append(buffer, static_cast<size_t>(n));
    }
    return m_errorOutput;
}

bool AgentSimulator::WaitForErrorOutput(std::string const& text, int timeoutMs) {
    long deadline = NowMs() + timeoutMs;
    for (;;) {
        if (m_errorOutput.find(text) != std::string::npos) return true;
        long left = deadline - NowMs();
        if (left <= 0 || m_errorsFromProcess < 0) return false;
        ErrorOutput(static_cast<int>(left < 100 ? left : 100));
    }
}

void AgentSimulator::Reap(int status, struct rusage const& usage) {
    ProcessEnd end;
    end.exited = WIFEXITED(status);
    end.signalled = WIFSIGNALED(status);
    end.status = end.exited ? WEXITSTATUS(status) : (end.signalled ? WTERMSIG(status) : 0);
    end.userSeconds = usage.ru_utime.tv_sec + usage.ru_utime.tv_usec / 1e6;
    end.systemSeconds = usage.ru_stime.tv_sec + usage.ru_stime.tv_usec / 1e6;
    end.peakResidentKiB = usage.ru_maxrss;
    m_end = end;
}

bool AgentSimulator::Running() {
    if (m_end || m_pid <= 0) return false;
    int status;
    struct rusage usage;
    pid_t got = wait4(m_pid, &status, WNOHANG, &usage);
    if (got == m_pid) {
        Reap(status, usage);
        return false;
    }
    return got == 0;
}

std::optional<ProcessEnd> AgentSimulator::WaitForExit(int timeoutMs) {
    long deadline = NowMs() + timeoutMs;
    while (Running()) {
        if (NowMs() >= deadline) return std::nullopt;
        usleep(10000);
    }
    return m_end;
}
