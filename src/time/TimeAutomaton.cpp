#include "time/TimeAutomaton.h"

TimeAutomaton::TimeAutomaton()
    : storage(),
      stack(Data(reinterpret_cast<unsigned char*>(storage), sizeof storage), sizeof(std::int32_t)),
      hasZone(false),
      isMilitaryZone(false),
      dayOfWeekMatches(true) {}

void TimeAutomaton::Reset() {
    stack.Pop(stack.Count());
    hasZone = false;
    isMilitaryZone = false;
    dayOfWeekMatches = true;
}

void TimeAutomaton::PushNumber(long value) {
    *static_cast<std::int32_t*>(stack.Allocate()) = static_cast<std::int32_t>(value);
}

std::int32_t TimeAutomaton::Pop() {
    std::int32_t const value = Top();
    stack.Pop(1);
    return value;
}

void TimeAutomaton::Add1900() {
    *static_cast<std::int32_t*>(stack.Top()) = Top() + 1900;
}

void TimeAutomaton::BuildDate() {
    date.year = static_cast<std::uint32_t>(Pop());
    date.month = static_cast<Month>(Pop());
    date.day = static_cast<std::uint8_t>(Pop());
}

void TimeAutomaton::CheckDay() {
    dayOfWeekMatches = date.DayOfWeek() == static_cast<DayOfWeek>(Pop());
}

void TimeAutomaton::BuildTimeWithSeconds() {
    timeOfDay.second = static_cast<std::uint8_t>(Pop());
    timeOfDay.minute = static_cast<std::uint8_t>(Pop());
    timeOfDay.hour = static_cast<std::uint8_t>(Pop());
}

void TimeAutomaton::BuildTimeWithNoSeconds() {
    timeOfDay.second = 0;
    timeOfDay.minute = static_cast<std::uint8_t>(Pop());
    timeOfDay.hour = static_cast<std::uint8_t>(Pop());
}

void TimeAutomaton::MakeNamedZone() {
    zone = TimeZone(Pop());
    hasZone = true;
}

void TimeAutomaton::MakeHhmmZone(bool negative) {
    std::int32_t const hhmm = Pop();
    std::int32_t const seconds = (hhmm / 100 * 60 + hhmm % 100) * 60;
    zone = TimeZone(negative ? -seconds : seconds);
    hasZone = true;
}

void TimeAutomaton::MakePositiveZone() {
    MakeHhmmZone(false);
}

void TimeAutomaton::MakeNegativeZone() {
    MakeHhmmZone(true);
}

void TimeAutomaton::MakeMilitaryZone() {
    MakeNamedZone();
    isMilitaryZone = true;
}
