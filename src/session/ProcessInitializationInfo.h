#pragma once
// Turns a bare process into a session with the agent's first document: the session directory
// emptied (or made) and filled with the support files, the translation files among them
// chosen by the user's locale and added, the reminder state taken over, and initialized set as
// the very last step.

struct InitializationInfo;

// Empties the base directory, or makes it with its missing parents (owner-only, 0700), writes
// each support file flat into it by its name (owner-only, 0600; the sub-folder plays no part),
// adds the translation files among them, takes over the remind time when present, the remind
// interval and whether snoozing is allowed, and sets initialized.
// With UseLocale the character type is taken from the environment (setlocale(LC_CTYPE, "")),
// international is set unless that is the plain locale, and its name without the character set
// ("fr_CA") and its language ("fr") choose the files; without it only "_brand.xlat" can count.
// A brand file of the locale is added instead of "_brand.xlat", then the general file of the
// locale, which is asked first. Names are compared ignoring ASCII case; a file with a
// sub-folder is never chosen.
// Throws what its steps throw: SessionDirectoryIsLink for a base directory that is itself a
// symbolic link, IllegalFileNameLength for a support file without a name,
// NoCharacterTypeLocale for a locale the system lacks, what AddTranslationFile throws.
// initialized then stays false and the steps done so far stay done.
void ProcessInitializationInfo(InitializationInfo const& info);
