#include "ScenarioScript.h"

#include <cctype>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <sstream>

namespace {

// What each command takes: positional arguments, which options, and how long it waits unless
// told otherwise.
struct CommandRule {
    char const* name;
    StepKind kind;
    int minWords, maxWords;
    bool takesWithin, takesRow, takesPairs;
    int defaultWithinMs;
};

CommandRule const rules[] = {
    {"start", StepKind::Start, 0, 0, false, false, true, 0},
    {"send", StepKind::Send, 1, 1, false, false, false, 0},
    {"send-text", StepKind::SendText, 0, 0, false, false, false, 0},
    {"expect", StepKind::Expect, 1, 1, true, false, true, 5000},
    {"expect-nothing", StepKind::ExpectNothing, 0, 0, true, false, false, 2000},
    {"wait-window", StepKind::WaitWindow, 1, 1, true, false, false, 5000},
    {"wait-no-window", StepKind::WaitNoWindow, 1, 1, true, false, false, 5000},
    {"click", StepKind::Click, 2, 2, true, true, false, 2000},
    {"expect-rows", StepKind::ExpectRows, 3, 3, true, false, false, 3000},
    {"type", StepKind::Type, 1, 1, false, false, false, 0},
    {"screenshot", StepKind::Screenshot, 1, 2, false, false, false, 0},
    {"pause", StepKind::Pause, 1, 1, false, false, false, 0},
    {"close", StepKind::Close, 0, 0, false, false, false, 0},
    {"expect-exit", StepKind::ExpectExit, 1, 1, true, false, false, 10000},
};

struct Token {
    std::string text;
    size_t equals = std::string::npos;  // position in text of the first '=' outside quotes
};

// Splits a line into words: blanks separate, double quotes group, and a '#' that starts a word
// outside quotes starts a comment.
std::vector<Token> Tokenize(std::string const& line, std::string const& where) {
    std::vector<Token> tokens;
    size_t i = 0;
    while (i < line.size()) {
        while (i < line.size() && std::isspace(static_cast<unsigned char>(line[i]))) ++i;
        if (i == line.size() || line[i] == '#') break;
        Token token;
        bool quoted = false;
        for (; i < line.size(); ++i) {
            char c = line[i];
            if (!quoted && std::isspace(static_cast<unsigned char>(c))) break;
            if (c == '"') {
                quoted = !quoted;
            } else if (quoted && c == '\\' && i + 1 < line.size()) {
                char next = line[++i];
                token.text += next == 'n' ? '\n' : next == 't' ? '\t' : next;
            } else {
                if (!quoted && c == '=' && token.equals == std::string::npos)
                    token.equals = token.text.size();
                token.text += c;
            }
        }
        if (quoted) throw ScenarioError(where + ": unterminated quote");
        tokens.push_back(token);
    }
    return tokens;
}

int ReadNumber(std::string const& text, std::string const& what, std::string const& where) {
    size_t used = 0;
    int value = 0;
    try {
        value = std::stoi(text, &used);
    } catch (std::exception const&) {
        used = 0;
    }
    if (used == 0 || used != text.size())
        throw ScenarioError(where + ": " + what + " must be a whole number, not \"" + text + "\"");
    return value;
}

ScenarioStep ParseStep(std::string const& line, int lineNumber, std::string const& where) {
    std::vector<Token> tokens = Tokenize(line, where);
    ScenarioStep step;
    step.line = lineNumber;
    step.text = line.substr(line.find_first_not_of(" \t"));
    std::string rest = line;  // the line from the command on
    if (tokens[0].text == "try") {
        if (tokens.size() == 1) throw ScenarioError(where + ": try needs a step");
        step.tried = true;
        tokens.erase(tokens.begin());
        rest = line.substr(line.find("try") + 3);
    }
    CommandRule const* rule = nullptr;
    for (CommandRule const& candidate : rules)
        if (tokens[0].text == candidate.name) rule = &candidate;
    if (!rule) throw ScenarioError(where + ": unknown step \"" + tokens[0].text + "\"");
    step.kind = rule->kind;
    step.withinMs = rule->defaultWithinMs;

    if (rule->kind == StepKind::SendText) {
        // The document is taken byte for byte, quotes and '#' included.
        size_t start = rest.find_first_not_of(" \t", rest.find_first_not_of(" \t") + 9);
        if (start == std::string::npos) throw ScenarioError(where + ": send-text needs a document");
        step.words.push_back(rest.substr(start));
        return step;
    }

    for (size_t i = 1; i < tokens.size(); ++i) {
        Token const& token = tokens[i];
        if (token.equals == std::string::npos) {
            step.words.push_back(token.text);
            continue;
        }
        std::string name = token.text.substr(0, token.equals);
        std::string value = token.text.substr(token.equals + 1);
        if (name == "within" && rule->takesWithin) {
            step.withinMs = ReadNumber(value, "within", where);
        } else if (name == "row" && rule->takesRow) {
            step.row = ReadNumber(value, "row", where);
            if (step.row < 0) throw ScenarioError(where + ": row counts from 0");
        } else if (rule->takesPairs && !name.empty()) {
            step.pairs.emplace_back(name, value);
        } else {
            throw ScenarioError(where + ": " + rule->name + " takes no option \"" + name + "\"");
        }
    }
    int count = static_cast<int>(step.words.size());
    if (count < rule->minWords || count > rule->maxWords) {
        std::string expected = std::to_string(rule->minWords);
        if (rule->maxWords != rule->minWords) expected += " or " + std::to_string(rule->maxWords);
        throw ScenarioError(where + ": " + rule->name + " takes " + expected + " argument" +
                            (rule->maxWords == 1 ? "" : "s") + ", not " + std::to_string(count));
    }
    if (rule->kind == StepKind::Pause) step.number = ReadNumber(step.words[0], "pause", where);
    if (rule->kind == StepKind::ExpectExit)
        step.number = ReadNumber(step.words[0], "exit status", where);
    if (rule->kind == StepKind::ExpectRows) {
        step.number = ReadNumber(step.words[2], "the number of rows", where);
        if (step.number < 0) throw ScenarioError(where + ": the number of rows counts from 0");
    }
    return step;
}

}  // namespace

