#include "time/TimeLanguage.h"

namespace {

using L = TimeLanguage;
using S = TimeRPNSemantics;
using P1 = Production1<L, S>;
using P2 = Production2<L, S>;
using P3 = Production3<L, S>;
using P4 = Production4<L, S>;
using TimeGrammar = L::TimeGrammar;

// The productions of each grammar are function-level statics, linked in order of declaration.
// Each builder runs once, under the guard of the static that holds its result.

TimeGrammar const& LinkTheGrammar() {
    static TimeGrammar g;
    static P2 const p1(g, L::MonthName, L::FourDigits, nullptr, L::MonthAndYear);
    static P2 const p2(g, L::MonthName, L::ThreeDigits, nullptr, L::MonthAndYear);
    static P2 const p3(g, L::MonthName, L::TwoDigits, &S::Add1900, L::MonthAndYear);
    static P2 const p4(g, L::OneDigit, L::MonthAndYear, &S::BuildDate, L::DatePhrase);
    static P2 const p5(g, L::TwoDigits, L::MonthAndYear, &S::BuildDate, L::DatePhrase);
    static P3 const p6(g, L::DayName, L::Comma, L::DatePhrase, &S::CheckDay, L::DayAndDate);
    static P1 const p7(g, L::DatePhrase, nullptr, L::DayAndDate);
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

TimeGrammar const& LinkDateGrammar() {
    static TimeGrammar g;
    static P2 const p1(g, L::MonthName, L::FourDigits, nullptr, L::MonthAndYear);
    static P2 const p2(g, L::MonthName, L::ThreeDigits, nullptr, L::MonthAndYear);
    static P2 const p3(g, L::MonthName, L::TwoDigits, &S::Add1900, L::MonthAndYear);
    static P2 const p4(g, L::OneDigit, L::MonthAndYear, &S::BuildDate, L::DatePhrase);
    static P2 const p5(g, L::TwoDigits, L::MonthAndYear, &S::BuildDate, L::DatePhrase);
    static P3 const p6(g, L::DayName, L::Comma, L::DatePhrase, &S::CheckDay, L::EndOfPhrase);
    static P1 const p7(g, L::DatePhrase, nullptr, L::EndOfPhrase);
    return g;
}

TimeGrammar const& LinkTimeOfDayGrammar() {
    static TimeGrammar g;
    static P3 const p1(g, L::OneDigit, L::Colon, L::TwoDigits, nullptr, L::HoursAndMinutes);
    static P3 const p2(g, L::TwoDigits, L::Colon, L::TwoDigits, nullptr, L::HoursAndMinutes);
    static P3 const p3(g, L::HoursAndMinutes, L::Colon, L::TwoDigits, &S::BuildTimeWithSeconds,
                       L::EndOfPhrase);
    static P1 const p4(g, L::HoursAndMinutes, &S::BuildTimeWithNoSeconds, L::EndOfPhrase);
    return g;
}

TimeGrammar const& LinkZonedTimeOfDayGrammar() {
    static TimeGrammar g;
    static P3 const p1(g, L::OneDigit, L::Colon, L::TwoDigits, nullptr, L::HoursAndMinutes);
    static P3 const p2(g, L::TwoDigits, L::Colon, L::TwoDigits, nullptr, L::HoursAndMinutes);
    static P3 const p3(g, L::HoursAndMinutes, L::Colon, L::TwoDigits, &S::BuildTimeWithSeconds,
                       L::TimePhrase);
    static P1 const p4(g, L::HoursAndMinutes, &S::BuildTimeWithNoSeconds, L::TimePhrase);
    static P3 const p5(g, L::TimePhrase, L::Plus, L::FourDigits, &S::MakePositiveZone,
                       L::EndOfPhrase);
    static P3 const p6(g, L::TimePhrase, L::Minus, L::FourDigits, &S::MakeNegativeZone,
                       L::EndOfPhrase);
    static P2 const p7(g, L::TimePhrase, L::NamedZone, &S::MakeNamedZone, L::EndOfPhrase);
    static P2 const p8(g, L::TimePhrase, L::MilitaryZone, nullptr, L::EndOfPhrase);
    static P1 const p9(g, L::TimePhrase, nullptr, L::EndOfPhrase);
    return g;
}

}  // namespace

TimeGrammar const& TimeLanguage::TheGrammar() {
    static TimeGrammar const& grammar = LinkTheGrammar();
    return grammar;
}

TimeGrammar const& TimeLanguage::DateGrammar() {
    static TimeGrammar const& grammar = LinkDateGrammar();
    return grammar;
}

TimeGrammar const& TimeLanguage::TimeOfDayGrammar() {
    static TimeGrammar const& grammar = LinkTimeOfDayGrammar();
    return grammar;
}

TimeGrammar const& TimeLanguage::ZonedTimeOfDayGrammar() {
    static TimeGrammar const& grammar = LinkZonedTimeOfDayGrammar();
    return grammar;
}
