#include "text/ExceptionPL.h"
