#pragma once
// Routines run at the end of every PortableThread, in the order of registration. The list is
// process-wide and takes no lock: register routines before threads start.

// Appends a routine to the process-wide list.
void AtThreadExit(void (*routine)());

// Calls every registered routine, oldest first.
void DoThreadExitRoutines();
