#pragma once
// Every way reading XML can fail. None carries data; what() gives the class name.

#include "threads/DebuggableException.h"

// Throws from XMLElement::GetChildElement when no child has the wanted name.
class NoSuchChildElement : public DebuggableException {};

// Throws from XMLElement::GetAttribute when the element has no attribute of the wanted name.
class NoSuchAttribute : public DebuggableException {};

// Throws from SimpleXML::Parse when the text held no element at all.
class FormatError : public DebuggableException {};
