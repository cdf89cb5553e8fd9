#pragma once
// The failures of reading a time: the text named a date, time of day, day of the week or zone
// that does not hold. None of them carries data; the class says what went wrong.

#include "threads/DebuggableException.h"

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
