#include "testing/RecordingDialogs.h"

#include <deque>

#include "session/DialogCalls.h"
#include "session/MessageRequest.h"
#include "time/Instant.h"
#include "time/TimeInterval.h"

namespace {

struct Record {
    std::vector<std::string> calls;
    std::deque<bool> shownAnswers;
    bool shownAfterwards = false;
    std::string failingFunction;
};

Record& Recorded() {
    static Record record;
    return record;
}

std::string Text(bool value) {
    return value ? "true" : "false";
}
std::string Text(unsigned long long value) {
    return std::to_string(value);
}
std::string Text(TimeInterval const& value) {
    return std::to_string(value.Microseconds());
}
std::string Text(Instant const& value) {
    return std::to_string(value.Microseconds());
}
std::string Text(SharedUString<UTF8> const& value) {
    return "\"" + std::string(value.begin, value.end) + "\"";
}
std::string Text(NullOr<TimeInterval> const& value) {
    return value.IsNull() ? "null" : Text(*value);
}

// Logs the call, then throws if a test asked calls of this function to fail.
void Log(std::string const& function, std::string const& arguments = std::string()) {
    Record& record = Recorded();
    record.calls.push_back(function + "(" + arguments + ")");
    if (function == record.failingFunction) throw RecordedDialogFailure();
}

}  // namespace

std::vector<std::string> const& RecordingDialogs::Calls() {
    return Recorded().calls;
}

void RecordingDialogs::Reset() {
    Recorded() = Record();
}

void RecordingDialogs::ScriptDialogShown(std::vector<bool> const& answers, bool afterwards) {
    Recorded().shownAnswers.assign(answers.begin(), answers.end());
    Recorded().shownAfterwards = afterwards;
}

void RecordingDialogs::FailOn(std::string const& function) {
    Recorded().failingFunction = function;
}

void InitXApp(int argc, char**) {
    Log("InitXApp", std::to_string(argc));
}

void ShowActionRequestDialog(bool first, TimeInterval const& remindInterval, bool snoozable) {
    Log("ShowActionRequestDialog",
        Text(first) + ", " + Text(remindInterval) + ", " + Text(snoozable));
}

void UpdateActionRequestDialog() {
    Log("UpdateActionRequestDialog");
}

bool IsActionRequestDialogShown() {
    Record& record = Recorded();
    bool shown = record.shownAfterwards;
    if (!record.shownAnswers.empty()) {
        shown = record.shownAnswers.front();
        record.shownAnswers.pop_front();
    }
    record.calls.push_back("IsActionRequestDialogShown() = " + Text(shown));
    return shown;
}

void DisableActionRequestDialog() {
    Log("DisableActionRequestDialog");
}

void EnableActionRequestDialog() {
    Log("EnableActionRequestDialog");
}

void ShowActionDetailsDialog(unsigned long long actionID) {
    Log("ShowActionDetailsDialog", Text(actionID));
}

void ShowConfirmationRequestDialog(unsigned long long actionID) {
    Log("ShowConfirmationRequestDialog", Text(actionID));
}

void ShowMessageDialog(MessageRequest const& request) {
    Log("ShowMessageDialog",
        Text(request.m_id) + ", " + Text(request.m_title) + ", " + Text(request.m_message) + ", " +
            Text(request.m_isCompletionMessage) + ", " + Text(request.m_timeout));
}

void RemoveMessageDialog(unsigned long long id) {
    Log("RemoveMessageDialog", Text(id));
}

void RemoveTimedoutMessageDialogs() {
    Log("RemoveTimedoutMessageDialogs");
}

void ShowQuietModeDialog(Instant const& start, Instant const& end) {
    Log("ShowQuietModeDialog", Text(start) + ", " + Text(end));
}

void RemoveQuietModeDialog() {
    Log("RemoveQuietModeDialog");
}
