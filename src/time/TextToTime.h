#pragma once
// Reading the text forms of the time values: "Sat, 04 Mar 2000 07:05:09 +0100" and its
// relatives. Case does not matter, blanks are optional between tokens, the day name, the seconds
// and the zone may be left out, and a two-digit year is one of the 1900s.
//
// Every function throws ParsingFailure for text that does not fit its grammar and StackFull for
// more than six values in waiting; the InvalidTime classes say which part does not exist. Each
// call works on its own stack objects, so the functions may be called from any thread.

#include "text/bytes/ConstData.h"
#include "time/DateRecord.h"
#include "time/TimeObject.h"
#include "time/TimeOfDay.h"
#include "time/TimeZone.h"
#include "time/ZonedTimeOfDay.h"

// Returns the reading converted into the zone; a text without a zone is read as being in that
// zone. Throws NoSuchDate, NoSuchTimeOfDay or WrongDayOfWeek, in that order of tests.
TimeObject TextToTime(ConstData text, TimeZone zone);
// Returns the reading in the text's own zone. Throws as the form above, and NoTimeZone when the
// text has no zone or only a single letter.
TimeObject TextToTime(ConstData text);
// Returns the date of "[Day,] D[D] Mon YY[YY]". Throws NoSuchDate, then WrongDayOfWeek.
DateRecord TextToDate(ConstData text);
// Returns the time of "H[H]:MM[:SS]". Throws NoSuchTimeOfDay.
TimeOfDay TextToTimeOfDay(ConstData text);
// Returns the time of "H[H]:MM[:SS] [zone]" converted into the zone, or taken to be in it when
// the text has none. Throws NoSuchTimeOfDay.
ZonedTimeOfDay TextToZonedTimeOfDay(ConstData text, TimeZone zone);
// Returns the time in the text's own zone. Throws NoSuchTimeOfDay, and NoTimeZone when the text
// has no zone or only a single letter.
ZonedTimeOfDay TextToZonedTimeOfDay(ConstData text);
