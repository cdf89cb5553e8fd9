#include <gtest/gtest.h>

#include <chrono>
#include <string>
#include <vector>

#include "files/FileCopy.h"
#include "files/FileDelete.h"
#include "files/FileErrors.h"
#include "files/FileOperationsWithRetry.h"
#include "files/FileWritingPath.h"
#include "files/RetryPolicy.h"
#include "testing/TemporaryDirectory.h"

namespace {

class RecordingLog : public FileRetryLog {
  public:
    void LogRetrySuccess(char const* operation, FileLocation const* first,
                         FileLocation const* second, unsigned long attempts) const override {
        Record(true, operation, first, second, attempts);
    }
    void LogRetryFailure(char const* operation, FileLocation const* first,
                         FileLocation const* second, unsigned long attempts) const override {
        Record(false, operation, first, second, attempts);
    }

    // One line per report: "success" or "failure", the operation, both paths, the attempts.
    mutable std::vector<std::string> entries;

  private:
    void Record(bool success, char const* operation, FileLocation const* first,
                FileLocation const* second, unsigned long attempts) const {
        entries.push_back(std::string(success ? "success " : "failure ") + operation + " " +
                          (first ? first->LogString() : "<null>") + " " +
                          (second ? second->LogString() : "<null>") + " " +
                          std::to_string(attempts));
    }
};

long long MillisecondsSince(std::chrono::steady_clock::time_point start) {
    return std::chrono::duration_cast<std::chrono::milliseconds>(std::chrono::steady_clock::now() -
                                                                 start)
        .count();
}

}  // namespace

class FileRetry : public TemporaryDirectory {};

TEST_F(FileRetry, SuccessAtOnceWritesNoLog) {
    WriteText(Path("a"), "content");
    RecordingLog log;
    CopyFileWithRetry(Location("a"), Location("b"), log);
    ForceCopyFileWithRetry(Location("a"), Location("b"), log);
    MoveFileWithRetry(Location("b"), Location("c"), log);
    ForceMoveFileWithRetry(Location("c"), Location("a"), log);
    ForceNonexistenceWithRetry(Location("missing"), log);
    MakeDirectory(Path("d"));
    DeleteDirectoryWithRetry(Location("d"), log);
    EXPECT_EQ("content", ReadText(Path("a")));
    DeleteFileWithRetry(Location("a"), log);
    EXPECT_FALSE(Exists(Path("a")));
    EXPECT_TRUE(log.entries.empty());
}

TEST_F(FileRetry, SuccessOnTheThirdAttemptLogsOnceWithThree) {
    // A file that another party puts in place only after the second attempt.
    RecordingLog log;
    FileLocation const target = Location("late");
    unsigned long attempts = 0;
    RunWithRetry("DeleteFile", &target, nullptr, log, EmptyLocationRetry::passAtOnce, [&] {
        if (++attempts == 3) {
            WriteText(Path("late"), "x");
        }
        DeleteFile(target);
    });
    EXPECT_EQ(3u, attempts);
    EXPECT_EQ(log.entries,
              std::vector<std::string>{"success DeleteFile " + target.LogString() + " <null> 3"});
    EXPECT_FALSE(Exists(Path("late")));
}

TEST_F(FileRetry, PermanentFailureIsTriedEightTimesWithPauses) {
    RecordingLog log;
    auto const start = std::chrono::steady_clock::now();
    EXPECT_THROW(DeleteFileWithRetry(Location("missing"), log), FileNotFoundError);
    // Pauses of 16, 32, ..., 1024 milliseconds between the eight attempts.
    EXPECT_GE(MillisecondsSince(start), 2032);
    EXPECT_EQ(log.entries, std::vector<std::string>{"failure DeleteFile " +
                                                    Location("missing").LogString() + " <null> 8"});
}

TEST_F(FileRetry, EmptyLocationFailsAtOnceExceptWhereNotExempt) {
    RecordingLog log;
    auto const start = std::chrono::steady_clock::now();
    WriteText(Path("a"), "x");
    EXPECT_THROW(DeleteFileWithRetry(FileLocation(), log), EmptyFileLocationError);
    EXPECT_THROW(CopyFileWithRetry(Location("a"), FileLocation(), log), EmptyFileLocationError);
    EXPECT_THROW(MoveFileWithRetry(FileLocation(), Location("a"), log), EmptyFileLocationError);
    EXPECT_LT(MillisecondsSince(start), 2000);
    EXPECT_TRUE(log.entries.empty());

    // The flush and the time setting know no such exemption: the error is retried like any
    // other, and the eighth attempt's exception is what passes.
    unsigned long attempts = 0;
    EXPECT_THROW(
        RunWithRetry("FlushOnBrokenFilesystems", nullptr, nullptr, log, EmptyLocationRetry::retry,
                     [&] {
                         ++attempts;
                         FileWritingPath().OpenNew(FileLocation());
                     }),
        EmptyFileLocationError);
    EXPECT_EQ(8u, attempts);
    EXPECT_EQ(log.entries,
              std::vector<std::string>{"failure FlushOnBrokenFilesystems <null> <null> 8"});
}
