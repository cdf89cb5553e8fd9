#include "time/TimeLanguage.h"

namespace {

using L = TimeLanguage;
using S = TimeRPNSemantics;
using P1 = Production1<L, S>;
using P2 = Production2<L, S>;
using P3 = Production3<L, S>;
using P4 = Production4<L, S>;
using TimeGrammar = L::TimeGrammar;

// The productions of each grammar are function-level statics, linked in order of declaration
// (members in the order written below); each grammar is linked once, under the guard of its
// static, and only read afterwards.

// "[Day,] D[D] Mon YY[YY]", reduced to the given part: the full reading goes on to a time, the
// date grammar ends there.
struct DateProductions {
    P2 const monthAndFourDigits;
    P2 const monthAndThreeDigits;
    P2 const monthAndTwoDigits;
    P2 const oneDigitDay;
    P2 const twoDigitDay;
    P3 const withDayName;
    P1 const withoutDayName;

    DateProductions(TimeGrammar& g, L::PartOfSpeech result)
        : monthAndFourDigits(g, L::MonthName, L::FourDigits, nullptr, L::MonthAndYear),
          monthAndThreeDigits(g, L::MonthName, L::ThreeDigits, nullptr, L::MonthAndYear),
          monthAndTwoDigits(g, L::MonthName, L::TwoDigits, &S::Add1900, L::MonthAndYear),
          oneDigitDay(g, L::OneDigit, L::MonthAndYear, &S::BuildDate, L::DatePhrase),
          twoDigitDay(g, L::TwoDigits, L::MonthAndYear, &S::BuildDate, L::DatePhrase),
          withDayName(g, L::DayName, L::Comma, L::DatePhrase, &S::CheckDay, result),
          withoutDayName(g, L::DatePhrase, nullptr, result) {}
};

// "H[H]:MM[:SS]", reduced to the given part: the zoned grammar goes on to a zone.
struct TimeOfDayProductions {
    P3 const oneDigitHour;
    P3 const twoDigitHour;
    P3 const withSeconds;
    P1 const withoutSeconds;

    TimeOfDayProductions(TimeGrammar& g, L::PartOfSpeech result)
        : oneDigitHour(g, L::OneDigit, L::Colon, L::TwoDigits, nullptr, L::HoursAndMinutes),
          twoDigitHour(g, L::TwoDigits, L::Colon, L::TwoDigits, nullptr, L::HoursAndMinutes),
          withSeconds(g, L::HoursAndMinutes, L::Colon, L::TwoDigits, &S::BuildTimeWithSeconds,
                      result),
          withoutSeconds(g, L::HoursAndMinutes, &S::BuildTimeWithNoSeconds, result) {}
};

}  // namespace

TimeGrammar const& TimeLanguage::TheGrammar() {
    static TimeGrammar g;
    static DateProductions const date(g, L::DayAndDate);
    // The full reading takes the hour in two digits only.
    static P3 const p8(g, L::TwoDigits, L::Colon, L::TwoDigits, nullptr, L::HoursAndMinutes);
    static P3 const p9(g, L::HoursAndMinutes, L::Colon, L::TwoDigits, &S::BuildTimeWithSeconds,
                       L::TimePhrase);
    static P1 const p10(g, L::HoursAndMinutes, &S::BuildTimeWithNoSeconds, L::TimePhrase);
    static P4 const p11(g, L::DayAndDate, L::TimePhrase, L::Plus, L::FourDigits,
                        &S::MakePositiveZone, L::EndOfPhrase);
    static P4 const p12(g, L::DayAndDate, L::TimePhrase, L::Minus, L::FourDigits,
                        &S::MakeNegativeZone, L::EndOfPhrase);
    static P3 const p13(g, L::DayAndDate, L::TimePhrase, L::NamedZone, &S::MakeNamedZone,
                        L::EndOfPhrase);
    static P3 const p14(g, L::DayAndDate, L::TimePhrase, L::MilitaryZone, nullptr, L::EndOfPhrase);
    static P2 const p15(g, L::DayAndDate, L::TimePhrase, nullptr, L::EndOfPhrase);
    return g;
}

TimeGrammar const& TimeLanguage::DateGrammar() {
    static TimeGrammar g;
    static DateProductions const date(g, L::EndOfPhrase);
    return g;
}

TimeGrammar const& TimeLanguage::TimeOfDayGrammar() {
    static TimeGrammar g;
    static TimeOfDayProductions const time(g, L::EndOfPhrase);
    return g;
}

TimeGrammar const& TimeLanguage::ZonedTimeOfDayGrammar() {
    static TimeGrammar g;
    static TimeOfDayProductions const time(g, L::TimePhrase);
    static P3 const p5(g, L::TimePhrase, L::Plus, L::FourDigits, &S::MakePositiveZone,
                       L::EndOfPhrase);
    static P3 const p6(g, L::TimePhrase, L::Minus, L::FourDigits, &S::MakeNegativeZone,
                       L::EndOfPhrase);
    static P2 const p7(g, L::TimePhrase, L::NamedZone, &S::MakeNamedZone, L::EndOfPhrase);
    static P2 const p8(g, L::TimePhrase, L::MilitaryZone, nullptr, L::EndOfPhrase);
    static P1 const p9(g, L::TimePhrase, nullptr, L::EndOfPhrase);
    return g;
}
