#include "session/ReadyForData.h"

char const* const ReadyForData::rootElementName = "ClientToUI";
char const* const ReadyForData::messageElementName = "ReadyForData";

void XMLSerialize(XMLWriter&, ReadyForData&) {}
