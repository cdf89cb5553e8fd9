#pragma once
// A stack in storage of fixed size had no room for one more element.

#include "threads/DebuggableException.h"

class StackFull : public DebuggableException {};
