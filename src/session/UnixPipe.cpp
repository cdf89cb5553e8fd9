#include "session/UnixPipe.h"

#include <poll.h>
#include <unistd.h>

#include <cerrno>
#include <memory>

#include "threads/PortableThread.h"

PipeCloser::~PipeCloser() {
    if (*m_descriptor != 0) {
        close(*m_descriptor);
        *m_descriptor = 0;
    }
}

UnixPipeRef::UnixPipeRef(UnixPipe* pipe) : m_pipe(pipe) {
    if (m_pipe) m_pipe->AddReference();
}

UnixPipeRef::~UnixPipeRef() {
    try {
        if (m_pipe && m_pipe->RemoveReference() == 0) {
            delete m_pipe;
            m_pipe = nullptr;
        }
    } catch (...) {
    }
}

namespace {

// Thread entry points: run the loop, then drop the thread's own reference to the pipe.
void ReadThreadMain(void* argument) {
    UnixPipeRef* reference = static_cast<UnixPipeRef*>(argument);
    try {
        reference->m_pipe->ServiceReadLoop();
    } catch (...) {
    }
    delete reference;
}

void WriteThreadMain(void* argument) {
    UnixPipeRef* reference = static_cast<UnixPipeRef*>(argument);
    try {
        reference->m_pipe->ServiceWriteLoop();
    } catch (...) {
    }
    delete reference;
}

// Blocks until the descriptor has data, has reached its end or has failed; the read that follows
// tells which.
void WaitUntilReadable(int descriptor) {
    pollfd wanted{descriptor, POLLIN, 0};
    while (::poll(&wanted, 1, -1) < 0 && errno == EINTR) {
    }
}

// Makes a thread for entry on the pipe; returns null if it could not start.
PortableThread* StartThread(void (*entry)(void*), UnixPipeRef* reference) {
    PortableThread* thread = PortableThread::CreatePortableThreadSuspended(entry, reference);
    if (!thread) return nullptr;
    if (!thread->Start()) {
        delete thread;
        return nullptr;
    }
    return thread;
}

}  // namespace

UnixPipe::UnixPipe(UIMessageQueue& readQueue, UIMessageQueue& writeQueue)
    : m_readQueue(readQueue), m_writeQueue(writeQueue) {}

// Members go in reverse order: the reference lock, the kill lock, then the closers, the write
// descriptor first.
UnixPipe::~UnixPipe() = default;

bool UnixPipe::Start(int readDescriptor, int writeDescriptor) {
    {
        AccessLocker locker(m_killLock);
        m_readDescriptor = readDescriptor;
        m_writeDescriptor = writeDescriptor;
    }
    // Each thread is started and its field set under the kill lock: Kill on another thread
    // reads the field, and the new thread's loop ends at once if it finds the field null, so it
    // must wait until the field is set. A reference for a thread that did not start is given
    // back only after the lock is released: giving it back takes the reference lock, and no
    // lock is held while another is taken.
    UnixPipeRef* readReference = new UnixPipeRef(this);
    bool readStarted;
    {
        AccessLocker locker(m_killLock);
        m_readThread = StartThread(ReadThreadMain, readReference);
        readStarted = m_readThread != nullptr;
    }
    if (!readStarted) {
        delete readReference;
        return false;
    }
    UnixPipeRef* writeReference = new UnixPipeRef(this);
    bool writeStarted;
    {
        AccessLocker locker(m_killLock);
        m_writeThread = StartThread(WriteThreadMain, writeReference);
        writeStarted = m_writeThread != nullptr;
    }
    if (!writeStarted) {
        delete writeReference;
        return false;
    }
    return true;
}

void UnixPipe::Kill() {
    AccessLocker locker(m_killLock);
    if (m_killed) return;
    CloseWriteDescriptor();
    if (m_writeThread) m_writeThread->Abandon();
    if (m_readThread) m_readThread->Abandon();
    m_killed = true;
}

void UnixPipe::CloseWriteDescriptor() {
    if (m_writeDescriptor == 0) return;
    if (m_writing) {
        m_closePending = true;
        return;
    }
    close(m_writeDescriptor);
    m_writeDescriptor = 0;
}

bool UnixPipe::Killed() const {
    AccessLocker locker(m_killLock);
    return m_killed;
}

