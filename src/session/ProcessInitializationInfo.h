#pragma once
// Turns a bare process into a session with the agent's first document: the session directory
// emptied (or made) and filled with the support files, the reminder state taken over, and
// initialized set as the very last step.

struct InitializationInfo;

// Empties the base directory, or makes it with its missing parents (owner-only, 0700), writes
// each support file flat into it by its name (owner-only, 0600; the sub-folder plays no part),
// takes over the remind time when present, the remind interval and whether snoozing is
// allowed, and sets initialized. Throws what its steps throw, SessionDirectoryIsLink for a base
// directory that is itself a symbolic link, and IllegalFileNameLength for a support file
// without a name; initialized then stays false and the steps done so far stay done.
void ProcessInitializationInfo(InitializationInfo const& info);
