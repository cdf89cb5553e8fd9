#pragma once
// The failures of reading an XML Schema date-time. Neither carries data.

#include "threads/DebuggableException.h"

// The date-time starts with "-": years before year 0 are not read.
class InvalidDateTimeNegativeYear : public DebuggableException {};

// The date-time is shorter than 19 bytes, or its month is not 1 to 12.
class InvalidDateTimeString : public DebuggableException {};
