#pragma once
// Where the retrying file operations report an operation that needed more than one attempt.
// This program only uses the base class, which reports nowhere.

class FileLocation;

class FileRetryLog {
  public:
    virtual ~FileRetryLog();
    // Called when the operation succeeded on attempt number attempts (2 or more). The locations
    // may be null; operation is the name of the operation without "WithRetry".
    virtual void LogRetrySuccess(char const* operation, FileLocation const* first,
                                 FileLocation const* second, unsigned long attempts) const;
    // Called once before the last failure is passed on, with the number of attempts made.
    virtual void LogRetryFailure(char const* operation, FileLocation const* first,
                                 FileLocation const* second, unsigned long attempts) const;
};
