#pragma once
// The reader of XML Schema durations of days, hours, minutes and seconds, one character at a
// time: "-P1DT2H3M4.5S". Years, months and weeks are refused. It lives on its caller's stack for
// the length of one conversion.

#include <cstdint>
#include <set>

#include "text/bytes/NullOr.h"

class XMLDurationParser {
  public:
    // Expects "-" or "P" first.
    XMLDurationParser();

    // Takes the next character. Throws ExceptionPL with the general text when it is not
    // acceptable here, with the overflow text when a number passes 32 bits, and with the
    // precision text when a fraction has more than six digits.
    void HandleChar(char c);
    // Throws ExceptionPL with the general text.
    [[noreturn]] static void Fail();

    // Returns whether the text read so far is a whole duration.
    bool Complete() const { return complete && !digitsSeen && !inFraction; }
    // Returns the duration in microseconds: the 64-bit sum of the given fields, wrapping rather
    // than failing on overflow, and negated for a leading "-".
    std::int64_t Microseconds() const;

  private:
    void ResetNumber();

    std::set<char> allowedCharacters;
    bool digitsAllowed;
    bool digitsSeen;
    std::uint32_t number;
    bool complete;
    std::uint32_t wholeSeconds;
    bool inFraction;
    // 10 to the power of the digits read, held at the first value above 1000000 so that a long
    // fraction cannot wrap it round to zero; only "above 1000000" is asked of it then.
    std::uint32_t fractionScale;
    bool negative;
    NullOr<std::uint32_t> days;
    NullOr<std::uint32_t> hours;
    NullOr<std::uint32_t> minutes;
    NullOr<std::uint32_t> seconds;
    NullOr<std::uint32_t> microseconds;
};
