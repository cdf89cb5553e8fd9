#pragma once
// Turns a bare process into a session with the agent's first document: the session directory
// emptied (or made) and filled with the support files, the translation files among them
// chosen by the user's locale and added, the reminder state taken over, and initialized set as
// the very last step.

struct InitializationInfo;

// Checks the base directory and the support files first, and refuses the document before
// anything is deleted or made when the directory is not absolute, has a "." or ".." component,
// a symbolic link or a non-directory among its components, or is too long (PATH_MAX bytes with
// its terminator, NAME_MAX for one component), or when a support file has no name, a name or
// sub-folder that is no name, or a path too long; each refusal writes one trace line that says
// why. Then empties the base directory, or makes it owner-only (0700) with its missing parents
// made by the umask, writes each support file flat into it by its name (owner-only, 0600; the
// sub-folder plays no part), adds the translation files among them, takes over the remind time
// when present, the remind interval and whether snoozing is allowed, and sets initialized.
// With UseLocale the character type is taken from the environment (setlocale(LC_CTYPE, "")),
// international is set unless that is the plain locale, and its name without the character set
// ("fr_CA") and its language ("fr") choose the files; without it only "_brand.xlat" can count.
// A brand file of the locale is added instead of "_brand.xlat", then the general file of the
// locale, which is asked first. Names are compared ignoring ASCII case; a file with a
// sub-folder is never chosen.
// Throws SessionDirectoryRefused (SessionDirectoryIsLink for a link) and SupportFileRefused
// for a refusal, NoCharacterTypeLocale for a locale the system lacks, and what the file
// operations and AddTranslationFile throw. initialized then stays false and the steps done so
// far stay done.
void ProcessInitializationInfo(InitializationInfo const& info);
