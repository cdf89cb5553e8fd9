#include "time/XMLDurationParser.h"

#include "text/bytes/BytesErrors.h"

namespace {

char const generalFailure[] = "Could not convert XMLDuration to TimeInterval";
char const overflowFailure[] =
    "Could not convert XMLDuration to TimeInterval due to integer overflow.";
char const precisionFailure[] =
    "Could not convert XMLDuration to TimeInterval: cannot handle more than microsecond "
    "precision.";

std::uint32_t const microsecondsPerSecond = 1000000;

std::uint64_t ValueOf(NullOr<std::uint32_t> const& field) {
    return field.IsNull() ? 0 : *field;
}

}  // namespace

XMLDurationParser::XMLDurationParser()
    : allowedCharacters{'-', 'P'},
      digitsAllowed(false),
      digitsSeen(false),
      number(0),
      complete(false),
      wholeSeconds(0),
      inFraction(false),
      fractionScale(1),
      negative(false) {}

void XMLDurationParser::Fail() {
    throw ExceptionPL(generalFailure);
}

void XMLDurationParser::ResetNumber() {
    digitsSeen = false;
    number = 0;
    fractionScale = 1;
}

void XMLDurationParser::HandleChar(char c) {
    bool const digit = c >= '0' && c <= '9';
    if (!allowedCharacters.count(c) && !(digitsAllowed && digit)) Fail();
    if (digit) {
        digitsSeen = true;
        std::uint64_t const next = std::uint64_t(number) * 10 + std::uint32_t(c - '0');
        if (next > UINT32_MAX) throw ExceptionPL(overflowFailure);
        number = static_cast<std::uint32_t>(next);
        if (fractionScale <= microsecondsPerSecond) fractionScale *= 10;
        return;
    }
    switch (c) {
        case '-':
            negative = true;
            allowedCharacters.erase('-');
            break;
        case 'P':
            digitsAllowed = true;
            ResetNumber();
            allowedCharacters = {'D', 'T'};
            break;
        case 'D':
            if (!digitsSeen) Fail();
            days = number;
            complete = true;
            digitsAllowed = false;
            ResetNumber();
            allowedCharacters.erase('D');
            break;
        case 'T':
            if (digitsSeen) Fail();
            complete = false;
            digitsAllowed = true;
            ResetNumber();
            allowedCharacters = {'H', 'M', '.', 'S'};
            break;
        case 'H':
            if (!digitsSeen) Fail();
            hours = number;
            complete = true;
            digitsAllowed = true;
            ResetNumber();
            allowedCharacters.erase('H');
            break;
        case 'M':
            if (!digitsSeen) Fail();
            minutes = number;
            complete = true;
            digitsAllowed = true;
            ResetNumber();
            allowedCharacters.erase('H');
            allowedCharacters.erase('M');
            break;
        case '.':
            if (!digitsSeen) Fail();
            wholeSeconds = number;
            inFraction = true;
            digitsAllowed = true;
            ResetNumber();
            allowedCharacters.erase('H');
            allowedCharacters.erase('M');
            allowedCharacters.erase('.');
            break;
        case 'S':
            if (!digitsSeen) Fail();
            if (inFraction) {
                seconds = wholeSeconds;
                if (fractionScale > microsecondsPerSecond) throw ExceptionPL(precisionFailure);
                microseconds = (microsecondsPerSecond / fractionScale) * number;
            } else {
                seconds = number;
            }
            complete = true;
            inFraction = false;
            digitsAllowed = false;
            ResetNumber();
            allowedCharacters.clear();
            break;
        default:
            Fail();
    }
}

std::int64_t XMLDurationParser::Microseconds() const {
    std::uint64_t const sum = ValueOf(days) * 86400000000ULL + ValueOf(hours) * 3600000000ULL +
                              ValueOf(minutes) * 60000000ULL + ValueOf(seconds) * 1000000ULL +
                              ValueOf(microseconds);
    return static_cast<std::int64_t>(negative ? 0 - sum : sum);
}
