#pragma once
// Deleting files and directory trees, strictly or by force.
//
// Deleting never follows a symbolic link. A link met while emptying or removing a directory is
// removed as a link, whatever it points to, and what it points to is untouched: the session
// directory lives under a world-writable tree, so following a link there would let another
// local user make the process empty a directory of the victim's choosing.

#include "files/FileLocation.h"

namespace UnixPlatform {

// Removes the directory entry (a link itself, not its target). Throws FileNotFoundError for an
// empty path and the mapped FileIOError when unlink fails.
void DeleteFile(::FileLocation const& path);
// Removes the empty directory. Throws DirectoryNotFoundError when the path is no directory and
// the mapped FileIOError when rmdir fails (a directory with entries).
void DeleteDirectory(::FileLocation const& path);
// Makes sure nothing deletable stands at the path: a file or a link is removed, an empty
// directory too. Nothing happens for an absent path or a dangling link, and nothing, silently,
// for a device or a named pipe. Throws what the removal throws.
void ForceNonexistence(::FileLocation const& path);
// Empties the directory: subdirectories by recursion and then rmdir, links as links, the rest
// through ForceNonexistence. Throws DirectoryNotFoundError for a path that is a link, so that
// emptying never goes through one, and what the removals throw.
void DeleteContents(::FileLocation const& path);
// Empties and removes the directory; a link there is removed as a link. Throws
// EmptyFileLocationError, DirectoryNotFoundError for an absent path, and what the removals
// throw.
void DeleteRecursive(::FileLocation const& path);

}  // namespace UnixPlatform

// The checked forms: each throws EmptyFileLocationError for an empty path first.
void DeleteFile(FileLocation const& path);
void DeleteDirectory(FileLocation const& path);
void ForceNonexistence(FileLocation const& path);
void DeleteContents(FileLocation const& path);
void DeleteRecursive(FileLocation const& path);
// DeleteRecursive or DeleteContents, unless nothing stands at the path.
void ForceDeleteRecursive(FileLocation const& path);
void ForceDeleteContents(FileLocation const& path);
