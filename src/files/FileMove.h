#pragma once
// Moving files and directories, within a file system by rename and across file systems by copy
// and delete.

#include "files/FileLocation.h"

namespace UnixPlatform {

// Moves from to to, which must not exist. Across file systems a file is copied and deleted, a
// directory copied as a tree and removed. Throws FileNotFoundError for an absent from,
// EmptyFileLocationError for an empty path, FileFoundError when anything stands at to,
// FileMoveError with both paths when rename fails otherwise, and what copy and delete throw.
void MoveFile(::FileLocation const& from, ::FileLocation const& to);
// Moves from to to, replacing what stands there when both are files or both are not; two
// directories need an empty to. Throws FileNotFoundError for an absent from,
// DirectoryFoundError with the directory when one is a file and the other is not, and what
// ForceNonexistence and MoveFile throw.
void ForceMoveFile(::FileLocation const& from, ::FileLocation const& to);

}  // namespace UnixPlatform

// The checked forms: each throws EmptyFileLocationError for an empty path first.
void MoveFile(FileLocation const& from, FileLocation const& to);
void ForceMoveFile(FileLocation const& from, FileLocation const& to);
