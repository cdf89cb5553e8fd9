// Sanitizer settings for test programs that use the X libraries, compiled into each of them.
//
// Debian builds libXt and libXaw without frame pointers, so the fast unwinder stops inside them
// and a leak report could not name the library function that allocated; the slow one can.
//
// Three allocations of the libraries are lost on paths this program takes on purpose:
// - libXaw attaches an input-method record to every shell, freed only when the shell is
//   destroyed; closing the display does not destroy widgets, and every process ends by
//   destroying its application context with its dialogs still up.
// - libXt takes a timer's record off its queue before the callback and puts it back on its free
//   list after; a callback that throws never comes back, and that is how an exception from the
//   tick reaches the catch around the main loop.
// - libXt copies the display name before it tries to open the display, and loses the copy when
//   the display cannot be opened; the program then ends at once.
// - libXaw's multibyte text source keeps a wide copy of a text widget's initial string that it
//   never frees.
//
// And one of the dialogs': the copy of the text that a text widget's string resource is given
// is never freed, by the widget or by the dialogs (TextWidgetString).

extern "C" char const* __asan_default_options() {
    return "fast_unwind_on_malloc=0";
}

extern "C" char const* __lsan_default_suppressions() {
    return "leak:_XawImInitialize\n"
           "leak:XtAppAddTimeOut\n"
           "leak:XtOpenDisplay\n"
           "leak:_XawTextMBToWC\n"
           "leak:TextWidgetString\n";
}
