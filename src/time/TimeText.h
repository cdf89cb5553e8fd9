#pragma once
// The text forms of the time values: "Sat, 04 Mar 2000 07:05:09 -0530" and its parts, and the
// spreadsheet form "2000-03-04 07:05:09".
//
// The stream operators write into a Buffer: a separator byte that finds the buffer full throws
// DataOverflow, while a copied name or number that does not fit is cut to the room left. The
// text functions return a fixed-capacity text and throw ConstDataCapacityExceeded when the
// result is longer; a year of five digits is the way to reach that.

#include "text/bytes/ConstData.h"
#include "text/bytes/FixedCapacityText.h"
#include "time/DateRecord.h"
#include "time/Instant.h"
#include "time/Month.h"
#include "time/TimeObject.h"
#include "time/TimeOfDay.h"
#include "time/TimeZone.h"
#include "time/ZonedTimeOfDay.h"

// Write the short name.
Buffer& operator<<(Buffer& target, Month month);
Buffer& operator<<(Buffer& target, DayOfWeek day);
// Writes "Sat, 04 Mar 2000".
Buffer& operator<<(Buffer& target, DateRecord const& date);
// Writes "07:05:09".
Buffer& operator<<(Buffer& target, TimeOfDay const& time);
// Writes "-0530": the sign, then hours and minutes of the offset; seconds are dropped.
Buffer& operator<<(Buffer& target, TimeZone zone);
// Writes "Sat, 04 Mar 2000 07:05:09 -0530".
Buffer& operator<<(Buffer& target, TimeObject const& reading);
// Writes "07:05:09 -0530".
Buffer& operator<<(Buffer& target, ZonedTimeOfDay const& time);

// Returns "Sat, 04 Mar 2000": day name, day in 2 digits, month name, year in at least 4 digits.
FixedCapacityText<16> DateToText(DateRecord const& date);
// Returns "2000-03-04".
FixedCapacityText<10> DateToExcelText(DateRecord const& date);
// Returns "07:05:09".
FixedCapacityText<8> TimeOfDayToText(TimeOfDay const& time);
// Returns "+0000" for an offset of 0 and above, "-0530" below; "-0000" for -1 second.
FixedCapacityText<5> TimeZoneToText(TimeZone zone);
// Returns "07:05:09 -0530".
FixedCapacityText<14> ZonedTimeOfDayToText(ZonedTimeOfDay const& time);
// Returns "Sat, 04 Mar 2000 07:05:09 -0530".
FixedCapacityText<31> TimeToText(TimeObject const& reading);
// Returns the same form of the instant read in the zone.
FixedCapacityText<31> TimeToText(Instant instant, TimeZone zone);
// Returns "2000-03-04 07:05:09", with no zone.
FixedCapacityText<19> TimeToExcelText(TimeObject const& reading);
