#include "time/TimeLexer.h"

#include "text/streams/AsciiCaseFilters.h"

namespace {

using L = TimeLanguage;

// Sorted by byte order, closed by an entry with no word.
ReservedWord<TimeParsingAction> const reservedWords[] = {
    {"a", {L::MilitaryZone, 3600}},   {"apr", {L::MonthName, 4}},
    {"aug", {L::MonthName, 8}},       {"b", {L::MilitaryZone, 7200}},
    {"c", {L::MilitaryZone, 10800}},  {"cdt", {L::NamedZone, -18000}},
    {"cst", {L::NamedZone, -21600}},  {"d", {L::MilitaryZone, 14400}},
    {"dec", {L::MonthName, 12}},      {"e", {L::MilitaryZone, 18000}},
    {"edt", {L::NamedZone, -14400}},  {"est", {L::NamedZone, -18000}},
    {"f", {L::MilitaryZone, 21600}},  {"feb", {L::MonthName, 2}},
    {"fri", {L::DayName, 5}},         {"g", {L::MilitaryZone, 25200}},
    {"gmt", {L::NamedZone, 0}},       {"h", {L::MilitaryZone, 28800}},
    {"i", {L::MilitaryZone, 32400}},  {"jan", {L::MonthName, 1}},
    {"jul", {L::MonthName, 7}},       {"jun", {L::MonthName, 6}},
    {"k", {L::MilitaryZone, 36000}},  {"l", {L::MilitaryZone, 39600}},
    {"m", {L::MilitaryZone, 43200}},  {"mar", {L::MonthName, 3}},
    {"may", {L::MonthName, 5}},       {"mdt", {L::NamedZone, -21600}},
    {"mon", {L::DayName, 1}},         {"mst", {L::NamedZone, -25200}},
    {"n", {L::MilitaryZone, -3600}},  {"nov", {L::MonthName, 11}},
    {"o", {L::MilitaryZone, -7200}},  {"oct", {L::MonthName, 10}},
    {"p", {L::MilitaryZone, -10800}}, {"pdt", {L::NamedZone, -25200}},
    {"pst", {L::NamedZone, -28800}},  {"q", {L::MilitaryZone, -14400}},
    {"r", {L::MilitaryZone, -18000}}, {"s", {L::MilitaryZone, -21600}},
    {"sat", {L::DayName, 6}},         {"sep", {L::MonthName, 9}},
    {"sun", {L::DayName, 0}},         {"t", {L::MilitaryZone, -25200}},
    {"thu", {L::DayName, 4}},         {"tue", {L::DayName, 2}},
    {"u", {L::MilitaryZone, -28800}}, {"ut", {L::NamedZone, 0}},
    {"v", {L::MilitaryZone, -32400}}, {"w", {L::MilitaryZone, -36000}},
    {"wed", {L::DayName, 3}},         {"x", {L::MilitaryZone, -39600}},
    {"y", {L::MilitaryZone, -43200}}, {"z", {L::MilitaryZone, 0}},
    {nullptr, {L::EndOfPhrase, 0}},
};

}  // namespace

ReservedWordLexeme<TimeParsingAction>::Table TimeLexer::ReservedWords() {
    static ReservedWordLexeme<TimeParsingAction>::Table const table = [] {
        ReservedWord<TimeParsingAction> const* end = reservedWords;
        while (end->word) ++end;
        return ReservedWordLexeme<TimeParsingAction>::Table(reservedWords, end);
    }();
    return table;
}

TimeLexer::TimeLexer(TimeLexemeAcceptor& acceptor)
    : Lexer(acceptor),
      wordBuffer(),
      words(Ascii::Alphabetic(), Data(wordBuffer), &Ascii::LowerCase(), ReservedWords(), acceptor),
      numerals(acceptor),
      blanks(Ascii::WhiteSpace()),
      characters(acceptor),
      whiteSpace(Ascii::WhiteSpace()),
      numeric(Ascii::Numeric()),
      alphabetic(Ascii::Alphabetic()) {}

Lexeme& TimeLexer::ChooseLexeme(unsigned char first) {
    if (whiteSpace.Contains(first)) return blanks;
    if (alphabetic.Contains(first)) return words;
    if (numeric.Contains(first)) return numerals;
    return characters;
}