Scenario ParseScenario(std::string const& text, std::string const& file) {
    Scenario scenario;
    scenario.file = file;
    size_t slash = file.rfind('/');
    scenario.directory = slash == std::string::npos ? "." : file.substr(0, slash);
    std::istringstream lines(text);
    std::string line;
    for (int number = 1; std::getline(lines, line); ++number) {
        if (!line.empty() && line.back() == '\r') line.pop_back();
        size_t first = line.find_first_not_of(" \t");
        if (first == std::string::npos || line[first] == '#') continue;
        scenario.steps.push_back(ParseStep(line, number, file + ":" + std::to_string(number)));
    }
    return scenario;
}

Scenario ReadScenarioFile(std::string const& path) {
    std::ifstream in(path, std::ios::binary);
    if (!in) throw ScenarioError(path + ": cannot read the scenario");
    std::string text((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
    return ParseScenario(text, path);
}

std::string ExpandVariables(std::string const& text) {
    std::string expanded;
    size_t done = 0;
    for (size_t start = text.find("${"); start != std::string::npos;
         start = text.find("${", done)) {
        size_t end = text.find('}', start);
        if (end == std::string::npos) break;
        std::string name = text.substr(start + 2, end - start - 2);
        char const* value = std::getenv(name.c_str());
        if (!value) throw ScenarioError("the document uses ${" + name + "}, which is not set");
        expanded += text.substr(done, start - done) + value;
        done = end + 1;
    }
    return expanded + text.substr(done);
}

std::string ResolvePath(std::string const& directory, std::string const& path) {
    if (!path.empty() && path[0] == '/') return path;
    return directory + "/" + path;
}
