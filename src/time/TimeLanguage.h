#pragma once
// The parts of speech of the time language and its four grammars: a full reading, a date, a
// time of day, and a time of day with a zone.

#include <cstddef>
#include <cstdint>

#include "time/Grammar.h"
#include "time/TimeRPNSemantics.h"

class TimeLanguage {
  public:
    enum PartOfSpeech {
        DayName = 0,           // reserved word: a day of the week
        MonthName = 1,         // reserved word: a month
        OneDigit = 2,          // a numeral of 1 digit
        TwoDigits = 3,         // a numeral of 2 digits
        ThreeDigits = 4,       // a numeral of 3 digits
        FourDigits = 5,        // a numeral of 4 digits
        NamedZone = 6,         // reserved word: a named time zone
        MilitaryZone = 7,      // reserved word: a single letter zone
        Comma = 8,             // ","
        Colon = 9,             // ":"
        Plus = 10,             // "+"
        Minus = 11,            // "-"
        HoursAndMinutes = 12,  // hour and minute on the stack
        TimePhrase = 13,       // a finished time of day
        MonthAndYear = 14,     // month and year on the stack
        DatePhrase = 15,       // a finished date
        DayAndDate = 16,       // a finished date with its optional day name
        EndOfPhrase = 18       // the end marker, and the result of the goal productions
    };
    // Places in a grammar's table; 17 has no use.
    static constexpr std::size_t partCount = 18;

    using TimeGrammar = Grammar<TimeLanguage, TimeRPNSemantics>;

    // Each returns the one grammar, linked on first use under one-time initialisation and only
    // read afterwards.
    // "[Day,] D[D] Mon YY[YY] HH:MM[:SS] [zone]", the zone as +hhmm, -hhmm, a name or a letter.
    static TimeGrammar const& TheGrammar();
    // "[Day,] D[D] Mon YY[YY]".
    static TimeGrammar const& DateGrammar();
    // "H[H]:MM[:SS]".
    static TimeGrammar const& TimeOfDayGrammar();
    // "H[H]:MM[:SS] [zone]".
    static TimeGrammar const& ZonedTimeOfDayGrammar();
};

// What a reserved word stands for: its part of speech and a value.
struct TimeParsingAction {
    TimeLanguage::PartOfSpeech part;
    std::int32_t value;
};
