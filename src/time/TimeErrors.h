#pragma once
// Every way reading a time can fail. None of these carries data; the class says what went wrong.

#include "threads/DebuggableException.h"

// The text does not fit the grammar: an unknown or overlong word, a numeral of five digits or
// more, a stray character, a missing piece or text after the end.
class ParsingFailure : public DebuggableException {};

// Root of the failures of time values that parse but do not exist.
class InvalidTime : public DebuggableException {};

// The hour, minute or second is out of range.
class NoSuchTimeOfDay : public InvalidTime {};

// The date does not exist, such as 31 Feb or day 0.
class NoSuchDate : public InvalidTime {};

// The day name does not fit the date.
class WrongDayOfWeek : public InvalidTime {};

// A zone was required and the text has none, or only a single letter.
class NoTimeZone : public InvalidTime {};

// The XML Schema date-time starts with "-": years before year 0 are not read.
class InvalidDateTimeNegativeYear : public DebuggableException {};

// The XML Schema date-time is shorter than 19 bytes, or its month is not 1 to 12.
class InvalidDateTimeString : public DebuggableException {};
