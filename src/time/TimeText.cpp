#include "time/TimeText.h"

#include "text/bytes/AsciiNumerals.h"

namespace {

// Copies as much of the piece as fits and drops the rest.
void CopyCut(Buffer& target, ConstData piece) {
    ConstBuffer source(piece);
    target << source;
}

void WriteNumber(Buffer& target, unsigned long value, unsigned long digits) {
    CopyCut(target, MakeAsciiDecimalNumeral(value, digits));
}

void WriteExcelDate(Buffer& target, DateRecord const& date) {
    WriteNumber(target, date.year, 4);
    target.Append(static_cast<unsigned char>('-'));
    WriteNumber(target, date.month, 2);
    target.Append(static_cast<unsigned char>('-'));
    WriteNumber(target, date.day, 2);
}

// Scratch room for a text before its capacity test; longer than any form can get.
unsigned long const scratchSize = 64;

// Writes the value into scratch space and returns it in a text of the capacity, or throws
// ConstDataCapacityExceeded.
template <std::size_t Capacity, class Writer>
FixedCapacityText<Capacity> MakeText(Writer write) {
    unsigned char scratch[scratchSize];
    Buffer target(scratch, scratch + scratchSize);
    write(target);
    return FixedCapacityText<Capacity>(ConstData(scratch, target.cursor));
}

}  // namespace

Buffer& operator<<(Buffer& target, Month month) {
    CopyCut(target, MonthToText(month));
    return target;
}

Buffer& operator<<(Buffer& target, DayOfWeek day) {
    CopyCut(target, DayOfWeekToText(day));
    return target;
}

Buffer& operator<<(Buffer& target, DateRecord const& date) {
    target << date.DayOfWeek();
    target.Append(static_cast<unsigned char>(','));
    target.Append(static_cast<unsigned char>(' '));
    WriteNumber(target, date.day, 2);
    target.Append(static_cast<unsigned char>(' '));
    target << date.month;
    target.Append(static_cast<unsigned char>(' '));
    WriteNumber(target, date.year, 4);
    return target;
}

Buffer& operator<<(Buffer& target, TimeOfDay const& time) {
    WriteNumber(target, time.hour, 2);
    target.Append(static_cast<unsigned char>(':'));
    WriteNumber(target, time.minute, 2);
    target.Append(static_cast<unsigned char>(':'));
    WriteNumber(target, time.second, 2);
    return target;
}

Buffer& operator<<(Buffer& target, TimeZone zone) {
    std::int64_t offset = zone.seconds;
    target.Append(static_cast<unsigned char>(offset >= 0 ? '+' : '-'));
    if (offset < 0) offset = -offset;
    WriteNumber(target, static_cast<unsigned long>(offset / 3600), 2);
    WriteNumber(target, static_cast<unsigned long>(offset / 60 % 60), 2);
    return target;
}

Buffer& operator<<(Buffer& target, TimeObject const& reading) {
    target << reading.date;
    target.Append(static_cast<unsigned char>(' '));
    target << reading.timeOfDay;
    target.Append(static_cast<unsigned char>(' '));
    return target << reading.zone;
}

Buffer& operator<<(Buffer& target, ZonedTimeOfDay const& time) {
    target << time.timeOfDay;
    target.Append(static_cast<unsigned char>(' '));
    return target << time.zone;
}

FixedCapacityText<16> DateToText(DateRecord const& date) {
    return MakeText<16>([&](Buffer& target) { target << date; });
}

FixedCapacityText<10> DateToExcelText(DateRecord const& date) {
    return MakeText<10>([&](Buffer& target) { WriteExcelDate(target, date); });
}

FixedCapacityText<8> TimeOfDayToText(TimeOfDay const& time) {
    return MakeText<8>([&](Buffer& target) { target << time; });
}

FixedCapacityText<5> TimeZoneToText(TimeZone zone) {
    return MakeText<5>([&](Buffer& target) { target << zone; });
}

FixedCapacityText<14> ZonedTimeOfDayToText(ZonedTimeOfDay const& time) {
    return MakeText<14>([&](Buffer& target) { target << time; });
}

FixedCapacityText<31> TimeToText(TimeObject const& reading) {
    return MakeText<31>([&](Buffer& target) { target << reading; });
}

FixedCapacityText<31> TimeToText(Instant instant, TimeZone zone) {
    return TimeToText(TimeObject(instant, zone));
}

FixedCapacityText<19> TimeToExcelText(TimeObject const& reading) {
    return MakeText<19>([&](Buffer& target) {
        WriteExcelDate(target, reading.date);
        target.Append(static_cast<unsigned char>(' '));
        target << reading.timeOfDay;
    });
}
