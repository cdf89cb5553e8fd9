#include "time/TimeOfDay.h"

namespace {
unsigned long const secondsPerDay = 86400;
}

void TimeOfDay::SetSecondOfDay(unsigned long seconds) {
    seconds %= secondsPerDay;
    hour = static_cast<std::uint8_t>(seconds / 3600);
    minute = static_cast<std::uint8_t>(seconds / 60 % 60);
    second = static_cast<std::uint8_t>(seconds % 60);
}

TimeOfDay& TimeOfDay::operator+=(unsigned long seconds) {
    SetSecondOfDay(SecondOfDay() + seconds % secondsPerDay);
    return *this;
}

TimeOfDay& TimeOfDay::operator-=(unsigned long seconds) {
    SetSecondOfDay(SecondOfDay() + secondsPerDay - seconds % secondsPerDay);
    return *this;
}

TimeOfDay& TimeOfDay::operator+=(long seconds) {
    if (seconds < 0) return *this -= 0UL - static_cast<unsigned long>(seconds);
    return *this += static_cast<unsigned long>(seconds);
}

TimeOfDay& TimeOfDay::operator-=(long seconds) {
    if (seconds < 0) return *this += 0UL - static_cast<unsigned long>(seconds);
    return *this -= static_cast<unsigned long>(seconds);
}
