#pragma once
// The pipe to the agent: a read thread turns the frames arriving on one descriptor into
// messages in the read queue, and a write thread sends the messages of the write queue as
// frames on the other. A frame is a 32-bit length in host byte order and that many bytes.

#include <cstdint>

#include "session/SessionErrors.h"
#include "session/UIMessageQueue.h"
#include "threads/AccessLock.h"
#include "threads/PortableThread.h"

// Closes the descriptor it points to unless that is 0, and sets it to 0. Descriptor 0 is
// therefore never closed by this class, deliberately: the agent owns the process's stdin.
class PipeCloser {
  public:
    explicit PipeCloser(int* descriptor) : m_descriptor(descriptor) {}
    ~PipeCloser();
    PipeCloser(PipeCloser const&) = delete;
    PipeCloser& operator=(PipeCloser const&) = delete;

  private:
    int* m_descriptor;
};

class UnixPipe {
  public:
    // The largest frame accepted from the agent; writing has no limit.
    static uint32_t const maximumFrameLength = 2097152;

    // Both queues must outlive the pipe.
    UnixPipe(UIMessageQueue& readQueue, UIMessageQueue& writeQueue);
    ~UnixPipe();
    UnixPipe(UnixPipe const&) = delete;
    UnixPipe& operator=(UnixPipe const&) = delete;

    // Returns whether both threads started. Each thread holds a reference to the pipe.
    bool Start(int readDescriptor, int writeDescriptor);
    // Closes the write descriptor (never the read one), lets go of both threads and marks the
    // pipe killed; only the first call does anything. Safe from any thread.
    void Kill();
    // Returns whether Kill has run, under the kill lock.
    bool Killed() const;
    void Sleep(unsigned long milliseconds) const;

    // Reference counting under the reference lock. RemoveReference does not go below 0.
    unsigned long AddReference();
    unsigned long RemoveReference();
    unsigned long GetRefCount();

    // The bodies of the two threads, and the frame codec they use.
    void ServiceReadLoop();
    void ServiceWriteLoop();
    void ReadMessageFromPipe(UIMessage& message);
    void WriteMessageToPipe(UIMessage& message);

  private:
    PortableThread* ReadThread() const;
    PortableThread* WriteThread() const;
    int ReadDescriptor() const;
    // Reads exactly size bytes; throws UnixPipeReadMessageError at end of stream.
    void ReadExactly(unsigned char* into, unsigned long size);
    // Closes the write descriptor unless a write is in progress on it, in which case the write
    // thread closes it as soon as that write returns. Call under the kill lock.
    void CloseWriteDescriptor();

    bool m_killed = false;
    PortableThread* m_readThread = nullptr;
    PortableThread* m_writeThread = nullptr;
    int m_readDescriptor = 0;
    int m_writeDescriptor = 0;
    PipeCloser m_readCloser{&m_readDescriptor};
    PipeCloser m_writeCloser{&m_writeDescriptor};
    UIMessageQueue& m_readQueue;
    UIMessageQueue& m_writeQueue;
    mutable AccessLock m_killLock;
    // Under the kill lock: the write thread is inside write() on the descriptor, and a Kill
    // that came meanwhile left the close to it, so that no descriptor is closed under a write.
    bool m_writing = false;
    bool m_closePending = false;
    uint32_t m_referenceCount = 0;
    AccessLock m_referenceLock;
};

// A counted hold on a pipe: the constructor adds a reference, the destructor removes it and
// deletes the pipe when it was the last. Anything thrown on that path is swallowed.
class UnixPipeRef {
  public:
    explicit UnixPipeRef(UnixPipe* pipe);
    ~UnixPipeRef();
    UnixPipeRef(UnixPipeRef const&) = delete;
    UnixPipeRef& operator=(UnixPipeRef const&) = delete;

    UnixPipe* m_pipe;
};
