#pragma once
// The stack machine that gives the time language its meaning, in reverse Polish style: each
// number or reserved word pushes a value, and each action pops values into a field of the result.

#include <cstdint>

#include "text/bytes/FiniteStackBase.h"
#include "time/DateRecord.h"
#include "time/TimeOfDay.h"
#include "time/TimeRPNSemantics.h"
#include "time/TimeZone.h"

class TimeAutomaton : public TimeRPNSemantics {
  public:
    TimeAutomaton();
    TimeAutomaton(TimeAutomaton const&) = delete;
    TimeAutomaton& operator=(TimeAutomaton const&) = delete;

    // Empties the stack, clears hasZone and isMilitaryZone, and sets dayOfWeekMatches.
    void Reset() override;
    // Throws StackFull for a seventh value on the stack.
    void PushNumber(long value) override;
    void Add1900() override;
    void BuildDate() override;
    void CheckDay() override;
    void BuildTimeWithSeconds() override;
    void BuildTimeWithNoSeconds() override;
    void MakeNamedZone() override;
    // The top is read as decimal hhmm with no test of range: "+9999" is 99 hours 99 minutes.
    void MakePositiveZone() override;
    void MakeNegativeZone() override;
    // No production of the grammars names it: a single-letter zone stays on the stack and the
    // text counts as having no zone. The parsers rely on that.
    void MakeMilitaryZone() override;

    // Returns whether the day name fits and date and time of day both exist.
    bool Valid() const { return dayOfWeekMatches && date.Valid() && timeOfDay.Valid(); }

    static constexpr unsigned stackRoom = 6;

  private:
    // Returns the top value.
    std::int32_t Top() const { return *static_cast<std::int32_t*>(stack.Top()); }
    // Returns the top value and pops it.
    std::int32_t Pop();
    void MakeHhmmZone(bool negative);

    std::int32_t storage[stackRoom];
    FiniteStackBase stack;

  public:
    // The result, all zero at construction. The flags say whether the text had a zone other
    // than a single letter, whether it was a single letter, and whether the day name fitted.
    DateRecord date;
    TimeOfDay timeOfDay;
    TimeZone zone;
    bool hasZone;
    bool isMilitaryZone;
    bool dayOfWeekMatches;
};
