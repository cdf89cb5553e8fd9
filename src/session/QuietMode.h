#pragma once
// The agent's announcements of quiet mode, during which no deadline is answered by the process
// itself: "QuietModeStart" with the announced times, and "QuietModeEnd", which has no content.

#include "time/TimeObject.h"

class XMLElement;

struct QuietModeStart {
    TimeObject m_startTime;
    TimeObject m_endTime;
};

struct QuietModeEnd {};

// Loads "StartTime" and "EndTime". Throws what the time form throws.
void XMLSerialize(XMLElement const& element, QuietModeStart& start);
