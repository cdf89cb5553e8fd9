#include "ScenarioRunner.h"

#include <time.h>
#include <unistd.h>

#include <algorithm>
#include <fstream>
#include <iterator>

#include "DialogWidgets.h"
#include "PngWriter.h"
#include "RowBands.h"
#include "ScreenCapture.h"
#include "XTestInput.h"
#include "XWindowTree.h"

namespace {

int const pollMs = 50;

long NowMs() {
    timespec now;
    clock_gettime(CLOCK_MONOTONIC, &now);
    return now.tv_sec * 1000L + now.tv_nsec / 1000000L;
}

std::string Quoted(std::string const& text) {
    return "\"" + text + "\"";
}

std::string ReadFile(std::string const& path) {
    std::ifstream in(path, std::ios::binary);
    if (!in) throw ScenarioError("cannot read " + path);
    return std::string((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
}

std::string SummaryOf(std::string const& text) {
    try {
        return Summary(ParseDocument(text));
    } catch (std::exception const& failure) {
        return failure.what();
    }
}

std::string Describe(ProcessEnd const& end) {
    if (end.signalled) return "ended by signal " + std::to_string(end.status);
    return "ended with status " + std::to_string(end.status);
}

// Returns "rows 4, 5 and 6" for the rows a list shows whole, or says that it shows none.
std::string RowNames(std::vector<int> const& numbers) {
    std::vector<int> whole;
    for (int number : numbers)
        if (number >= 0) whole.push_back(number);
    if (whole.empty()) return "no whole row";
    std::string names = whole.size() == 1 ? "row " : "rows ";
    for (size_t i = 0; i < whole.size(); ++i) {
        if (i > 0) names += i + 1 == whole.size() ? " and " : ", ";
        names += std::to_string(whole[i]);
    }
    return names;
}

}  // namespace

ScenarioRunner::ScenarioRunner(ScenarioOptions const& options, std::ostream& log)
    : m_options(options), m_log(log) {}

ScenarioRunner::~ScenarioRunner() {
    if (m_display) XCloseDisplay(m_display);
}

void ScenarioRunner::Run(Scenario const& scenario) {
    for (ScenarioStep const& step : scenario.steps) {
        std::string where = scenario.file + ":" + std::to_string(step.line);
        m_log << "[" << where << "] " << step.text << std::endl;
        try {
            if (!m_started && step.kind != StepKind::Start) Start({});
            long began = NowMs();
            Play(step, scenario);
            // The wait from the end of the step before: after a send or a click, the time the
            // program took to show the window or to answer.
            if (step.kind == StepKind::Expect || step.kind == StepKind::WaitWindow ||
                step.kind == StepKind::WaitNoWindow)
                m_log << "    after " << NowMs() - began << " ms" << std::endl;
        } catch (ScenarioError const& failure) {
            if (!step.tried)
                throw ScenarioError(where + ": " + step.text + "\n  " + failure.what());
            ++m_triedFailures;
            m_log << "    failed, going on: " << failure.what() << std::endl;
        }
    }
    if (!m_started) Start({});
    Finish();
}

void ScenarioRunner::Play(ScenarioStep const& step, Scenario const& scenario) {
    switch (step.kind) {
        case StepKind::Start:
            if (m_started) throw ScenarioError("the program has already started");
            Start(step.pairs);
            break;
        case StepKind::Send:
            Send(ExpandVariables(ReadFile(ResolvePath(scenario.directory, step.words[0]))),
                 step.words[0]);
            break;
        case StepKind::SendText:
            Send(ExpandVariables(step.words[0]), "inline text");
            break;
        case StepKind::Expect:
            Expect(step);
            break;
        case StepKind::ExpectNothing:
            ExpectNothing(step);
            break;
        case StepKind::WaitWindow:
            WaitForWindow(step.words[0], true, step.withinMs);
            break;
        case StepKind::WaitNoWindow:
            WaitForWindow(step.words[0], false, step.withinMs);
            break;
        case StepKind::Click:
            Click(step);
            break;
        case StepKind::ExpectRows:
            ExpectRows(step);
            break;
        case StepKind::Type:
            if (!HasXTest(X())) throw ScenarioError("the X server has no XTest extension");
            TypeText(X(), step.words[0]);
            break;
        case StepKind::Screenshot:
            Screenshot(step, scenario);
            break;
        case StepKind::Pause:
            Pump(step.number);
            break;
        case StepKind::Close:
            m_agent.CloseToProcess();
            m_closed = true;
            break;
        case StepKind::ExpectExit:
            ExpectExit(step);
            break;
    }
}

void ScenarioRunner::Start(std::vector<std::pair<std::string, std::string>> const& variables) {
    std::vector<std::string> environment;
    if (!m_options.displayName.empty()) environment.push_back("DISPLAY=" + m_options.displayName);
    environment.insert(environment.end(), m_options.environment.begin(),
                       m_options.environment.end());
    for (auto const& [name, value] : variables) environment.push_back(name + "=" + value);
    try {
        m_agent.Launch(m_options.program, m_options.arguments, false, environment);
    } catch (std::exception const& failure) {
        throw ScenarioError(m_options.program + ": " + failure.what());
    }
    m_started = true;
    m_log << "    started " << m_options.program << " (pid " << m_agent.Pid() << ")" << std::endl;
}

void ScenarioRunner::Send(std::string const& text, std::string const& origin) {
    m_log << ">>> " << SummaryOf(text) << "  (" << origin << ", " << text.size() << " bytes)"
          << std::endl;
    if (m_options.printDocuments) m_log << text << std::endl;
    if (m_closed) throw ScenarioError("the pipe to the program is closed");
    if (!m_agent.SendFrame(text)) throw ScenarioError("the program no longer reads its pipe");
}

void ScenarioRunner::Take(std::string const& text) {
    Received received;
    received.number = ++m_receivedCount;
    received.text = text;
    try {
        received.document = ParseDocument(text);
        m_log << "<<< " << Summary(*received.document) << std::endl;
    } catch (std::exception const& failure) {
        received.parseError = failure.what();
        m_log << "<<< (" << received.parseError << ")" << std::endl;
    }
    if (m_options.printDocuments || !received.document) m_log << text << std::endl;
    m_pending.push_back(std::move(received));
}

bool ScenarioRunner::Pump(int ms, bool untilOne) {
    long deadline = NowMs() + ms;
    do {
        long left = std::max<long>(deadline - NowMs(), 0);
        if (m_pipeOpen) {
            if (auto frame = m_agent.ReceiveFrame(static_cast<int>(left))) {
                Take(*frame);
                if (untilOne) return true;
                continue;
            }
            m_pipeOpen = m_agent.MayReceive();
        } else {
            if (untilOne) return false;
            usleep(static_cast<useconds_t>(std::min<long>(left, pollMs)) * 1000);
        }
    } while (NowMs() < deadline);
    return m_pipeOpen;
}

void ScenarioRunner::Drain() {
    while (m_pipeOpen) {
        auto frame = m_agent.ReceiveFrame(200);
        if (!frame) break;
        Take(*frame);
    }
}

bool ScenarioRunner::Ended() {
    if (m_end) return true;
    if (auto end = m_agent.WaitForExit(0)) m_end = end;
    return m_end.has_value();
}

void ScenarioRunner::Expect(ScenarioStep const& step) {
    Expectation expected{step.words[0], step.pairs};
    long deadline = NowMs() + step.withinMs;
    while (m_pending.empty()) {
        long left = deadline - NowMs();
        if (left <= 0)
            throw ScenarioError("no document from the program within " +
                                std::to_string(step.withinMs) + " ms");
        if (!Pump(static_cast<int>(left), true) && m_pending.empty()) {
            std::string how = Ended() ? "; it " + Describe(*m_end) : "";
            throw ScenarioError("the program closed its pipe without sending " + expected.message +
                                how);
        }
    }
    Received received = std::move(m_pending.front());
    m_pending.pop_front();
    std::string number = "document " + std::to_string(received.number);
    if (!received.document) throw ScenarioError(number + " is " + received.parseError);
    std::string mismatch = Mismatch(*received.document, expected);
    if (!mismatch.empty())
        throw ScenarioError(number + ": " + mismatch + "\n  got: " + Summary(*received.document));
}

void ScenarioRunner::ExpectNothing(ScenarioStep const& step) {
    if (m_pending.empty()) Pump(step.withinMs, true);
    if (!m_pending.empty())
        throw ScenarioError("a document came: " + (m_pending.front().document
                                                       ? Summary(*m_pending.front().document)
                                                       : "not well-formed"));
}

Display* ScenarioRunner::X() {
    if (m_display) return m_display;
    char const* name = m_options.displayName.empty() ? nullptr : m_options.displayName.c_str();
    m_display = XOpenDisplay(name);
    if (!m_display) throw ScenarioError("cannot open the X display " + Quoted(XDisplayName(name)));
    TrapXErrors();
    return m_display;
}

Window ScenarioRunner::TitledWindow(std::string const& title) {
    Window window = FindTitledWindow(X(), title);
    if (window != None) return window;
    std::string shown;
    for (std::string const& other : ViewableTitles(X()))
        shown += (shown.empty() ? "" : ", ") + Quoted(other);
    throw ScenarioError("no window titled " + Quoted(title) + " is on the screen (there are " +
                        (shown.empty() ? std::string("none") : shown) + ")");
}

void ScenarioRunner::WaitForWindow(std::string const& title, bool present, int withinMs) {
    long deadline = NowMs() + withinMs;
    while ((FindTitledWindow(X(), title) != None) != present) {
        if (NowMs() >= deadline) {
            if (!present)
                throw ScenarioError("the window " + Quoted(title) +
                                    " is still on the screen after " + std::to_string(withinMs) +
                                    " ms");
            try {
                TitledWindow(title);
            } catch (ScenarioError const& failure) {
                throw ScenarioError(std::string(failure.what()) + " after " +
                                    std::to_string(withinMs) + " ms");
            }
        }
        Pump(pollMs);
    }
}

void ScenarioRunner::Click(ScenarioStep const& step) {
    if (!HasXTest(X())) throw ScenarioError("the X server has no XTest extension");
    std::string const& title = step.words[0];
    std::string const& name = step.words[1];
    Window widget = FindWidgetWindow(X(), TitledWindow(title), name);
    std::string where = Quoted(name) + " of " + Quoted(title);
    if (!IsOnScreen(X(), widget)) throw ScenarioError(where + " is not visible");
    if (step.row >= 0) return ClickRow(widget, where, step.row, step.withinMs);
    ScreenRect area = RootRectangle(X(), widget);
    ClickAt(X(), area.x + area.width / 2, area.y + area.height / 2);
}

void ScenarioRunner::ClickRow(Window viewport, std::string const& where, int row, int withinMs) {
    // The list may still be drawing, or be refilled: look again until the time is up.
    long deadline = NowMs() + withinMs;
    for (;;) {
        ViewportList windows = FindViewportList(X(), viewport);
        ScreenRect list = RootRectangle(X(), windows.list);
        ScreenRect shown = Intersection(list, RootRectangle(X(), windows.clip));
        std::string seen = "the list shows no rows";
        if (shown.width > 0 && shown.height > 0 && IsOnScreen(X(), windows.list)) {
            std::vector<RowBand> bands = FindRowBands(CaptureRectangle(X(), shown));
            std::vector<int> numbers = NumberBands(bands, shown.y - list.y, shown.height);
            for (size_t i = 0; i < numbers.size(); ++i) {
                if (numbers[i] != row) continue;
                RowBand const& band = bands[i];
                ClickAt(X(), shown.x + (band.left + band.right) / 2,
                        shown.y + (band.top + band.bottom) / 2);
                return;
            }
            if (!bands.empty() && numbers.empty())
                seen = "the list is scrolled and shows too few whole rows to number them";
            else if (!numbers.empty())
                seen = "the list shows " + RowNames(numbers);
        }
        if (NowMs() >= deadline)
            throw ScenarioError("no row " + std::to_string(row) + " in " + where + ": " + seen);
        Pump(pollMs);
    }
}

void ScenarioRunner::ExpectRows(ScenarioStep const& step) {
    std::string const& title = step.words[0];
    std::string const& name = step.words[1];
    std::string where = Quoted(name) + " of " + Quoted(title);
    // The list may be refilled at the next tick of the program: look until the time is up.
    long deadline = NowMs() + step.withinMs;
    for (;;) {
        Window viewport = FindWidgetWindow(X(), TitledWindow(title), name);
        ViewportList windows = FindViewportList(X(), viewport);
        ScreenRect list = RootRectangle(X(), windows.list);
        ScreenRect clip = RootRectangle(X(), windows.clip);
        // Rows are counted by their pixels, so all of them must be in view.
        if (list.y < clip.y || list.y + list.height > clip.y + clip.height)
            throw ScenarioError(where +
                                " is taller than its viewport: its rows cannot all be seen");
        int count = 0;
        if (IsOnScreen(X(), windows.list) && list.width > 0 && list.height > 0)
            count = static_cast<int>(FindRowBands(CaptureRectangle(X(), list)).size());
        if (count == step.number) return;
        if (NowMs() >= deadline)
            throw ScenarioError(where + " has " + std::to_string(count) + " rows, expected " +
                                std::to_string(step.number));
        Pump(pollMs);
    }
}

void ScenarioRunner::Screenshot(ScenarioStep const& step, Scenario const& scenario) {
    std::string const& directory =
        m_options.outputDirectory.empty() ? scenario.directory : m_options.outputDirectory;
    std::string path = ResolvePath(directory, step.words[0]);
    ScreenRect area{0, 0, DisplayWidth(X(), DefaultScreen(X())),
                    DisplayHeight(X(), DefaultScreen(X()))};
    if (step.words.size() > 1) area = RootRectangle(X(), TitledWindow(step.words[1]));
    // The client draws in its own time: wait until two looks 100 ms apart agree.
    PixelGrid grid = CaptureRectangle(X(), area);
    for (int tries = 0; tries < 20; ++tries) {
        Pump(100);
        PixelGrid again = CaptureRectangle(X(), area);
        bool same = again.pixels == grid.pixels;
        grid = std::move(again);
        if (same) break;
    }
    WritePng(path, grid);
    m_log << "    wrote " << path << " (" << grid.width << "x" << grid.height << ")" << std::endl;
}

void ScenarioRunner::ExpectExit(ScenarioStep const& step) {
    long deadline = NowMs() + step.withinMs;
    while (!Ended()) {
        if (NowMs() >= deadline)
            throw ScenarioError("the program still runs after " + std::to_string(step.withinMs) +
                                " ms");
        Pump(pollMs);
    }
    Drain();
    m_log << "    the program " << Describe(*m_end) << std::endl;
    // Status -1 arrives as 255.
    if (m_end->signalled || m_end->status != (step.number & 0xff))
        throw ScenarioError("the program " + Describe(*m_end) + ", expected status " +
                            std::to_string(step.number));
}

void ScenarioRunner::Finish() {
    if (!Ended()) {
        if (!m_closed) {
            m_log << ">>> close (end of the scenario)" << std::endl;
            m_agent.CloseToProcess();
            m_closed = true;
        }
        long deadline = NowMs() + 10000;
        while (!Ended() && NowMs() < deadline) Pump(pollMs);
        Drain();
    }
    if (m_end) {
        m_log << "    the program " << Describe(*m_end) << "; cpu " << m_end->userSeconds
              << " s user, " << m_end->systemSeconds << " s system; peak resident "
              << m_end->peakResidentKiB << " KiB" << std::endl;
    } else {
        m_log << "    the program still runs 10 s after the end of the scenario: killed"
              << std::endl;
    }
}
