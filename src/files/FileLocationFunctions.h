#pragma once
// The free functions over locations: making them from texts, ancestry, free space, the write
// bits, and the fixed places of this program.

#include <cstdint>
#include <string>

#include "files/FileLocation.h"
#include "text/bytes/ConstData.h"
#include "text/unicode/UString.h"

// Returns whether the text is non-null and begins with "/".
bool IsAbsolutePath(char const* path);

// Returns the location of the text, transcoded to the local encoding; throws
// InvalidTextEncoding for text the locale can't hold.
FileLocation MakeFileLocation(UStringRef<UTF8> path);
// Returns the location of the text; a null text gives the empty path.
FileLocation MakeFileLocation(char const* path);
FileLocation MakeFileLocation(ConstData path);
// Returns the path under base, without a name check; throws EmptyFileLocationError for an empty
// base.
FileLocation MakeRelativeFileLocation(FileLocation const& base, char const* path);

// Splits a path whose last component may hold "*" or "?". Without a wildcard there, result is
// the whole path and the return value is null. With one, result is the part before the last
// "/" and the return value points to the text behind it, inside path. A path without any "/"
// counts as one without a wildcard.
char const* MakeFileLocationWithWildcard(char const* path, FileLocation& result);

// Returns whether other is ancestor or lies below it, comparing through ASCII lower case.
// Throws EmptyFileLocationError if either is empty, and InvalidFileLocation for a relative
// path that runs out of parents.
bool EqualOrDescendant(FileLocation const& ancestor, FileLocation const& other);
// Returns whether other lies strictly below ancestor.
bool IsDescendant(FileLocation const& ancestor, FileLocation const& other);

// Returns the free bytes of the file system that holds the location, counting the blocks kept
// for the superuser; -1 when that can't be found or doesn't fit.
std::int64_t CalculateFreeSpace(FileLocation const& location);
// Clears the three write bits of the target (true), or sets them less what the umask forbids
// (false). Throws the mapped FileIOError on failure.
void SetFileReadOnly(FileLocation const& location, bool readOnly);

// Returns "/var/tmp/ZOL/ClientUI", followed by "/." and the user when a user is given.
FileLocation UISessionDefaultDirectory(std::string const& user);
// Returns "/tmp".
FileLocation TemporaryFileDirLocation();
