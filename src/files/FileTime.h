#pragma once
// File times are whole seconds of the Unix clock; these convert them to and from Instant through
// 64-bit microseconds.

#include "time/Instant.h"

// Returns the whole seconds of the instant, rounded down, so that a time before 1970 stays at or
// before the instant.
long long InstantToFileTime(Instant const& time);
// Returns the instant of a file time in seconds.
Instant FileTimeToInstant(long long const& seconds);
