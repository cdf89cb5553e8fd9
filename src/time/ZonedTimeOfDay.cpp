#include "time/ZonedTimeOfDay.h"

bool operator==(ZonedTimeOfDay first, ZonedTimeOfDay const& second) {
    first.SetTimeZone(second.zone);
    return first.timeOfDay == second.timeOfDay;
}
