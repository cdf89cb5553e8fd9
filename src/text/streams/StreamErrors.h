#pragma once
// The failures of the byte streams. Receivers and filters report bad input through the failures
// of the layer below (DataOverflow, InvalidTextEncoding); only reading can fail on its own.

#include "threads/DebuggableException.h"

// A reader finished before it had filled all the space asked of it.
class NoMoreData : public DebuggableException {};
