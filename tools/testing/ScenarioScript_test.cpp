#include "ScenarioScript.h"

#include <gtest/gtest.h>

#include <string>

namespace {

// Returns the message of the ScenarioError that the call throws, or "no error".
template <class Call>
std::string ScenarioFailureOf(Call call) {
    try {
        call();
    } catch (ScenarioError const& failure) {
        return failure.what();
    }
    return "no error";
}

}  // namespace

TEST(ScenarioScript, ReadsEachStepWithItsArgumentsAndOptions) {
    Scenario scenario = ParseScenario(
        "# a comment line\n"
        "\n"
        "start LANG=C ZOLCLIENTUI_TRACE=1\n"
        "send documents/init.xml   # trailing comment\n"
        "expect ActionTaken ID=1001 IsCancel=false within=700\n"
        "click \"Title with \\\"quotes\\\"\" viewport row=2\r\n"
        "type \"a b\\tc\\n\"\n"
        "screenshot out/one.png \"Pending actions\"\n"
        "pause 250\n"
        "expect-exit -1 within=3000\n",
        "dir/case.scenario");
    EXPECT_EQ("dir", scenario.directory);
    ASSERT_EQ(8u, scenario.steps.size());

    ScenarioStep const& start = scenario.steps[0];
    EXPECT_EQ(StepKind::Start, start.kind);
    EXPECT_EQ(3, start.line);
    ASSERT_EQ(2u, start.pairs.size());
    EXPECT_EQ("ZOLCLIENTUI_TRACE", start.pairs[1].first);
    EXPECT_EQ("1", start.pairs[1].second);

    EXPECT_EQ(StepKind::Send, scenario.steps[1].kind);
    EXPECT_EQ(std::vector<std::string>{"documents/init.xml"}, scenario.steps[1].words);

    ScenarioStep const& expect = scenario.steps[2];
    EXPECT_EQ(700, expect.withinMs);
    EXPECT_EQ(std::vector<std::string>{"ActionTaken"}, expect.words);
    ASSERT_EQ(2u, expect.pairs.size());
    EXPECT_EQ("IsCancel", expect.pairs[1].first);
    EXPECT_EQ("false", expect.pairs[1].second);

    ScenarioStep const& click = scenario.steps[3];
    EXPECT_EQ(6, click.line);
    EXPECT_EQ(2, click.row);
    EXPECT_EQ("Title with \"quotes\"", click.words[0]);
    EXPECT_EQ("viewport", click.words[1]);

    EXPECT_EQ("a b\tc\n", scenario.steps[4].words[0]);
    EXPECT_EQ(2u, scenario.steps[5].words.size());
    EXPECT_EQ(250, scenario.steps[6].number);
    EXPECT_EQ(-1, scenario.steps[7].number);
    EXPECT_EQ(3000, scenario.steps[7].withinMs);
}

// Waiting steps have a default time that within replaces; send-text takes the rest of the line
// byte for byte; expect values may be empty or quoted with blanks; try marks a step that may fail.
TEST(ScenarioScript, DefaultsQuotingSendTextAndTry) {
    std::string const document = "<ClientToUI><A>\"x\" # not a comment</A></ClientToUI>";
    Scenario scenario = ParseScenario(
        "expect ReadyForData\nwait-window T\nwait-window T within=90\n"
        "click T b\n"
        "  send-text   " +
            document +
            "\n"
            "expect Clicked Text= Title=\"two words\" Widget=\"a=b\"\n"
            "try wait-window \"Action Requests\" within=100\n"
            "  try send-text <A>try</A>\n",
        "s");
    auto const& steps = scenario.steps;
    ASSERT_EQ(8u, steps.size());
    EXPECT_GT(steps[0].withinMs, 0);
    EXPECT_GT(steps[1].withinMs, 0);
    EXPECT_EQ(90, steps[2].withinMs);
    EXPECT_EQ(-1, steps[3].row);
    EXPECT_FALSE(steps[3].tried);
    EXPECT_EQ(std::vector<std::string>{document}, steps[4].words);
    ASSERT_EQ(3u, steps[5].pairs.size());
    EXPECT_EQ("", steps[5].pairs[0].second);
    EXPECT_EQ("two words", steps[5].pairs[1].second);
    EXPECT_EQ("a=b", steps[5].pairs[2].second);
    EXPECT_TRUE(steps[6].tried);
    EXPECT_EQ(StepKind::WaitWindow, steps[6].kind);
    EXPECT_EQ(100, steps[6].withinMs);
    EXPECT_TRUE(steps[7].tried);
    EXPECT_EQ("<A>try</A>", steps[7].words[0]);
}

