#pragma once
// A DataReceiver that writes what it receives into an open file from a start position, and by
// default forces it to the disk at the end.

#include "files/FileWriter.h"
#include "files/FileWritingPath.h"
#include "text/streams/DataReceiver.h"

// Whether a sink ends with fsync. Only flushOnEnd, the default, is used in this program.
enum FlushMode {
    flushOnEnd = 0,
    noFlushOnEnd = 1,
};

// The path must outlive the sink.
class FileDataSink : public DataReceiver {
  public:
    FileDataSink() : FileDataSink(flushOnEnd) {}
    explicit FileDataSink(FlushMode mode) : m_path(nullptr), m_start(0), m_mode(mode) {}

    // Aims the sink at the path, to write from position on.
    void operator()(FileWritingPath const& path, unsigned long long position) {
        m_path = &path;
        m_start = position;
    }

    // Starts the writer at the start position; throws FileNotOpenError before operator().
    void Start() override;
    // Writes the data; throws the mapped FileIOError, FileDiskFullError for a full disk.
    void Receive(ConstData data) override;
    // Calls Flush on the path unless the mode is not flushOnEnd.
    void ReceiveEnd() override;

    // Returns where the next byte goes.
    unsigned long long Position() const { return m_writer.Position(); }

  private:
    FileWritingPath const* m_path;
    unsigned long long m_start;
    FileWriter m_writer;
    FlushMode m_mode;
};
