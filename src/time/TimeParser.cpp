#include "time/TimeParser.h"

TimeParser::TimeParser(TimeRPNSemantics& s, TimeLanguage::TimeGrammar const& grammar)
    : nodes(),
      semantics(s),
      parser(grammar, s, Data(reinterpret_cast<unsigned char*>(nodes), sizeof nodes)) {}

void TimeParser::Reset() {
    parser.Reset();
    semantics.Reset();
}

void TimeParser::AcceptEnd(unsigned long) {
    parser.AcceptEnd();
}

void TimeParser::Token(TimeLanguage::PartOfSpeech part, long value) {
    parser.Append(part);
    semantics.PushNumber(value);
    parser.Shift();
}

void TimeParser::AcceptReservedWord(Range<unsigned long>, TimeParsingAction action) {
    Token(action.part, action.value);
}

void TimeParser::AcceptOrdinaryWord(Range<unsigned long>, ConstData) {
    throw ParsingFailure();
}

void TimeParser::AcceptWordOverflow(Range<unsigned long>) {
    throw ParsingFailure();
}

void TimeParser::AcceptOneDigit(unsigned long value) {
    Token(TimeLanguage::OneDigit, static_cast<long>(value));
}

void TimeParser::AcceptTwoDigits(unsigned long value) {
    Token(TimeLanguage::TwoDigits, static_cast<long>(value));
}

void TimeParser::AcceptThreeDigits(unsigned long value) {
    Token(TimeLanguage::ThreeDigits, static_cast<long>(value));
}

void TimeParser::AcceptFourDigits(unsigned long value) {
    Token(TimeLanguage::FourDigits, static_cast<long>(value));
}

void TimeParser::AcceptOtherNumeral() {
    throw ParsingFailure();
}

void TimeParser::AcceptCharacter(Range<unsigned long>, unsigned char character) {
    TimeLanguage::PartOfSpeech part;
    switch (character) {
        case '+':
            part = TimeLanguage::Plus;
            break;
        case ',':
            part = TimeLanguage::Comma;
            break;
        case '-':
            part = TimeLanguage::Minus;
            break;
        case ':':
            part = TimeLanguage::Colon;
            break;
        default:
            throw ParsingFailure();
    }
    parser.Append(part);
    parser.Shift();
}
