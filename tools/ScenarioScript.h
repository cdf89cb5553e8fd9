#pragma once
// A scenario is what an integrator or an end-to-end test plays against the program, as a user
// and the agent would: one step per line of a text file, '#' starting a comment. This module
// reads the text into steps and checks their arguments; ScenarioRunner plays them.
//
//   start [NAME=VALUE...]           start the program with these environment variables
//   send FILE                       send the file's bytes as one frame
//   send-text TEXT                  send the rest of the line as one frame
//   expect ELEMENT [CHILD=VALUE...] the next document's message element and child values
//   expect-nothing                  no document arrives in the time given
//   wait-window TITLE               a top-level window of that title is mapped
//   wait-no-window TITLE            no top-level window of that title is mapped
//   click TITLE WIDGET [row=N]      pointer click on a widget of that dialog, or a list row
//   expect-rows TITLE WIDGET N      the list in that viewport has N rows, all in view
//   type TEXT                       key presses for the text
//   screenshot PATH [TITLE]         PNG of the screen, or of one window
//   pause MS                        wait, taking documents as they come
//   close                           close the pipe to the program
//   expect-exit STATUS              the program ends with that status
//
// Words with spaces are double-quoted, with \" \\ \n \t as escapes. Steps that wait take
// within=MS. A step written after the word "try" may fail: the run reports the failure and goes
// on. In the documents of send and send-text, ${NAME} stands for the runner's environment
// variable NAME.

#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

enum class StepKind {
    Start,
    Send,
    SendText,
    Expect,
    ExpectNothing,
    WaitWindow,
    WaitNoWindow,
    Click,
    ExpectRows,
    Type,
    Screenshot,
    Pause,
    Close,
    ExpectExit,
};

struct ScenarioStep {
    int line = 0;      // 1-based line in the file
    std::string text;  // the line as written, for printing
    StepKind kind = StepKind::Pause;
    std::vector<std::string> words;  // positional arguments, unquoted
    // CHILD=VALUE of expect and NAME=VALUE of start, in the order written.
    std::vector<std::pair<std::string, std::string>> pairs;
    int withinMs = 0;    // how long a waiting step waits; each kind has its default
    int row = -1;        // click ... row=N, or -1
    int number = 0;      // pause MS, expect-exit STATUS
    bool tried = false;  // written after "try": a failure is reported, not fatal
};

struct Scenario {
    std::string file;       // as named to the reader, for messages
    std::string directory;  // where relative paths of the scenario start
    std::vector<ScenarioStep> steps;
};

class ScenarioError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

// Returns the steps of the text; file names it in messages and gives the directory of relative
// paths. Throws ScenarioError, naming the file and line, for an unknown command, a missing or
// extra argument, an unknown option, a bad number or an unterminated quote.
Scenario ParseScenario(std::string const& text, std::string const& file);

// Returns the scenario read from the file. Throws ScenarioError if it cannot be read or parsed.
Scenario ReadScenarioFile(std::string const& path);

// Returns the text with each ${NAME} replaced by the value of the environment variable NAME.
// Throws ScenarioError naming the first variable that is not set.
std::string ExpandVariables(std::string const& text);

// Returns path as it stands if absolute, else joined to directory.
std::string ResolvePath(std::string const& directory, std::string const& path);
