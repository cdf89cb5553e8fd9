#include "session/UnixPipe.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstring>
#include <string>
#include <thread>
#include <vector>

#include "testing/Eventually.h"
#include "testing/PipeFrames.h"
#include "testing/TestText.h"
#include "threads/PortableThread.h"

namespace {

UIMessage MessageOf(std::string const& text) {
    UIMessage message;
    message.m_text = MakeUString(U8(text));
    return message;
}

// Drains the queue into texts; null texts show as "<null>".
void Drain(UIMessageQueue& queue, std::vector<std::string>& into) {
    FiFoQueue<UIMessage> batch;
    queue.ReadMessages(batch);
    while (!batch.IsEmpty()) {
        UIMessage message = batch.TakeFirst();
        into.push_back(message.m_text.begin ? Str(message.m_text) : "<null>");
    }
}

bool IsOpen(int descriptor) {
    return fcntl(descriptor, F_GETFD) != -1;
}

// A pipe object on two real pipes: the test plays the agent on the far ends.
struct PipeRig {
    int toProcess[2];
    int fromProcess[2];
    UIMessageQueue readQueue, writeQueue;
    UnixPipe* pipe;
    UnixPipeRef* reference;

    // With nonBlockingRead the descriptor the pipe reads from is non-blocking, as a parent may
    // leave the process's descriptor 0.
    explicit PipeRig(bool nonBlockingRead = false) {
        EXPECT_EQ(::pipe(toProcess), 0);
        EXPECT_EQ(::pipe(fromProcess), 0);
        if (nonBlockingRead) {
            EXPECT_EQ(fcntl(toProcess[0], F_SETFL, O_NONBLOCK), 0);
        }
        pipe = new UnixPipe(readQueue, writeQueue);
        reference = new UnixPipeRef(pipe);
        EXPECT_TRUE(pipe->Start(toProcess[0], fromProcess[1]));
    }
    ~PipeRig() {
        if (toProcess[1] >= 0) close(toProcess[1]);
        if (pipe) Eventually([&] { return pipe->Killed() && pipe->GetRefCount() == 1; });
        delete reference;  // the last reference: deletes the pipe, which closes its read end
        close(fromProcess[0]);
    }
    void Send(std::string const& bytes) {
        ASSERT_EQ(write(toProcess[1], bytes.data(), bytes.size()),
                  static_cast<ssize_t>(bytes.size()));
    }
    void CloseAgentSide() {
        close(toProcess[1]);
        toProcess[1] = -1;
    }
};

}  // namespace

TEST(FiFoQueue, KeepsOrderAndRefusesToTakeFromEmpty) {
    FiFoQueue<int> queue;
    EXPECT_THROW(queue.TakeFirst(), FiFoQueueIsEmpty);
    for (int i = 1; i <= 3; ++i) queue.Append(i);
    FiFoQueue<int> other;
    other.Append(9);
    queue.Swap(other);
    EXPECT_EQ(queue.TakeFirst(), 9);
    EXPECT_TRUE(queue.IsEmpty());
    for (int i = 1; i <= 3; ++i) EXPECT_EQ(other.TakeFirst(), i);
    EXPECT_THROW(other.TakeFirst(), FiFoQueueIsEmpty);
    other.Append(4);  // a queue emptied by taking is usable again
    EXPECT_EQ(other.TakeFirst(), 4);
}

TEST(UIMessageQueue, SwapRacingAWriterLosesAndReordersNothing) {
    UIMessageQueue queue;
    int const count = 5000;
    std::thread writer([&] {
        for (int i = 0; i < count; ++i) {
            UIMessage message = MessageOf(std::to_string(i));
            queue.WriteMessage(message);
            EXPECT_EQ(Str(message.m_text), std::to_string(i)) << "the sender's copy changed";
        }
    });
    std::vector<std::string> seen;
    while (seen.size() < static_cast<size_t>(count)) Drain(queue, seen);
    writer.join();
    EXPECT_TRUE(queue.IsEmpty());
    for (int i = 0; i < count; ++i) ASSERT_EQ(seen[i], std::to_string(i));
}

