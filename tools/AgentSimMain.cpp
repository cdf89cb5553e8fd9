// agentsim: plays the agent for the program, for integrators trying their documents.
//
//   agentsim [--program PATH] STEP...
//
// Steps run in order:
//   FILE          send the file's bytes as one frame
//   pause=MS      wait MS milliseconds, printing frames that arrive meanwhile
//   close         close the pipe to the program (it sees end of stream)
// After the last step the pipe is closed if it is still open, every remaining frame is
// printed, and the exit status of the program is reported.

#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "AgentSimulator.h"

namespace {

int frameCount = 0;

void PrintFrame(std::string const& text) {
    ++frameCount;
    std::printf("<<< frame %d, %zu bytes\n%s\n", frameCount, text.size(), text.c_str());
    std::fflush(stdout);
}

// Prints every frame that arrives within ms milliseconds.
void Listen(AgentSimulator& agent, int ms) {
    int const step = 50;
    for (int waited = 0; waited < ms; waited += step) {
        while (auto frame = agent.ReceiveFrame(step)) PrintFrame(*frame);
    }
}

std::string DefaultProgram(char const* self) {
    std::string path = self;
    auto slash = path.rfind('/');
    std::string dir = slash == std::string::npos ? "." : path.substr(0, slash);
    return dir + "/../src/session/zolclientui";
}

}  // namespace

int main(int argc, char** argv) {
    std::string program = DefaultProgram(argv[0]);
    std::vector<std::string> steps;
    for (int i = 1; i < argc; ++i) {
        std::string argument = argv[i];
        if (argument == "--program" && i + 1 < argc) {
            program = argv[++i];
        } else if (argument == "--help" || argument == "-h") {
            std::printf("usage: agentsim [--program PATH] [FILE | pause=MS | close]...\n");
            return 0;
        } else {
            steps.push_back(argument);
        }
    }

    AgentSimulator agent;
    try {
        agent.Launch(program);
    } catch (std::exception const& failure) {
        std::fprintf(stderr, "agentsim: %s: %s\n", program.c_str(), failure.what());
        return 2;
    }
    std::printf("agentsim: started %s (pid %d)\n", program.c_str(), static_cast<int>(agent.Pid()));
    for (auto const& step : steps) {
        if (step.rfind("pause=", 0) == 0) {
            Listen(agent, std::atoi(step.c_str() + 6));
        } else if (step == "close") {
            std::printf(">>> close\n");
            agent.CloseToProcess();
        } else {
            std::ifstream in(step, std::ios::binary);
            if (!in) {
                std::fprintf(stderr, "agentsim: cannot read %s\n", step.c_str());
                return 2;
            }
            std::string text((std::istreambuf_iterator<char>(in)),
                             std::istreambuf_iterator<char>());
            std::printf(">>> frame from %s, %zu bytes\n", step.c_str(), text.size());
            agent.SendFrame(text);
        }
        std::fflush(stdout);
        while (auto frame = agent.ReceiveFrame(0)) PrintFrame(*frame);
    }
    agent.CloseToProcess();
    std::optional<ProcessEnd> end;
    while (!(end = agent.WaitForExit(100))) {
        while (auto frame = agent.ReceiveFrame(0)) PrintFrame(*frame);
    }
    while (auto frame = agent.ReceiveFrame(0)) PrintFrame(*frame);
    if (end->exited)
        std::printf("agentsim: exit status %d\n", end->status);
    else
        std::printf("agentsim: ended by signal %d\n", end->status);
    std::printf("agentsim: cpu %.3f s user, %.3f s system; peak resident %ld KiB\n",
                end->userSeconds, end->systemSeconds, end->peakResidentKiB);
    return 0;
}
