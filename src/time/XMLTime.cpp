#include "time/XMLTime.h"

#include <cstdint>
#include <stdexcept>
#include <string>

#include "text/bytes/AsciiNumerals.h"
#include "time/TimeErrors.h"
#include "time/TimeObject.h"
#include "time/TimeText.h"
#include "time/TimeZone.h"
#include "time/XMLDurationParser.h"

namespace {

std::uint64_t const microsecondsPerDay = 86400000000ULL;
std::uint64_t const microsecondsPerHour = 3600000000ULL;
std::uint64_t const microsecondsPerMinute = 60000000ULL;
std::uint64_t const microsecondsPerSecond = 1000000ULL;

ConstData Bytes(UStringRef<UTF8> text) {
    return ConstData(text.begin, text.end);
}

// Returns the bytes from offset on, at most count of them, as std::string::substr cuts them;
// throws std::out_of_range past the end.
ConstData Substring(ConstData text, std::size_t offset, std::size_t count) {
    if (offset > text.Size()) throw std::out_of_range("basic_string::substr");
    std::size_t const length = std::min(count, text.Size() - offset);
    return ConstData(text.begin + offset, length);
}

AutoUString<UTF8> MakeText(std::string const& text) {
    auto const* bytes = reinterpret_cast<UTF8::Unit const*>(text.data());
    return MakeUString(bytes, bytes + text.size(), UTF8());
}

std::string DateForm(DateRecord const& date) {
    return MakeString(MakeAsciiDecimalNumeral(date.year, 4)) + "-" +
           MakeString(MakeAsciiDecimalNumeral(date.month, 2)) + "-" +
           MakeString(MakeAsciiDecimalNumeral(date.day, 2));
}

std::string TimeForm(TimeOfDay const& time) {
    return MakeString(TimeOfDayToText(time));
}

}  // namespace

Instant XMLDateTimeToInstant(UStringRef<UTF8> utf8) {
    ConstData const text = Bytes(utf8);
    if (!text.Empty() && text[0] == '-') throw InvalidDateTimeNegativeYear();
    if (text.Size() < 19) throw InvalidDateTimeString();
    DateRecord date;
    date.day = static_cast<std::uint8_t>(ReadAsciiDecimalNumeral(ConstData(text.begin + 8, 2)));
    unsigned long const month = ReadAsciiDecimalNumeral(ConstData(text.begin + 5, 2));
    date.year = static_cast<std::uint32_t>(ReadAsciiDecimalNumeral(ConstData(text.begin, 4)));
    auto const hour =
        static_cast<std::uint8_t>(ReadAsciiDecimalNumeral(ConstData(text.begin + 11, 2)));
    auto const minute =
        static_cast<std::uint8_t>(ReadAsciiDecimalNumeral(ConstData(text.begin + 14, 2)));
    auto const second =
        static_cast<std::uint8_t>(ReadAsciiDecimalNumeral(ConstData(text.begin + 17, 2)));
    if (month < 1 || month > 12) throw InvalidDateTimeString();
    date.month = static_cast<Month>(month);

    static unsigned long const epochDay = DateRecord(1, January, 1970).AbsoluteDay();
    std::uint64_t count = (date.AbsoluteDay() - epochDay) * microsecondsPerDay +
                          hour * microsecondsPerHour + minute * microsecondsPerMinute +
                          second * microsecondsPerSecond;

    ConstData tail(text.begin + 19, text.end);
    if (!tail.Empty() && tail[0] == '.') {
        tail.begin += 1;
        // The count is 8 bits wide, as the form has always had it: a run of 256 bytes or more
        // with no zone sign makes it wrap, and the scan does not end.
        std::uint8_t digits = 0;
        while (digits < tail.Size() && tail[digits] != '-' && tail[digits] != '+' &&
               tail[digits] != 'Z')
            ++digits;
        if (digits > 0) {
            std::size_t const used = digits < 7 ? digits : 7;
            long double fraction = ReadAsciiDecimalNumeral(ConstData(tail.begin, used));
            tail.begin += digits;
            for (std::size_t i = 0; i < used; ++i) fraction /= 10;
            count += static_cast<std::uint64_t>(fraction * 1000000);
        }
    }

    if (tail.Contains('Z') || tail.Contains(ConstData("+00:00")) ||
        tail.Contains(ConstData("-00:00"))) {
        return Instant(static_cast<std::int64_t>(count));
    }
    if ((tail.Contains('+') || tail.Contains('-')) && tail.Size() == 6) {
        unsigned long const hours = ReadAsciiDecimalNumeral(ConstData(tail.begin + 1, 2));
        unsigned long const minutes = ReadAsciiDecimalNumeral(ConstData(tail.begin + 4, 2));
        std::uint64_t const offset = (hours * 3600 + minutes * 60) * microsecondsPerSecond;
        count = tail[0] == '-' ? count + offset : count - offset;
        return Instant(static_cast<std::int64_t>(count));
    }
    count -= static_cast<std::uint64_t>(std::int64_t(TimeZone::Local().seconds) * 1000000);
    return Instant(static_cast<std::int64_t>(count));
}

