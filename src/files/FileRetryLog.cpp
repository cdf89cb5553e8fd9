#include "files/FileRetryLog.h"

FileRetryLog::~FileRetryLog() = default;

void FileRetryLog::LogRetrySuccess(char const*, FileLocation const*, FileLocation const*,
                                   unsigned long) const {}

void FileRetryLog::LogRetryFailure(char const*, FileLocation const*, FileLocation const*,
                                   unsigned long) const {}
