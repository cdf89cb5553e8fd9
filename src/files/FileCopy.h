#pragma once
// Copying files and directory trees. A copy has the time of copying, not that of its source.
// A copy that fails halfway, on a full disk for instance, leaves its partial target in place.

#include "files/FileLocation.h"

namespace UnixPlatform {

// Copies the file to a new file. Throws FileNotFoundError unless from is a file,
// FileExistsError when anything stands at to, and the failures of reading and writing.
void CopyFile(::FileLocation const& from, ::FileLocation const& to);
// Copies the file over whatever deletable stands at to. Throws FileNotFoundError unless from
// is a file, what ForceNonexistence throws, and the failures of reading and writing.
void ForceCopyFile(::FileLocation const& from, ::FileLocation const& to);

}  // namespace UnixPlatform

// The checked forms: each throws EmptyFileLocationError for an empty path first.
void CopyFile(FileLocation const& from, FileLocation const& to);
void ForceCopyFile(FileLocation const& from, FileLocation const& to);
// Copies the tree under from into to, which is made if need be: real subdirectories by
// recursion, files (and links to files) with CopyFileWithRetry. A link to a directory is
// neither copied nor followed. Throws InvalidStats for an absent from, DirectoryNotFoundError
// for another non-directory, and what the copies throw.
void CopyDirectoryContents(FileLocation const& from, FileLocation const& to);
