#pragma once
// Unique names for new files and directories. A unique file is reserved by creating it empty; a
// unique directory is created. The "temporary" forms give back a free name instead.

#include "files/FileLocation.h"

// Return a new empty file (directory) named prefix followed by six random characters in the
// directory. Throw CreateUniqueFileLocationFailed, whose code is 0 for a file and 1 for a
// directory, when it can't be made. The prefix may be null.
FileLocation CreateUniqueFileLocation(FileLocation const& directory, char const* prefix);
FileLocation CreateUniqueDirLocation(FileLocation const& directory, char const* prefix);
// The same in TemporaryFileDirLocation(), which is made first if need be.
FileLocation CreateUniqueFileLocation(char const* prefix);
// The same in hint if that is an existing directory, else in hint's parent.
FileLocation CreateUniqueFileLocationWithHint(FileLocation const& hint, char const* prefix);

// Return a free name with the prefix "temp" in TemporaryFileDirLocation() (in or beside hint):
// the unique file is made and removed again, so the name is free when returned.
FileLocation LocationForTemporaryFile();
FileLocation LocationForTemporaryFile(FileLocation const& hint);

// Stores a new unique file in TemporaryFileDirLocation() with the prefix ("ketral" when null)
// and returns true; returns false, and throws nothing, when that fails.
bool MakeTemporaryFileLocation(FileLocation& result, char const* prefix);
