#pragma once
// The user's hands: pointer clicks and key presses made by the X server itself through the
// XTest extension, so the client under test gets the same events as from a real pointer and
// keyboard, enter and leave events included.

#include <X11/Xlib.h>

#include <string>

// Returns whether the server offers the XTest extension.
bool HasXTest(Display* display);

// Moves the pointer to the root position and presses and releases button 1 there.
void ClickAt(Display* display, int x, int y);

// Presses and releases the key for each character, with Shift where the character needs it.
// Printable ASCII, '\n' (Return) and '\t' (Tab) can be typed. Throws ScenarioError for any
// other character or one the keyboard map has no key for.
void TypeText(Display* display, std::string const& text);
