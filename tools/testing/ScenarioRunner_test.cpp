// The scenario runner against a stand-in dialog on a private X server: real pointer clicks and
// key presses through the server, documents over the pipes, screenshots read back.

#include "ScenarioRunner.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <optional>
#include <sstream>
#include <string>

#include "testing/TemporaryDirectory.h"
#include "testing/XvfbServer.h"

namespace {

std::string const showDialog =
    "send-text <ClientToUI><Show><Title>Fake actions</Title></Show></ClientToUI>\n"
    "wait-window \"Fake actions\"\n";

uint32_t PngHeaderNumber(std::string const& png, size_t at) {
    uint32_t value = 0;
    for (size_t i = 0; i < 4; ++i) value = value << 8 | static_cast<uint8_t>(png[at + i]);
    return value;
}

class ScenarioRunnerTest : public TemporaryDirectory {
  protected:
    // Plays the text as a scenario file in the test's directory against the stand-in dialog.
    // Returns the failure's message, or "passed".
    std::string Play(std::string const& text) {
        ScenarioOptions options;
        options.program = FAKEDIALOG_PATH;
        options.displayName = m_server.DisplayName();
        ScenarioRunner runner(options, m_log);
        try {
            runner.Run(ParseScenario(text, Path("case.scenario")));
        } catch (ScenarioError const& failure) {
            return failure.what();
        }
        m_end = runner.End();
        return "passed";
    }

    XvfbServer m_server;
    std::ostringstream m_log;
    std::optional<ProcessEnd> m_end;
};

}  // namespace

TEST_F(ScenarioRunnerTest, ClicksAButtonByItsWidgetName) {
    EXPECT_EQ("passed", Play("expect ReadyForData\n" + showDialog +
                             "click \"Fake actions\" takeActions\n"
                             "expect Clicked Widget=takeActions\n"
                             "click \"Fake actions\" snoozeButton\n"
                             "expect Clicked Widget=snoozeButton\n"
                             "click \"Fake actions\" cancelAction\n"
                             "expect Clicked Widget=cancelAction\n"
                             "wait-no-window \"Fake actions\"\n"
                             "send-text <ClientToUI><Exit><Status>3</Status></Exit></ClientToUI>\n"
                             "expect-exit 3\n"))
        << m_log.str();
    ASSERT_TRUE(m_end.has_value());
    EXPECT_EQ(3, m_end->status);
}

TEST_F(ScenarioRunnerTest, TypesIntoAFieldWithShiftedCharacters) {
    EXPECT_EQ("passed", Play("expect ReadyForData\n" + showDialog +
                             "click \"Fake actions\" actiondesc\n"
                             "type \"Take it: A&B <now>!\"\n"
                             "click \"Fake actions\" takeAllActions\n"
                             "expect Clicked Widget=takeAllActions Text=\"Take it: A&B <now>!\"\n"))
        << m_log.str();
}

TEST_F(ScenarioRunnerTest, ClicksListRowsAlsoWhenTheListIsScrolled) {
    EXPECT_EQ("passed",
              Play("expect ReadyForData\n" + showDialog +
                   "click \"Fake actions\" viewport row=2\n"
                   "expect Selected Widget=viewport Row=2\n"
                   "click \"Fake actions\" viewport row=0\n"
                   "expect Selected Widget=viewport Row=0\n"
                   "send-text <ClientToUI><ScrollSnooze><Pixels>40</Pixels></ScrollSnooze>"
                   "</ClientToUI>\n"
                   "click \"Fake actions\" snoozeViewport row=4\n"
                   "expect Selected Widget=snoozeViewport Row=4\n"))
        << m_log.str();
}

TEST_F(ScenarioRunnerTest, ScreenshotsArePngsOfTheWindowOrTheScreen) {
    EXPECT_EQ("passed", Play("expect ReadyForData\n"
                             "send-text <ClientToUI><Show><Title>Sized</Title><Width>450</Width>"
                             "<Height>320</Height></Show></ClientToUI>\n"
                             "wait-window Sized\n"
                             "screenshot shots/dialog.png Sized\n"
                             "screenshot whole.png\n"))
        << m_log.str();
    struct Shot {
        char const* file;
        uint32_t width, height;
    } const shots[] = {{"shots/dialog.png", 450, 320}, {"whole.png", 1024, 768}};
    for (Shot const& shot : shots) {
        std::string png = ReadText(Path(shot.file));
        ASSERT_GT(png.size(), 33u) << shot.file;
        EXPECT_EQ(std::string("\x89PNG\r\n\x1a\n", 8), png.substr(0, 8));
        EXPECT_EQ("IHDR", png.substr(12, 4));
        EXPECT_EQ(shot.width, PngHeaderNumber(png, 16)) << shot.file;
        EXPECT_EQ(shot.height, PngHeaderNumber(png, 20)) << shot.file;
    }
}

