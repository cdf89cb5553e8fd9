#pragma once
// The file operations that survive passing failures, such as another process holding a file
// for a moment, under the retry policy of RetryPolicy.h. Each reports to the log under its own
// name less "WithRetry". An empty location fails at once.

#include "files/FileLocation.h"
#include "files/RetryPolicy.h"

// Throw what the last of at most 8 attempts threw.
void CopyFileWithRetry(FileLocation const& from, FileLocation const& to, FileRetryLog const& log);
void ForceCopyFileWithRetry(FileLocation const& from, FileLocation const& to,
                            FileRetryLog const& log);
void MoveFileWithRetry(FileLocation const& from, FileLocation const& to, FileRetryLog const& log);
void ForceMoveFileWithRetry(FileLocation const& from, FileLocation const& to,
                            FileRetryLog const& log);
void DeleteFileWithRetry(FileLocation const& path, FileRetryLog const& log);
void DeleteDirectoryWithRetry(FileLocation const& path, FileRetryLog const& log);
void ForceNonexistenceWithRetry(FileLocation const& path, FileRetryLog const& log);
