#include "time/Clocks.h"

TimeObject NowLocalTime() {
    return TimeObject(Instant::Now(), TimeZone::Local());
}

TimeObject NowGMT() {
    return TimeObject(Instant::Now(), TimeZone());
}

DateRecord Today(TimeZone zone) {
    return TimeObject(Instant::Now(), zone).date;
}
