#include "xml/XMLReceiver.h"

XMLReceiver::~XMLReceiver() = default;

void XMLReceiver::StartElement(UStringRef<UTF8>, AttributeMap const&) {}
void XMLReceiver::EndElement() {}
void XMLReceiver::Characters(UStringRef<UTF8>) {}
