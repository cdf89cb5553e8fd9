// The scenario files of the repository read without error, and every document they send is a
// well-formed document once its variables are set, so that a slip in one shows here rather
// than in a run against the program.

#include <dirent.h>
#include <gtest/gtest.h>
#include <stdlib.h>

#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "DocumentMatch.h"
#include "ScenarioScript.h"

namespace {

std::vector<std::string> ScenarioFilesIn(std::string const& folder) {
    std::vector<std::string> files;
    if (DIR* directory = opendir(folder.c_str())) {
        while (dirent* entry = readdir(directory)) {
            std::string name = entry->d_name;
            if (name.size() > 9 && name.substr(name.size() - 9) == ".scenario")
                files.push_back(folder + "/" + name);
        }
        closedir(directory);
    }
    return files;
}

}  // namespace

TEST(ScenarioFiles, ReadAndSendWellFormedDocuments) {
    setenv("ZOL_DEMO_BASE", "/tmp/base", 1);
    setenv("ZOL_DEMO_DEADLINE", "Mon, 23 Nov 2026 13:00:00 +0000", 1);
    setenv("ZOL_DEMO_NOW", "Mon, 23 Nov 2026 11:00:00 +0000", 1);
    setenv("ZOL_SCENARIO_BASE", "/tmp/base", 1);
    struct Folder {
        char const* name;
        size_t atLeast;
    } const folders[] = {{"demo", 1}, {"e2e", 5}};
    for (Folder const& folder : folders) {
        std::vector<std::string> files =
            ScenarioFilesIn(SCENARIOS_DIR "/" + std::string(folder.name));
        EXPECT_GE(files.size(), folder.atLeast) << folder.name;
        for (std::string const& file : files) {
            Scenario scenario;
            try {
                scenario = ReadScenarioFile(file);
            } catch (ScenarioError const& failure) {
                ADD_FAILURE() << failure.what();
                continue;
            }
            for (ScenarioStep const& step : scenario.steps) {
                if (step.kind != StepKind::Send && step.kind != StepKind::SendText) continue;
                std::string text = step.words[0];
                if (step.kind == StepKind::Send) {
                    std::ifstream in(ResolvePath(scenario.directory, text), std::ios::binary);
                    EXPECT_TRUE(in.good()) << file << ":" << step.line << ": no file " << text;
                    text.assign(std::istreambuf_iterator<char>(in),
                                std::istreambuf_iterator<char>());
                }
                try {
                    ParseDocument(ExpandVariables(text));
                } catch (std::exception const& failure) {
                    ADD_FAILURE() << file << ":" << step.line << ": " << failure.what();
                }
            }
        }
    }
}
