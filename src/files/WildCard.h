#pragma once
// The one wildcard matcher of the file layer, shared by file names and directory loops.

// Returns whether the zero-terminated name matches the zero-terminated pattern. Case-sensitive;
// "?" matches one character and "*" any run, a "*" at the pattern's end matching at once.
bool MatchesWildCard(char const* name, char const* pattern);
