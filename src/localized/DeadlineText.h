#pragma once
// The short phrases the dialogs show for times and numbers: how far off a deadline is, a local
// date and time, the name of a weekday, a plain number. Every phrase is a format string, so a
// translation file can replace each of them. The platform group stands in UnixPlatform.

#include "text/unicode/UString.h"
#include "time/DateRecord.h"
#include "time/Instant.h"
#include "time/Month.h"
#include "time/TimeInterval.h"
#include "time/TimeOfDay.h"

// Returns the wording of the time from now to the deadline; see the interval form.
AutoUString<UTF8> FormattedDeadline(Instant const& deadline, Instant const& now, bool forceRun,
                                    bool fromNow);
// Returns the wording of the interval: "Overdue" when past (under forceRun "Running..." from now,
// else "0 seconds", a key of its own); up to five minutes "Now", or under forceRun minutes and
// seconds; then whole minutes up to an hour, rounded hours up to a day, and rounded days. A value
// on a threshold belongs to the lower range, and a remainder of exactly half rounds down. With
// fromNow every phrase that tells a time becomes "{time} from now".
AutoUString<UTF8> FormattedDeadline(TimeInterval const& interval, bool forceRun, bool fromNow);

// Returns the decimal digits of the number, as UnixPlatform::FormattedNumber does.
AutoUString<UTF8> FormattedNumber(unsigned long long number);

namespace UnixPlatform {

// Returns the decimal digits of the number: no grouping, no sign, no locale digits; 0 is "0".
AutoUString<UTF8> FormattedNumber(unsigned long long number);
// Returns the digits as UTF-8. The second argument has no effect. Throws InvalidTextEncoding for
// a byte above 0x7F.
AutoUString<UTF8> FormattedNumber(UStringRef<USAscii> digits, unsigned long flags);

// Return "07:05:09" and "Sat, 04 Mar 2000": fixed layouts that don't change with the locale.
AutoUString<UTF8> FormattedTimeOfDay(TimeOfDay const& time);
AutoUString<UTF8> FormattedDateRecord(DateRecord const& date);
// Returns "{date} {time}" of the instant read in the local zone.
AutoUString<UTF8> FormattedLocalTime(Instant const& instant);
// Return "Sunday" to "Saturday", and "Sun" to "Sat"; "???" for a value that is no day.
AutoUString<UTF8> FormattedLongDayOfWeek(DayOfWeek const& day);
AutoUString<UTF8> FormattedShortDayOfWeek(DayOfWeek const& day);

}  // namespace UnixPlatform
