#include "xml/XMLHandler.h"

XMLHandler::~XMLHandler() = default;

void XMLHandler::DoProcessingInstructionElement(std::string const&, AttributePointers const&) {}
