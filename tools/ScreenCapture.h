#pragma once
// Reading what the screen shows, as a grid of 0xRRGGBB pixels.

#include <X11/Xlib.h>

#include "RowBands.h"
#include "XWindowTree.h"

// Returns the pixels of the rectangle as the screen shows them, overlapping windows included,
// cut to the screen. Throws ScenarioError if the rectangle lies off the screen, if the server
// refuses the image, or if the root visual is not a true- or direct-colour one.
PixelGrid CaptureRectangle(Display* display, ScreenRect const& rectangle);
