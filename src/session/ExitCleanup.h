#pragma once
// Every way the process ends goes through here.

// Destroys the X application context if there is one, sleeps two seconds so that the write
// thread can still send what is queued, and exits with status. The reason is deliberately
// used for nothing: there is no log.
[[noreturn]] void ExitCleanup(int status, char const* reason);
