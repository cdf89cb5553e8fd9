#pragma once
// Small X helpers that every dialog shares: placing a shell, letting both mouse buttons drag a
// scrollbar, and scrolling a list so that its highlighted row shows.

#include <X11/Intrinsic.h>

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