TEST(UnixPipe, FramesArriveWholeAndInOrderHoweverTheyAreCut) {
    PipeRig rig;
    std::string stream = Frame("abcde") + Frame("") + Frame("<x>second</x>");
    rig.Send(stream.substr(0, 1));
    for (size_t i = 1; i < stream.size(); ++i) rig.Send(stream.substr(i, 1));
    rig.Send(Frame("one") + Frame("two"));
    std::vector<std::string> seen;
    ASSERT_TRUE(Eventually([&] {
        Drain(rig.readQueue, seen);
        return seen.size() >= 5;
    }));
    EXPECT_EQ(seen, (std::vector<std::string>{"abcde", "<null>", "<x>second</x>", "one", "two"}));
    EXPECT_FALSE(rig.pipe->Killed());
    EXPECT_EQ(rig.pipe->GetRefCount(), 3u);
}

TEST(UnixPipe, QueuedMessagesLeaveAsFramesInHostOrder) {
    PipeRig rig;
    UIMessage first = MessageOf("hello"), second = MessageOf(std::string(70000, 'x'));
    rig.writeQueue.WriteMessage(first);
    rig.writeQueue.WriteMessage(second);
    std::string expected = Frame("hello") + Frame(std::string(70000, 'x'));
    std::string got;
    char buffer[65536];
    while (got.size() < expected.size()) {
        ssize_t n = read(rig.fromProcess[0], buffer, sizeof buffer);
        ASSERT_GT(n, 0);
        got.append(buffer, static_cast<size_t>(n));
    }
    EXPECT_EQ(got.substr(0, 9), std::string("\x05\x00\x00\x00hello", 9));
    EXPECT_TRUE(got == expected);
}

TEST(UnixPipe, EndOfStreamKillsClosingTheWriteEndOnly) {
    PipeRig rig;
    rig.Send(Frame("kept"));
    rig.Send(std::string("\x07\x00", 2));  // a header cut short: delivers nothing
    rig.CloseAgentSide();
    ASSERT_TRUE(Eventually([&] { return rig.pipe->Killed(); }));
    std::vector<std::string> seen;
    Drain(rig.readQueue, seen);
    EXPECT_EQ(seen, std::vector<std::string>{"kept"});
    char byte;
    EXPECT_EQ(read(rig.fromProcess[0], &byte, 1), 0) << "the write end is still open";
    EXPECT_TRUE(IsOpen(rig.toProcess[0])) << "Kill closed the read end";
    // Both threads let go of their references once they have ended.
    EXPECT_TRUE(Eventually([&] { return rig.pipe->GetRefCount() == 1; }));

    // A second Kill closes nothing: a descriptor that now reuses the old number survives it.
    int reused = open("/dev/null", O_RDONLY);
    rig.pipe->Kill();
    EXPECT_TRUE(IsOpen(reused));
    close(reused);
}

TEST(UnixPipe, OversizedFrameKillsButTheLargestAllowedIsTaken) {
    PipeRig rig;
    std::string largest(UnixPipe::maximumFrameLength, 'a');
    std::thread sender([&] { rig.Send(Frame(largest)); });
    std::vector<std::string> seen;
    ASSERT_TRUE(Eventually([&] {
        Drain(rig.readQueue, seen);
        return !seen.empty();
    }));
    sender.join();
    EXPECT_EQ(seen[0].size(), largest.size());
    EXPECT_FALSE(rig.pipe->Killed());
    uint32_t tooLong = UnixPipe::maximumFrameLength + 1;
    rig.Send(std::string(reinterpret_cast<char const*>(&tooLong), 4));
    EXPECT_TRUE(Eventually([&] { return rig.pipe->Killed(); }));
}

TEST(UnixPipe, EmptyMessageInTheWriteQueueShutsTheWriteSideDown) {
    PipeRig rig;
    UIMessage empty, after = MessageOf("never sent");
    rig.writeQueue.WriteMessage(empty);
    rig.writeQueue.WriteMessage(after);
    ASSERT_TRUE(Eventually([&] { return rig.pipe->Killed(); }));
    char byte;
    EXPECT_EQ(read(rig.fromProcess[0], &byte, 1), 0);
}

