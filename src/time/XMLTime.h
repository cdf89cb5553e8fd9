#pragma once
// The time values in the lexical forms of XML Schema: date-time, date, time and duration. The
// readers are deliberately narrow and each writer emits one exact form.

#include "text/unicode/UString.h"
#include "time/DateRecord.h"
#include "time/Instant.h"
#include "time/TimeInterval.h"
#include "time/TimeOfDay.h"

// Returns the instant of "2000-03-04T07:05:09[.fraction][zone]". The fields stand at fixed
// places and the separators are not looked at; day, hour, minute and second are not range
// checked and simply count forward. The zone is "Z", "+00:00", "-00:00" or a 6-byte "+hh:mm" or
// "-hh:mm"; anything else, no zone included, is read as the local zone at the time of the call.
// Throws InvalidDateTimeNegativeYear for a leading "-", InvalidDateTimeString for a text under 19
// bytes or a month outside 1 to 12, and NotANumeral or NumeralTooLarge for a field that is no
// numeral. Deliberately, a run of 256 bytes or more after a "." that holds no "-", "+" or "Z"
// keeps the 8-bit count of the fraction scan from ending: never pass such text.
Instant XMLDateTimeToInstant(UStringRef<UTF8> text);

// Returns the date of "2000-03-04", read from fixed places with no validation and no zone.
// Throws std::out_of_range ("basic_string::substr") for a text under 8 bytes, and NotANumeral or
// NumeralTooLarge for a field that is no numeral.
DateRecord XMLDateToDateRecord(UStringRef<UTF8> text);

// Returns "2000-03-04T07:05:09+01:00": the instant in the local zone, with that zone; never a
// fraction and never "Z".
AutoUString<UTF8> InstantToXMLDateTime(Instant const& instant);

// Returns "2000-03-04"; a year of more than four digits prints whole.
AutoUString<UTF8> DateRecordToXMLDate(DateRecord const& date);

// Returns "07:05:09", with no zone.
AutoUString<UTF8> TimeOfDayToXMLTime(TimeOfDay const& time);

// Returns the duration in days, hours, minutes and seconds with up to six decimals: "PT0S",
// "-PT1S", "P1DT1H1M1S", "PT1.500000S". The lowest 64-bit interval, which has no absolute value,
// gives "-PT"; it is kept so.
AutoUString<UTF8> TimeIntervalToXMLDuration(TimeInterval const& interval);

// Returns the interval of a duration as XMLDurationParser reads it. Throws ExceptionPL with one of
// its three texts.
TimeInterval XMLDurationToTimeInterval(UStringRef<UTF8> text);
