#pragma once
// Plays a scenario against the program as the agent and the user would: documents over the
// pipes through the agent simulator, windows, clicks, keys and screenshots through the X
// server. Prints every step and every document exchanged, and how long each wait for a document
// or a window took. Used by `agentsim --scenario` and
// by end-to-end tests.

#include <deque>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include "AgentSimulator.h"
#include "DocumentMatch.h"
#include "ScenarioScript.h"

// Xlib's two types as Xlib declares them, so that users of this header do not get Xlib's macros
// (None, Status, Bool), which clash with other libraries' names.
typedef struct _XDisplay Display;
typedef unsigned long Window;

struct ScenarioOptions {
    std::string program;                 // the program to start
    std::vector<std::string> arguments;  // its command line after its name
    // The X display of the program and of the runner's own connection; empty for $DISPLAY.
    std::string displayName;
    // Where relative screenshot paths start; empty for the scenario's directory.
    std::string outputDirectory;
    // NAME=VALUE for the program's environment, before those of a start step.
    std::vector<std::string> environment;
    bool printDocuments = false;  // print each document's text, not only its summary
};

class ScenarioRunner {
  public:
    // The log receives the account of the run; it must outlive the runner.
    ScenarioRunner(ScenarioOptions const& options, std::ostream& log);
    // Closes the X connection; a program still running is killed.
    ~ScenarioRunner();
    ScenarioRunner(ScenarioRunner const&) = delete;
    ScenarioRunner& operator=(ScenarioRunner const&) = delete;

    // Plays the steps in order, starting the program before the first step unless that is a
    // start step. After the last step the pipe is closed if still open and the program's end
    // is awaited and reported. Throws ScenarioError naming the file, line and step that failed
    // and why; the program is then left running for the destructor to kill.
    void Run(Scenario const& scenario);

    // Returns how the program ended, once it has.
    std::optional<ProcessEnd> End() const { return m_end; }
    // Returns how many steps written after "try" failed.
    int TriedFailures() const { return m_triedFailures; }

  private:
    struct Received {
        int number = 0;
        std::string text;
        std::optional<DocumentElement> document;  // none if not well-formed
        std::string parseError;
    };

    void Play(ScenarioStep const& step, Scenario const& scenario);
    void Start(std::vector<std::pair<std::string, std::string>> const& variables);
    void Send(std::string const& text, std::string const& origin);
    void Expect(ScenarioStep const& step);
    void ExpectNothing(ScenarioStep const& step);
    void WaitForWindow(std::string const& title, bool present, int withinMs);
    void Click(ScenarioStep const& step);
    void ClickRow(Window viewport, std::string const& where, int row, int withinMs);
    void ExpectRows(ScenarioStep const& step);
    void Screenshot(ScenarioStep const& step, Scenario const& scenario);
    void ExpectExit(ScenarioStep const& step);
    void Finish();

    // Takes the documents that arrive within ms milliseconds; with untilOne, returns as soon
    // as one has. Returns whether the pipe from the program is still open.
    bool Pump(int ms, bool untilOne = false);
    // Takes what the program sent before it ended.
    void Drain();
    void Take(std::string const& text);
    // Returns whether the program has ended, recording how.
    bool Ended();
    Display* X();
    Window TitledWindow(std::string const& title);

    ScenarioOptions m_options;
    std::ostream& m_log;
    AgentSimulator m_agent;
    bool m_started = false;
    bool m_closed = false;
    bool m_pipeOpen = true;
    std::optional<ProcessEnd> m_end;
    std::deque<Received> m_pending;  // received and not yet taken by an expect step
    int m_receivedCount = 0;
    int m_triedFailures = 0;
    Display* m_display = nullptr;
};