TEST(ScenarioScript, ErrorsNameTheFileAndLine) {
    struct Case {
        char const* text;
        char const* message;
    } const cases[] = {
        {"expect A\nfrobnicate now\n", "dir/case.scenario:2: unknown step \"frobnicate\""},
        {"\n\n\nsend\n", "dir/case.scenario:4: send takes 1 argument, not 0"},
        {"screenshot\n", "dir/case.scenario:1: screenshot takes 1 or 2 arguments, not 0"},
        {"click T\n", "dir/case.scenario:1: click takes 2 arguments, not 1"},
        {"# c\npause soon\n", "dir/case.scenario:2: pause must be a whole number, not \"soon\""},
        {"pause 10ms\n", "dir/case.scenario:1: pause must be a whole number, not \"10ms\""},
        {"expect A within=\n", "dir/case.scenario:1: within must be a whole number, not \"\""},
        {"click T b row=-1\n", "dir/case.scenario:1: row counts from 0"},
        {"send f within=10\n", "dir/case.scenario:1: send takes no option \"within\""},
        {"click T b Row=1\n", "dir/case.scenario:1: click takes no option \"Row\""},
        {"wait-window \"open\n", "dir/case.scenario:1: unterminated quote"},
        {"send-text\n", "dir/case.scenario:1: send-text needs a document"},
        {"try\n", "dir/case.scenario:1: try needs a step"},
        {"expect-rows T viewport\n", "dir/case.scenario:1: expect-rows takes 3 arguments, not 2"},
        {"expect-rows T viewport -1\n", "dir/case.scenario:1: the number of rows counts from 0"},
        {"try try close\n", "dir/case.scenario:1: unknown step \"try\""},
    };
    for (Case const& c : cases) {
        EXPECT_EQ(c.message, ScenarioFailureOf([&] { ParseScenario(c.text, "dir/case.scenario"); }))
            << c.text;
    }
    EXPECT_EQ("/nonexistent/dir/x.scenario: cannot read the scenario",
              ScenarioFailureOf([] { ReadScenarioFile("/nonexistent/dir/x.scenario"); }));
}

TEST(ScenarioScript, RelativePathsStartAtTheScenarioFolder) {
    EXPECT_EQ("/abs/x.png", ResolvePath("dir", "/abs/x.png"));
    EXPECT_EQ("dir/sub/x.png", ResolvePath("dir", "sub/x.png"));
    EXPECT_EQ(".", ParseScenario("", "plain.scenario").directory);
}

TEST(ScenarioScript, DocumentsTakeEnvironmentVariables) {
    setenv("SCENARIO_TEST_DEADLINE", "Mon, 23 Nov 2026 13:00:00 +0000", 1);
    unsetenv("SCENARIO_TEST_UNSET");
    EXPECT_EQ("<Deadline>Mon, 23 Nov 2026 13:00:00 +0000</Deadline> $HOME ${",
              ExpandVariables("<Deadline>${SCENARIO_TEST_DEADLINE}</Deadline> $HOME ${"));
    EXPECT_EQ("the document uses ${SCENARIO_TEST_UNSET}, which is not set",
              ScenarioFailureOf([] { ExpandVariables("a ${SCENARIO_TEST_UNSET} b"); }));
}