TEST(UnixPipeRef, LastReferenceDeletesAndCountNeverGoesBelowZero) {
    UIMessageQueue a, b;
    UnixPipe* pipe = new UnixPipe(a, b);
    EXPECT_EQ(pipe->RemoveReference(), 0u);
    {
        UnixPipeRef first(pipe);
        {
            UnixPipeRef second(pipe);
            EXPECT_EQ(pipe->GetRefCount(), 2u);
        }
        EXPECT_EQ(pipe->GetRefCount(), 1u);
    }
    // The pipe is gone now; AddressSanitizer would report any further use.
}

TEST(UnixPipe, ANonBlockingReadDescriptorWaitsForDataInsteadOfEndingTheStream) {
    PipeRig rig(/*nonBlockingRead=*/true);
    std::this_thread::sleep_for(std::chrono::milliseconds(300));
    EXPECT_FALSE(rig.pipe->Killed()) << "an empty non-blocking pipe ended the session";
    std::string const stream = Frame("first") + Frame("second");
    for (char byte : stream) {
        rig.Send(std::string(1, byte));
        std::this_thread::sleep_for(std::chrono::milliseconds(2));
    }
    std::vector<std::string> seen;
    ASSERT_TRUE(Eventually([&] {
        Drain(rig.readQueue, seen);
        return seen.size() >= 2;
    }));
    EXPECT_EQ(seen, (std::vector<std::string>{"first", "second"}));
    EXPECT_FALSE(rig.pipe->Killed());
    rig.CloseAgentSide();
    EXPECT_TRUE(Eventually([&] { return rig.pipe->Killed(); })) << "end of stream went unseen";
}

// When a thread cannot be made the pipe gives back the reference it took for it, and the
// caller's own is all that is left. The test runs itself again as a fresh process whose address
// space is capped just above what it uses, so that no thread stack fits (a process that has run
// threads keeps their stacks for reuse, so a fork would not do); the sanitizers need far more
// room than that.
TEST(UnixPipe, StartThatCannotMakeAThreadGivesBackItsReference) {
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
    GTEST_SKIP() << "a capped address space does not suit a sanitizer's shadow memory";
#endif
    if (std::getenv("ZOL_CAPPED_START")) {
        int toProcess[2], fromProcess[2];
        if (::pipe(toProcess) != 0 || ::pipe(fromProcess) != 0) _exit(10);
        UIMessageQueue readQueue, writeQueue;
        UnixPipe* pipe = new UnixPipe(readQueue, writeQueue);
        UnixPipeRef reference(pipe);
        std::FILE* statm = std::fopen("/proc/self/statm", "r");
        unsigned long pages = 0;
        if (!statm || std::fscanf(statm, "%lu", &pages) != 1) _exit(10);
        std::fclose(statm);
        rlimit cap;
        cap.rlim_cur = cap.rlim_max =
            (pages + 256) * static_cast<unsigned long>(sysconf(_SC_PAGESIZE));
        if (setrlimit(RLIMIT_AS, &cap) != 0) _exit(11);
        if (pipe->Start(toProcess[0], fromProcess[1])) _exit(12);
        if (pipe->GetRefCount() != 1) _exit(13);
        if (pipe->Killed()) _exit(14);
        _exit(0);
    }
    pid_t const child = fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
        int const devNull = open("/dev/null", O_WRONLY);
        dup2(devNull, 1);
        dup2(devNull, 2);  // the thread layer reports the failure there
        setenv("ZOL_CAPPED_START", "1", 1);
        execl("/proc/self/exe", "UnixPipe_test",
              "--gtest_filter=UnixPipe.StartThatCannotMakeAThreadGivesBackItsReference",
              static_cast<char*>(nullptr));
        _exit(15);
    }
    int status = 0;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    ASSERT_TRUE(WIFEXITED(status));
    EXPECT_EQ(WEXITSTATUS(status), 0) << "10, 11, 15: set-up; 12: a thread started all the same; "
                                         "13: a reference was kept; 14: the pipe was killed";
}

// The process-wide stop switch, set from another thread, ends the write loop at its next round
// and so the pipe. The switch is read across threads: ThreadSanitizer checks that it may be.
TEST(UnixPipe, TheStopSwitchEndsTheLoops) {
    PipeRig rig;
    ThreadKiller::m_kill = true;
    bool const killed = Eventually([&] { return rig.pipe->Killed(); });
    ThreadKiller::m_kill = false;
    EXPECT_TRUE(killed);
}
