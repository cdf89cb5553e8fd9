#pragma once
// Small X helpers that every dialog shares: placing a shell, letting both mouse buttons drag a
// scrollbar, scrolling a list so that its highlighted row shows, and the texts given to widgets.

#include <X11/Intrinsic.h>

#include <memory>
#include <string>
#include <type_traits>

#include "text/unicode/AutoNullTerminated.h"

// Fills one entry of an argument list, as XtSetArg does. Xt types a resource name as a
// writable char *, while the Athena headers spell their names as string literals; the toolkit
// never writes through a name, so taking it as const here is sound and keeps the literals const.
template <typename Value>
void SetArg(Arg& argument, char const* name, Value value) {
    argument.name = const_cast<String>(name);
    if constexpr (std::is_pointer_v<Value>) {
        argument.value = reinterpret_cast<XtArgVal>(value);
    } else {
        argument.value = static_cast<XtArgVal>(value);
    }
}

// Appends the resources of a read-only text box: an ASCII text of the given size that wraps
// at words, always shows its vertical scrollbar, shows no caret and takes no input. Adds seven
// entries.
void AddReadOnlyTextArguments(Arg* arguments, Cardinal& count, Dimension width, Dimension height);

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

// Lists WM_DELETE_WINDOW among the window-manager protocols of the realized shell, so that a
// close request arrives as a message instead of killing the connection. Only a resource file
// that binds SystemMenuClose makes that message do anything.
void DeclareDeleteWindow(Widget shell);

// Returns the vertical scrollbar of a text widget, or null when it has none. The text widget
// is no composite, so its scrollbars cannot be found by name.
Widget TextVerticalScrollbar(Widget text);
// Gives the vertical scrollbar of a text widget both-button dragging, if the widget has one.
void OverrideTextScrollbarTranslations(Widget text);

// Returns an XtMalloc copy of the text, for the string resource of a text widget. Nobody frees
// these copies: the widget does not, and the dialogs deliberately leave them.
char* TextWidgetString(std::string const& text);

// Tells the agent that the named dialog could not be built (ClientUIErrorMessage with code 2
// and the name), waits for the report to leave, and ends the process with status 0. Each dialog
// calls it from the catch around its build; it never returns.
[[noreturn]] void ReportDialogBuildFailure(char const* dialogName);

// Everything a widget shows is in the locale's multibyte encoding. ControlLiteral renders the
// literal through the translation overrides and converts it to the locale's encoding; each
// dialog keeps the result in a slot of its own for as long as the widget shows it. Throws what
// MakeLocalString throws for a text the locale cannot express.
std::unique_ptr<std::string> ControlLiteral(char const* literal);
// Wraps a text that is already in the locale's encoding; a null text gives the empty string.
std::unique_ptr<std::string> ControlLiteral(AutoNullTerminated<char> const& localText);
// Wraps the literal as it stands, with no overrides and no conversion.
std::unique_ptr<std::string> FunkyControlLiteral(char const* literal);
