// agentsim: plays the agent for the program, for integrators trying their documents.
//
//   agentsim [--program PATH] STEP...
//   agentsim [--program PATH] --scenario FILE [--display NAME | --xvfb] [--output-dir DIR]
//            [--print-documents]
//
// Steps run in order:
//   FILE          send the file's bytes as one frame
//   pause=MS      wait MS milliseconds, printing frames that arrive meanwhile
//   close         close the pipe to the program (it sees end of stream)
// After the last step the pipe is closed if it is still open, every remaining frame is
// printed, and the exit status of the program is reported.
//
// With --scenario the steps come from a scenario file (see ScenarioScript.h) and are played
// on the X display named, or $DISPLAY, or a private Xvfb with --xvfb. Relative screenshot
// paths start at --output-dir, or $AGENTSIM_OUTPUT_DIR, or the scenario's folder. The exit
// status is 0 when every step passed, 1 when one failed, 2 when the run could not begin.

#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <iterator>
#include <optional>
#include <string>
#include <vector>

#include "AgentSimulator.h"
#include "ScenarioRunner.h"
#include "testing/XvfbServer.h"

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

int PlayScenario(std::string const& file, ScenarioOptions options, bool privateServer) {
    try {
        Scenario scenario = ReadScenarioFile(file);
        std::optional<XvfbServer> server;
        if (privateServer) {
            server.emplace();
            options.displayName = server->DisplayName();
            std::printf("agentsim: private X server on %s\n", options.displayName.c_str());
            std::fflush(stdout);
        }
        ScenarioRunner runner(options, std::cout);
        try {
            runner.Run(scenario);
        } catch (ScenarioError const& failure) {
            std::cout << "agentsim: FAILED at " << failure.what() << std::endl;
            return 1;
        }
        std::cout << "agentsim: scenario passed";
        if (runner.TriedFailures() > 0)
            std::cout << "; " << runner.TriedFailures() << " step(s) after \"try\" failed";
        std::cout << std::endl;
        return 0;
    } catch (std::exception const& failure) {
        std::cerr << "agentsim: " << failure.what() << std::endl;
        return 2;
    }
}

}  // namespace

int main(int argc, char** argv) {
    std::string program = DefaultProgram(argv[0]);
    std::vector<std::string> steps;
    std::string scenarioFile;
    ScenarioOptions options;
    bool privateServer = false;
    if (char const* output = std::getenv("AGENTSIM_OUTPUT_DIR")) options.outputDirectory = output;
    for (int i = 1; i < argc; ++i) {
        std::string argument = argv[i];
        bool hasValue = i + 1 < argc;
        if (argument == "--program" && hasValue) {
            program = argv[++i];
        } else if (argument == "--scenario" && hasValue) {
            scenarioFile = argv[++i];
        } else if (argument == "--display" && hasValue) {
            options.displayName = argv[++i];
        } else if (argument == "--output-dir" && hasValue) {
            options.outputDirectory = argv[++i];
        } else if (argument == "--xvfb") {
            privateServer = true;
        } else if (argument == "--print-documents") {
            options.printDocuments = true;
        } else if (argument == "--help" || argument == "-h") {
            std::printf(
                "usage: agentsim [--program PATH] [FILE | pause=MS | close]...\n"
                "       agentsim [--program PATH] --scenario FILE [--display NAME | --xvfb]\n"
                "                [--output-dir DIR] [--print-documents]\n");
            return 0;
        } else if (argument.rfind("--", 0) == 0) {
            std::fprintf(stderr, "agentsim: unknown option %s (try --help)\n", argument.c_str());
            return 2;
        } else {
            steps.push_back(argument);
        }
    }
    if (!scenarioFile.empty()) {
        if (!steps.empty()) {
            std::fprintf(stderr,
                         "agentsim: steps on the command line and a scenario exclude "
                         "each other\n");
            return 2;
        }
        options.program = program;
        return PlayScenario(scenarioFile, options, privateServer);
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
