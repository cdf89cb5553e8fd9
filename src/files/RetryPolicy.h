#pragma once
// The retry policy of the file operations that survive passing failures, such as another
// process holding a file for a moment: at most 8 attempts, with pauses of 16 milliseconds
// doubling up to 1024 (2032 milliseconds in all), and the log it reports to.

#include "files/FileErrors.h"
#include "threads/PortableThread.h"

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

// Whether an EmptyFileLocationError passes at once, with no retry and no log: a caller's error
// doesn't get better by waiting.
enum class EmptyLocationRetry { passAtOnce, retry };

unsigned long const maximumFileRetryAttempts = 8;
unsigned long const firstFileRetryPauseMilliseconds = 16;

// Calls operation until it returns, at most 8 times. A success after the first attempt is
// reported with LogRetrySuccess and the attempt number; after the eighth failure
// LogRetryFailure gets 8 and the last exception passes to the caller. The pause blocks only
// the calling thread.
template <class Operation>
void RunWithRetry(char const* name, FileLocation const* first, FileLocation const* second,
                  FileRetryLog const& log, EmptyLocationRetry empty, Operation operation) {
    unsigned long delay = firstFileRetryPauseMilliseconds;
    for (unsigned long attempt = 1;; ++attempt) {
        try {
            operation();
            if (attempt > 1) {
                log.LogRetrySuccess(name, first, second, attempt);
            }
            return;
        } catch (EmptyFileLocationError const&) {
            if (empty == EmptyLocationRetry::passAtOnce) {
                throw;
            }
            if (attempt == maximumFileRetryAttempts) {
                log.LogRetryFailure(name, first, second, attempt);
                throw;
            }
        } catch (...) {
            if (attempt == maximumFileRetryAttempts) {
                log.LogRetryFailure(name, first, second, attempt);
                throw;
            }
        }
        MilliSecondSleep(delay);
        delay *= 2;
    }
}
