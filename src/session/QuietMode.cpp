#include "session/QuietMode.h"

#include "xml/XMLLoad.h"

void XMLSerialize(XMLElement const& element, QuietModeStart& start) {
    XMLSerialize(element, "StartTime", start.m_startTime);
    XMLSerialize(element, "EndTime", start.m_endTime);
}
