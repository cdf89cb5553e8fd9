#include "files/FileOperationsWithRetry.h"

#include "files/FileCopy.h"
#include "files/FileDelete.h"
#include "files/FileMove.h"
#include "files/RetryPolicy.h"

void CopyFileWithRetry(FileLocation const& from, FileLocation const& to, FileRetryLog const& log) {
    RunWithRetry("CopyFile", &from, &to, log, EmptyLocationRetry::passAtOnce,
                 [&] { CopyFile(from, to); });
}

void ForceCopyFileWithRetry(FileLocation const& from, FileLocation const& to,
                            FileRetryLog const& log) {
    RunWithRetry("ForceCopyFile", &from, &to, log, EmptyLocationRetry::passAtOnce,
                 [&] { ForceCopyFile(from, to); });
}

void MoveFileWithRetry(FileLocation const& from, FileLocation const& to, FileRetryLog const& log) {
    RunWithRetry("MoveFile", &from, &to, log, EmptyLocationRetry::passAtOnce,
                 [&] { MoveFile(from, to); });
}

void ForceMoveFileWithRetry(FileLocation const& from, FileLocation const& to,
                            FileRetryLog const& log) {
    RunWithRetry("ForceMoveFile", &from, &to, log, EmptyLocationRetry::passAtOnce,
                 [&] { ForceMoveFile(from, to); });
}

void DeleteFileWithRetry(FileLocation const& path, FileRetryLog const& log) {
    RunWithRetry("DeleteFile", &path, nullptr, log, EmptyLocationRetry::passAtOnce,
                 [&] { DeleteFile(path); });
}

void DeleteDirectoryWithRetry(FileLocation const& path, FileRetryLog const& log) {
    RunWithRetry("DeleteDirectory", &path, nullptr, log, EmptyLocationRetry::passAtOnce,
                 [&] { DeleteDirectory(path); });
}

void ForceNonexistenceWithRetry(FileLocation const& path, FileRetryLog const& log) {
    RunWithRetry("ForceNonexistence", &path, nullptr, log, EmptyLocationRetry::passAtOnce,
                 [&] { ForceNonexistence(path); });
}

FileRetryLog::~FileRetryLog() = default;

void FileRetryLog::LogRetrySuccess(char const*, FileLocation const*, FileLocation const*,
                                   unsigned long) const {}

void FileRetryLog::LogRetryFailure(char const*, FileLocation const*, FileLocation const*,
                                   unsigned long) const {}