TEST_F(ScenarioRunnerTest, AFailureNamesTheLineTheStepAndWhatWasSeen) {
    struct Case {
        std::string scenario;
        std::string failure;  // the start of the message
    } const cases[] = {
        {"expect ReadyForData\n" + showDialog +
             "click \"Fake actions\" takeActions\n"
             "expect Clicked Widget=takeAllActions\n",
         "case.scenario:5: expect Clicked Widget=takeAllActions\n  document 2: Clicked Widget "
         "is \"takeActions\", expected \"takeAllActions\""},
        {"expect ActionTaken\n",
         "case.scenario:1: expect ActionTaken\n  document 1: expected ActionTaken, got "
         "ReadyForData"},
        {"wait-window Elsewhere within=300\n",
         "case.scenario:1: wait-window Elsewhere within=300\n  no window titled \"Elsewhere\" "
         "is on the screen (there are none) after 300 ms"},
        {showDialog + "click \"Fake actions\" okButton\n",
         "case.scenario:3: click \"Fake actions\" okButton\n  no widget \"okButton\" in this "
         "dialog (the action request dialog: actiontitle, "},
        {showDialog + "click \"Fake actions\" actionDetails\n",
         "case.scenario:3: click \"Fake actions\" actionDetails\n  \"actionDetails\" of \"Fake "
         "actions\" is not visible"},
        {showDialog + "click \"Fake actions\" viewport row=5 within=300\n",
         "case.scenario:3: click \"Fake actions\" viewport row=5 within=300\n  no row 5 in "
         "\"viewport\" of \"Fake actions\": the list shows rows 0, 1 and 2"},
        {"send-text <ClientToUI><Exit><Status>2</Status></Exit></ClientToUI>\nexpect-exit 0\n",
         "case.scenario:2: expect-exit 0\n  the program ended with status 2, expected status 0"},
        {"expect ReadyForData\nexpect-nothing within=200\nclose\nexpect Clicked\n",
         "case.scenario:4: expect Clicked\n  the program closed its pipe without sending Clicked"},
        {showDialog + "expect-rows \"Fake actions\" viewport 2 within=300\n",
         "case.scenario:3: expect-rows \"Fake actions\" viewport 2 within=300\n  \"viewport\" of "
         "\"Fake actions\" has 3 rows, expected 2"},
        {showDialog + "expect-rows \"Fake actions\" snoozeViewport 12\n",
         "case.scenario:3: expect-rows \"Fake actions\" snoozeViewport 12\n  \"snoozeViewport\" of "
         "\"Fake actions\" is taller than its viewport"},
    };
    for (Case const& c : cases) {
        std::string failure = Play(c.scenario);
        std::string expected = Path(c.failure);
        EXPECT_EQ(expected, failure.substr(0, expected.size())) << c.scenario;
    }
}

TEST_F(ScenarioRunnerTest, ATriedStepThatFailsIsReportedAndTheRunGoesOn) {
    setenv("SCENARIO_RUNNER_TITLE", "From the environment", 1);
    ScenarioOptions options;
    options.program = FAKEDIALOG_PATH;
    options.displayName = m_server.DisplayName();
    ScenarioRunner runner(options, m_log);
    runner.Run(ParseScenario(
        "expect ReadyForData\n"
        "try wait-window \"From the environment\" within=200\n"
        "send-text <ClientToUI><Show><Title>${SCENARIO_RUNNER_TITLE}</Title></Show></ClientToUI>\n"
        "try wait-window \"From the environment\"\n"
        "try screenshot gone.png Elsewhere\n"
        "screenshot here.png \"From the environment\"\n",
        Path("case.scenario")));
    EXPECT_EQ(2, runner.TriedFailures()) << m_log.str();
    EXPECT_FALSE(Exists(Path("gone.png")));
    EXPECT_TRUE(Exists(Path("here.png")));
}

TEST_F(ScenarioRunnerTest, CountsTheRowsOfAListInView) {
    EXPECT_EQ("passed", Play("expect ReadyForData\n" + showDialog +
                             "expect-rows \"Fake actions\" viewport 3\n"
                             "send-text <ClientToUI><Rows>1</Rows></ClientToUI>\n"
                             "expect-rows \"Fake actions\" viewport 1\n"
                             "send-text <ClientToUI><Rows>0</Rows></ClientToUI>\n"
                             "expect-rows \"Fake actions\" viewport 0\n"))
        << m_log.str();
}