DateRecord XMLDateToDateRecord(UStringRef<UTF8> utf8) {
    ConstData const text = Bytes(utf8);
    DateRecord date;
    date.year = static_cast<std::uint32_t>(ReadAsciiDecimalNumeral(Substring(text, 0, 4)));
    date.month = static_cast<Month>(ReadAsciiDecimalNumeral(Substring(text, 5, 2)));
    date.day = static_cast<std::uint8_t>(ReadAsciiDecimalNumeral(Substring(text, 8, 2)));
    return date;
}

AutoUString<UTF8> InstantToXMLDateTime(Instant const& instant) {
    TimeObject const reading(instant, TimeZone::Local());
    std::string const zone = MakeString(TimeZoneToText(TimeZone::Local()));
    return MakeText(DateForm(reading.date) + "T" + TimeForm(reading.timeOfDay) + zone.substr(0, 3) +
                    ":" + zone.substr(zone.size() - 2));
}

AutoUString<UTF8> DateRecordToXMLDate(DateRecord const& date) {
    return MakeText(DateForm(date));
}

AutoUString<UTF8> TimeOfDayToXMLTime(TimeOfDay const& time) {
    return MakeText(TimeForm(time));
}

AutoUString<UTF8> TimeIntervalToXMLDuration(TimeInterval const& interval) {
    std::int64_t value = interval.Microseconds();
    if (value == 0) return MakeText("PT0S");
    std::string text;
    if (value < 0) {
        text += "-";
        value = TimeInterval::Wrap(0 - static_cast<std::uint64_t>(value));
    }
    text += "P";
    if (value >= std::int64_t(microsecondsPerDay)) {
        text += MakeString(MakeAsciiDecimalNumeral64(std::uint64_t(value) / microsecondsPerDay, 1));
        text += "D";
        value = std::int64_t(std::uint64_t(value) % microsecondsPerDay);
    }
    if (value == 0) return MakeText(text);
    text += "T";
    // Only the lowest interval is still negative here; it stays "-PT".
    if (value < 0) return MakeText(text);
    std::uint64_t rest = std::uint64_t(value);
    if (rest >= microsecondsPerHour) {
        text += MakeString(MakeAsciiDecimalNumeral64(rest / microsecondsPerHour, 1)) + "H";
        rest %= microsecondsPerHour;
    }
    if (rest >= microsecondsPerMinute) {
        text += MakeString(MakeAsciiDecimalNumeral64(rest / microsecondsPerMinute, 1)) + "M";
        rest %= microsecondsPerMinute;
    }
    if (rest == 0) return MakeText(text);
    text += MakeString(MakeAsciiDecimalNumeral64(rest / microsecondsPerSecond, 1));
    if (rest % microsecondsPerSecond != 0)
        text += "." + MakeString(MakeAsciiDecimalNumeral64(rest % microsecondsPerSecond, 6));
    text += "S";
    return MakeText(text);
}

TimeInterval XMLDurationToTimeInterval(UStringRef<UTF8> text) {
    XMLDurationParser parser;
    for (auto const* unit = text.begin; unit != text.end; ++unit)
        parser.HandleChar(static_cast<char>(*unit));
    if (!parser.Complete()) XMLDurationParser::Fail();
    return TimeInterval(parser.Microseconds());
}
