#pragma once
// Small X helpers that every dialog shares: placing a shell, letting both mouse buttons drag a
// scrollbar, scrolling a list so that its highlighted row shows, and the texts given to widgets.

#include <X11/Intrinsic.h>

#include <memory>
#include <string>

#include "text/unicode/AutoNullTerminated.h"

// Moves the shell so that it stands in the middle of the default screen of its display, from
// its current width and height, dividing toward zero. Call it after realizing; a window
// manager may still place the window otherwise.
void CenterDialogOnDisplay(Widget shell);

// Makes the left and the right button both drag the scrollbar's thumb, continuously.
void OverrideScrollbarTranslations(Widget scrollbar);

// Jumps the viewport's vertical scrollbar to the fraction of the list where its highlighted
// row stands, which puts that row at the top of the view as far as the list allows. Does
// nothing when no row is highlighted or the viewport has no vertical scrollbar.
void ScrollSelectedItemIntoView(Widget viewport, Widget list);

// Everything a widget shows is in the locale's multibyte encoding. ControlLiteral renders the
// literal through the translation overrides and converts it to the locale's encoding; each
// dialog keeps the result in a slot of its own for as long as the widget shows it. Throws what
// MakeLocalString throws for a text the locale cannot express.
std::unique_ptr<std::string> ControlLiteral(char const* literal);
// Wraps a text that is already in the locale's encoding; a null text gives the empty string.
std::unique_ptr<std::string> ControlLiteral(AutoNullTerminated<char> const& localText);
// Wraps the literal as it stands, with no overrides and no conversion.
std::unique_ptr<std::string> FunkyControlLiteral(char const* literal);
