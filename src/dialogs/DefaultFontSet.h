#pragma once
// Makes sure that the toolkit finds a usable default font set before the first widget is
// made. Without one, the first dialog would end the process with the fatal "noFont" warning.

#include <X11/Xlib.h>

#include <string>

// Leaves the database of the display in `display` alone if its "xtDefaultFontSet" resource, or
// failing that the toolkit's own fallback pattern, gives a font set. Otherwise writes the
// smallest font set that SmallestListedFontSet finds as "XtDefaultFontSet"; when there is none
// it returns without complaint and the database stays as it was.
void ConfigValidDefaultFontSet();

// Returns whether XCreateFontSet makes a font set of the base font name list, and stores the
// height of its largest logical extent in height when one is asked for. Frees the font set and
// the list of missing charsets.
bool FontSetCreates(Display* display, char const* baseFontNames, unsigned* height = nullptr);

// Returns the value of the default font set resource in the database of the display when it
// has the toolkit's String type, and null otherwise. The text belongs to the database.
char const* DatabaseDefaultFontSet(Display* display);

// Lists the server's upright 12-point fonts and returns the smallest candidate among them, as
// SmallestFontSetCandidate does; empty if none makes a font set.
std::string SmallestListedFontSet(Display* display);

// Returns, of the font names in the given order, the candidate font set whose largest logical
// extent is the lowest, the first of equal heights; empty if none makes a font set. A name's
// candidate is the name up to and including its 13th "-" followed by "*,*": its registry and
// encoding wildcarded, and a catch-all pattern behind it. Names with fewer dashes are skipped,
// and each candidate is tried once. The smallest wins on purpose: height is the only measure.
std::string SmallestFontSetCandidate(Display* display, char const* const* names, int count);
