#pragma once
// The semantic side of the time language, as the parser sees it: numbers and reserved words push
// values, and the actions of the productions pop them into the fields of the result.

class TimeRPNSemantics {
  public:
    virtual ~TimeRPNSemantics() = default;
    // Forgets any earlier parse; nothing to forget for this base.
    virtual void Reset() {}
    // Pushes the value of a numeral or a reserved word.
    virtual void PushNumber(long value) = 0;
    // Takes a two-digit year on top as one of the 1900s.
    virtual void Add1900() = 0;
    // Pops year, month and day into the date.
    virtual void BuildDate() = 0;
    // Pops a day of the week and notes whether it fits the date.
    virtual void CheckDay() = 0;
    // Pops second, minute and hour into the time of day.
    virtual void BuildTimeWithSeconds() = 0;
    // Pops minute and hour into the time of day; the second is 0.
    virtual void BuildTimeWithNoSeconds() = 0;
    // Pops an offset in seconds into the zone.
    virtual void MakeNamedZone() = 0;
    // Pop an hhmm offset east (west) of UTC into the zone.
    virtual void MakePositiveZone() = 0;
    virtual void MakeNegativeZone() = 0;
    // As MakeNamedZone, for a single-letter zone.
    virtual void MakeMilitaryZone() = 0;
};
