#include "ScreenCapture.h"

#include <X11/Xutil.h>

#include "ScenarioScript.h"

namespace {

// Returns the 8-bit value of the colour channel under mask.
uint32_t Channel(unsigned long pixel, unsigned long mask) {
    if (mask == 0) return 0;
    while (!(mask & 1)) {
        mask >>= 1;
        pixel >>= 1;
    }
    return static_cast<uint32_t>((pixel & mask) * 255 / mask);
}

}  // namespace

PixelGrid CaptureRectangle(Display* display, ScreenRect const& rectangle) {
    int screen = DefaultScreen(display);
    ScreenRect whole{0, 0, DisplayWidth(display, screen), DisplayHeight(display, screen)};
    ScreenRect area = Intersection(rectangle, whole);
    if (area.width == 0 || area.height == 0) throw ScenarioError("the window lies off the screen");
    Visual* visual = DefaultVisual(display, screen);
    if (visual->c_class != TrueColor && visual->c_class != DirectColor)
        throw ScenarioError("screenshots need a true-colour screen");

    XImage* image = XGetImage(display, DefaultRootWindow(display), area.x, area.y,
                              static_cast<unsigned>(area.width), static_cast<unsigned>(area.height),
                              AllPlanes, ZPixmap);
    if (!image) throw ScenarioError("the X server gave no image of the screen");
    PixelGrid grid;
    grid.width = area.width;
    grid.height = area.height;
    grid.pixels.reserve(static_cast<size_t>(area.width) * area.height);
    for (int y = 0; y < area.height; ++y) {
        for (int x = 0; x < area.width; ++x) {
            unsigned long pixel = XGetPixel(image, x, y);
            grid.pixels.push_back(Channel(pixel, visual->red_mask) << 16 |
                                  Channel(pixel, visual->green_mask) << 8 |
                                  Channel(pixel, visual->blue_mask));
        }
    }
    XDestroyImage(image);
    return grid;
}
