#include "localized/DeadlineText.h"

#include <cstdint>

#include "localized/UFormat.h"
#include "text/bytes/AsciiNumerals.h"
#include "text/bytes/ConstData.h"
#include "text/unicode/Transcode.h"
#include "time/TimeObject.h"
#include "time/TimeText.h"
#include "time/TimeZone.h"

namespace {

std::int64_t const second = 1000000;
std::int64_t const minute = 60 * second;
std::int64_t const hour = 60 * minute;
std::int64_t const day = 24 * hour;
std::int64_t const fiveMinutes = 5 * minute;

AutoUString<UTF8> Phrase(char const* text) {
    return MakeUString(UFormat(text));
}

AutoUString<UTF8> Phrase(char const* text, std::int64_t number) {
    AutoUString<UTF8> const digits = FormattedNumber(static_cast<unsigned long long>(number));
    return MakeUString(UFormat(text).With(digits));
}

AutoUString<UTF8> Phrase(char const* text, std::int64_t first, std::int64_t next) {
    AutoUString<UTF8> const a = FormattedNumber(static_cast<unsigned long long>(first));
    AutoUString<UTF8> const b = FormattedNumber(static_cast<unsigned long long>(next));
    return MakeUString(UFormat(text).With(a).With(b));
}

// Returns the count of whole units, one more when the remainder is above half a unit.
std::int64_t Rounded(std::int64_t microseconds, std::int64_t unit) {
    return microseconds / unit + (microseconds % unit > unit / 2 ? 1 : 0);
}

AutoUString<UTF8> MinutesAndSeconds(std::int64_t microseconds) {
    std::int64_t const minutes = microseconds / minute;
    std::int64_t const seconds = (microseconds % minute) / second;
    if (minutes == 0) {
        return seconds == 1 ? Phrase("1 second") : Phrase("{seconds} seconds", seconds);
    }
    if (minutes == 1) {
        return seconds == 1 ? Phrase("1 minute, 1 second")
                            : Phrase("1 minute, {seconds} seconds", seconds);
    }
    return seconds == 1 ? Phrase("{minutes} minutes, 1 second", minutes)
                        : Phrase("{minutes} minutes, {seconds} seconds", minutes, seconds);
}

// Returns the ASCII text as UTF-8.
AutoUString<UTF8> FromAscii(ConstData text) {
    return Transcode<UTF8, USAscii>(UStringRef<USAscii>(text.begin, text.end));
}

}  // namespace

AutoUString<UTF8> FormattedDeadline(Instant const& deadline, Instant const& now, bool forceRun,
                                    bool fromNow) {
    return FormattedDeadline(deadline - now, forceRun, fromNow);
}

AutoUString<UTF8> FormattedDeadline(TimeInterval const& interval, bool forceRun, bool fromNow) {
    std::int64_t const span = interval.Microseconds();
    if (span < 0) {
        if (!forceRun) return Phrase("Overdue");
        if (fromNow) return Phrase("Running...");
        // A phrase of its own, not "{seconds} seconds" with 0, so that a translation file can
        // word a deadline already past; the same "0 seconds" reached under a second ahead
        // stays the counting form.
        return Phrase("0 seconds");
    }
    AutoUString<UTF8> text;
    if (span <= fiveMinutes) {
        if (!forceRun) return Phrase("Now");
        text = MinutesAndSeconds(span);
    } else if (span <= hour) {
        text = Phrase("{minutes} minutes", span / minute);
    } else if (span <= day) {
        std::int64_t const hours = Rounded(span, hour);
        text = hours == 1 ? Phrase("1 hour") : Phrase("{hours} hours", hours);
    } else {
        std::int64_t const days = Rounded(span, day);
        text = days == 1 ? Phrase("1 day") : Phrase("{days} days", days);
    }
    if (!fromNow) return text;
    return MakeUString(UFormat("{time} from now").With(text));
}

AutoUString<UTF8> FormattedNumber(unsigned long long number) {
    return UnixPlatform::FormattedNumber(number);
}

namespace UnixPlatform {

AutoUString<UTF8> FormattedNumber(unsigned long long number) {
    FixedCapacityText<20> const digits = MakeAsciiDecimalNumeral64(number, 1);
    ConstData const bytes(digits);
    return FormattedNumber(UStringRef<USAscii>(bytes.begin, bytes.end), 0);
}

AutoUString<UTF8> FormattedNumber(UStringRef<USAscii> digits, unsigned long) {
    return Transcode<UTF8, USAscii>(digits);
}

AutoUString<UTF8> FormattedTimeOfDay(TimeOfDay const& time) {
    return FromAscii(TimeOfDayToText(time));
}

AutoUString<UTF8> FormattedDateRecord(DateRecord const& date) {
    return FromAscii(DateToText(date));
}

AutoUString<UTF8> FormattedLocalTime(Instant const& instant) {
    TimeObject const reading(instant, TimeZone::Local());
    AutoUString<UTF8> const date = FormattedDateRecord(reading.date);
    AutoUString<UTF8> const time = FormattedTimeOfDay(reading.timeOfDay);
    return MakeUString(UFormat("{date} {time}").With(date).With(time));
}

AutoUString<UTF8> FormattedLongDayOfWeek(DayOfWeek const& day) {
    switch (day) {
        case Sunday:
            return Phrase("Sunday");
        case Monday:
            return Phrase("Monday");
        case Tuesday:
            return Phrase("Tuesday");
        case Wednesday:
            return Phrase("Wednesday");
        case Thursday:
            return Phrase("Thursday");
        case Friday:
            return Phrase("Friday");
        case Saturday:
            return Phrase("Saturday");
    }
    return Phrase("???");
}

AutoUString<UTF8> FormattedShortDayOfWeek(DayOfWeek const& day) {
    switch (day) {
        case Sunday:
            return Phrase("Sun");
        case Monday:
            return Phrase("Mon");
        case Tuesday:
            return Phrase("Tue");
        case Wednesday:
            return Phrase("Wed");
        case Thursday:
            return Phrase("Thu");
        case Friday:
            return Phrase("Fri");
        case Saturday:
            return Phrase("Sat");
    }
    return Phrase("???");
}

}  // namespace UnixPlatform
