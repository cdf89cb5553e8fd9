#pragma once
// The failures of the dialogs library.

// Thrown by a redraw of the action dialog when the selected row names an action that is no
// longer pending. An empty type with no base and no text; nothing in the dialogs catches it.
struct NoSelectedAction {};
