#pragma once
// Routines run at the end of every PortableThread, in the order of registration. The list is
// process-wide and takes no lock; routines are never removed.
//
// Threads: registrations must not overlap each other (one registering thread, or callers that
// take turns), but may run while other threads finish and walk the list. A thread that finishes
// after a registration returned runs that routine; one that finishes during it may or may not.

// Appends a routine to the process-wide list. The first five need no allocation.
void AtThreadExit(void (*routine)());

// Calls every registered routine, oldest first, on the calling thread.
void DoThreadExitRoutines();
