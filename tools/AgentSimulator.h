#pragma once
// Plays the agent: starts the program with a pipe on its descriptor 0 and one on its
// descriptor 1, sends frames, reads the frames it sends back, and collects its exit status.
// Used by the agentsim command and by the end-to-end tests.

#include <sys/resource.h>
#include <sys/types.h>

#include <optional>
#include <string>
#include <vector>

struct ProcessEnd {
    bool exited = false;  // ended through exit(); status holds the code
    int status = 0;       // exit code, or the signal number when signalled
    bool signalled = false;
    double userSeconds = 0, systemSeconds = 0;
    long peakResidentKiB = 0;
};

class AgentSimulator {
  public:
    AgentSimulator() = default;
    ~AgentSimulator();  // kills a process still running
    AgentSimulator(AgentSimulator const&) = delete;
    AgentSimulator& operator=(AgentSimulator const&) = delete;

    // Settings for the next Launch. The process inherits this process's environment with the
    // variable set to the value.
    void SetEnvironment(std::string const& name, std::string const& value);
    // The process's descriptor 2 becomes a pipe whose text ErrorOutput returns.
    void CaptureErrorOutput();
    // The pipe on the process's descriptor 0 is set O_NONBLOCK before the process starts, as
    // a careless parent might leave it.
    void MakeInputNonBlocking();

    // Starts program with the two pipes. With closeReadEnd the agent's reading end of the
    // process's descriptor 1 is closed at once, so the process's first write finds no reader.
    // environment holds NAME=VALUE entries that replace or add to the simulator's own.
    // Throws std::runtime_error if the process cannot be started.
    void Launch(std::string const& program, std::vector<std::string> const& arguments = {},
                bool closeReadEnd = false, std::vector<std::string> const& environment = {});

    // Writes one frame: the length in host byte order, then the text. Returns false once the
    // pipe is gone.
    bool SendFrame(std::string const& text);
    // Writes raw bytes, for frames cut or malformed on purpose. Returns false once the pipe
    // is gone.
    bool SendRaw(std::string const& bytes);
    // Closes the pipe to the process: it sees end of stream on descriptor 0.
    void CloseToProcess();
    // Closes the agent's reading end of the process's descriptor 1, as an agent that stops
    // listening would: the process's next write finds no reader.
    void CloseFromProcess();

    // Returns the next frame the process sends, or nothing if none is complete within
    // timeoutMs or the process closed its side.
    std::optional<std::string> ReceiveFrame(int timeoutMs);
    // Returns whether frames may still come: false once the process has closed its side. By
    // then ReceiveFrame has returned every complete frame, since it returns those first.
    bool MayReceive() const { return m_fromProcess >= 0; }

    // Returns all the process has written on descriptor 2 so far, after taking what arrives
    // within timeoutMs. Empty unless CaptureErrorOutput was called before Launch.
    std::string const& ErrorOutput(int timeoutMs = 0);
    // Returns whether the error output holds the text within timeoutMs.
    bool WaitForErrorOutput(std::string const& text, int timeoutMs);

    // Returns whether the process is still running.
    bool Running();
    // Returns how the process ended, waiting up to timeoutMs; nothing if it still runs.
    std::optional<ProcessEnd> WaitForExit(int timeoutMs);

    pid_t Pid() const { return m_pid; }

  private:
    bool TakeFrameFromBuffer(std::string& frame);
    void Reap(int status, struct rusage const& usage);

    pid_t m_pid = -1;
    int m_toProcess = -1;                    // our writing end of the process's descriptor 0
    int m_fromProcess = -1;                  // our reading end of the process's descriptor 1
    std::string m_received;                  // bytes read but not yet returned as a frame
    std::vector<std::string> m_environment;  // "NAME=value" added for the next Launch
    bool m_captureErrors = false;
    bool m_nonBlockingInput = false;
    int m_errorsFromProcess = -1;  // our reading end of the process's descriptor 2
    std::string m_errorOutput;
    std::optional<ProcessEnd> m_end;
};
