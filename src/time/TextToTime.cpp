#include "time/TextToTime.h"

#include "time/TimeAutomaton.h"
#include "time/TimeErrors.h"
#include "time/TimeLexer.h"
#include "time/TimeParser.h"

namespace {

// Runs the text through lexer, parser and automaton; the automaton holds the result.
void Parse(ConstData text, TimeLanguage::TimeGrammar const& grammar, TimeAutomaton& automaton) {
    TimeParser parser(automaton, grammar);
    TimeLexer lexer(parser);
    lexer.Start();
    lexer.Receive(text);
    lexer.ReceiveEnd();
}

TimeAutomaton& ParseReading(ConstData text, TimeAutomaton& automaton) {
    Parse(text, TimeLanguage::TheGrammar(), automaton);
    if (!automaton.date.Valid()) throw NoSuchDate();
    if (!automaton.timeOfDay.Valid()) throw NoSuchTimeOfDay();
    if (!automaton.dayOfWeekMatches) throw WrongDayOfWeek();
    return automaton;
}

TimeAutomaton& ParseZonedTimeOfDay(ConstData text, TimeAutomaton& automaton) {
    Parse(text, TimeLanguage::ZonedTimeOfDayGrammar(), automaton);
    if (!automaton.timeOfDay.Valid()) throw NoSuchTimeOfDay();
    return automaton;
}

}  // namespace

TimeObject TextToTime(ConstData text, TimeZone zone) {
    TimeAutomaton automaton;
    ParseReading(text, automaton);
    if (!automaton.hasZone) return TimeObject(automaton.date, automaton.timeOfDay, zone);
    TimeObject reading(automaton.date, automaton.timeOfDay, automaton.zone);
    reading.SetTimeZone(zone);
    return reading;
}

TimeObject TextToTime(ConstData text) {
    TimeAutomaton automaton;
    ParseReading(text, automaton);
    if (!automaton.hasZone) throw NoTimeZone();
    return TimeObject(automaton.date, automaton.timeOfDay, automaton.zone);
}

DateRecord TextToDate(ConstData text) {
    TimeAutomaton automaton;
    Parse(text, TimeLanguage::DateGrammar(), automaton);
    if (!automaton.date.Valid()) throw NoSuchDate();
    if (!automaton.dayOfWeekMatches) throw WrongDayOfWeek();
    return automaton.date;
}

TimeOfDay TextToTimeOfDay(ConstData text) {
    TimeAutomaton automaton;
    Parse(text, TimeLanguage::TimeOfDayGrammar(), automaton);
    if (!automaton.timeOfDay.Valid()) throw NoSuchTimeOfDay();
    return automaton.timeOfDay;
}

ZonedTimeOfDay TextToZonedTimeOfDay(ConstData text, TimeZone zone) {
    TimeAutomaton automaton;
    ParseZonedTimeOfDay(text, automaton);
    if (!automaton.hasZone) return ZonedTimeOfDay(automaton.timeOfDay, zone);
    ZonedTimeOfDay time(automaton.timeOfDay, automaton.zone);
    time.SetTimeZone(zone);
    return time;
}

ZonedTimeOfDay TextToZonedTimeOfDay(ConstData text) {
    TimeAutomaton automaton;
    ParseZonedTimeOfDay(text, automaton);
    if (!automaton.hasZone) throw NoTimeZone();
    return ZonedTimeOfDay(automaton.timeOfDay, automaton.zone);
}
