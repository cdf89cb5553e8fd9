#pragma once
// Readings of the present moment; TimeZone::Local, the offset of the local zone now, is
// defined with them.

#include "time/DateRecord.h"
#include "time/TimeObject.h"
#include "time/TimeZone.h"

// Returns the present moment in the local zone.
TimeObject NowLocalTime();
// Returns the present moment at zone +0000.
TimeObject NowGMT();
// Returns the date of the present moment in the zone.
DateRecord Today(TimeZone zone);