void UnixPipe::Sleep(unsigned long milliseconds) const {
    MilliSecondSleep(milliseconds);
}

unsigned long UnixPipe::AddReference() {
    AccessLocker locker(m_referenceLock);
    return ++m_referenceCount;
}

unsigned long UnixPipe::RemoveReference() {
    AccessLocker locker(m_referenceLock);
    if (m_referenceCount != 0) --m_referenceCount;
    return m_referenceCount;
}

unsigned long UnixPipe::GetRefCount() {
    AccessLocker locker(m_referenceLock);
    return m_referenceCount;
}

PortableThread* UnixPipe::ReadThread() const {
    AccessLocker locker(m_killLock);
    return m_readThread;
}

PortableThread* UnixPipe::WriteThread() const {
    AccessLocker locker(m_killLock);
    return m_writeThread;
}

int UnixPipe::ReadDescriptor() const {
    AccessLocker locker(m_killLock);
    return m_readDescriptor;
}

void UnixPipe::ReadExactly(unsigned char* into, unsigned long size) {
    int descriptor = ReadDescriptor();
    while (size != 0) {
        ssize_t got = read(descriptor, into, size);
        if (got == 0) throw UnixPipeReadMessageError();
        if (got < 0) {
            // An interrupted read is tried again. A descriptor that a parent left non-blocking
            // has nothing yet: wait for data as a blocking read would. Any other failure ends
            // the stream, since going on would read into the wrong place or spin without end.
            if (errno == EINTR) continue;
            if (errno == EAGAIN || errno == EWOULDBLOCK) {
                WaitUntilReadable(descriptor);
                continue;
            }
            throw UnixPipeReadMessageError();
        }
        into += got;
        size -= static_cast<unsigned long>(got);
    }
}

void UnixPipe::ReadMessageFromPipe(UIMessage& message) {
    uint32_t length = 0;
    ReadExactly(reinterpret_cast<unsigned char*>(&length), sizeof length);
    if (length > maximumFrameLength) throw UnixPipeReadMessageError();
    std::unique_ptr<unsigned char[]> body(new unsigned char[length ? length : 1]);
    if (length != 0) ReadExactly(body.get(), length);
    message.m_type = 0;
    message.m_text = MakeUString(body.get(), body.get() + length, UTF8());
}

void UnixPipe::WriteMessageToPipe(UIMessage& message) {
    uint32_t length = static_cast<uint32_t>(message.Length());
    if (length == 0) return;
    int descriptor;
    {
        AccessLocker locker(m_killLock);
        if (m_writeDescriptor == 0) throw UnixPipeWriteMessageError();
        descriptor = m_writeDescriptor;
        m_writing = true;
    }
    // Marks the write as over, and performs a close that a Kill asked for meanwhile.
    struct WriteEnd {
        UnixPipe& pipe;
        ~WriteEnd() {
            AccessLocker locker(pipe.m_killLock);
            pipe.m_writing = false;
            if (pipe.m_closePending) {
                pipe.m_closePending = false;
                pipe.CloseWriteDescriptor();
            }
        }
    } writeEnd{*this};
    if (write(descriptor, &length, sizeof length) != static_cast<ssize_t>(sizeof length))
        throw UnixPipeWriteMessageError();
    if (write(descriptor, message.m_text.begin, length) != static_cast<ssize_t>(length))
        throw UnixPipeWriteMessageError();
}

void UnixPipe::ServiceReadLoop() {
    try {
        for (;;) {
            if (Killed() || !ReadThread() || ThreadKiller::m_kill) break;
            UIMessage message;
            ReadMessageFromPipe(message);
            m_readQueue.WriteMessage(message);
        }
    } catch (...) {
    }
    Kill();
}

void UnixPipe::ServiceWriteLoop() {
    FiFoQueue<UIMessage> batch;
    try {
        for (;;) {
            if (Killed() || !WriteThread() || ThreadKiller::m_kill) break;
            m_writeQueue.ReadMessages(batch);
            while (!batch.IsEmpty()) {
                UIMessage message = batch.TakeFirst();
                // An empty message is the in-band request to shut the write side down.
                if (message.Length() == 0) {
                    Kill();
                    batch.Clear();
                    return;
                }
                WriteMessageToPipe(message);
            }
            Sleep(100);
        }
    } catch (...) {
    }
    Kill();
    batch.Clear();
}
