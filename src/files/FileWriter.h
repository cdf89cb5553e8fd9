#pragma once
// Positioned writing into an open file. Every write seeks first, so two writers on one path
// don't disturb each other; the descriptor's own offset is not relied on.

#include "files/FileWritingPath.h"
#include "text/bytes/ConstData.h"
#include "text/streams/DataReceiver.h"

// Tag for a writer that starts at the current end of the file.
struct WritePositionEndOfFile {};

namespace UnixPlatform {

// The path must outlive the writer.
class FileWriter {
  public:
    FileWriter() : m_path(nullptr), m_position(0) {}
    FileWriter(FileWritingPath const& path, unsigned long long position)
        : m_path(&path), m_position(position) {}
    // Starts at the path's Length().
    FileWriter(FileWritingPath const& path, WritePositionEndOfFile);

    void Start(FileWritingPath const& path, unsigned long long position) {
        m_path = &path;
        m_position = position;
    }
    unsigned long long Position() const { return m_position; }
    void SetPosition(unsigned long long position) { m_position = position; }

    // Writes all of the data at the position and advances it. Throws the mapped FileIOError;
    // a full disk is FileDiskFullError, with the bytes written so far left in place.
    FileWriter& operator<<(ConstData data);

    // Throws what code means to a writer: EINVAL from a positioned write is FileSeekError.
    void ThrowError(int code) const;

  private:
    FileWritingPath const* m_path;
    unsigned long long m_position;
};

}  // namespace UnixPlatform

// The writer as a DataWriter. The path must outlive the writer.
class FileWriter : public DataWriter {
  public:
    FileWriter() = default;
    FileWriter(FileWritingPath const& path, unsigned long long position)
        : m_writer(path, position) {}
    FileWriter(FileWritingPath const& path, WritePositionEndOfFile end) : m_writer(path, end) {}
    virtual ~FileWriter() = default;

    void Start(FileWritingPath const& path, unsigned long long position) {
        m_writer.Start(path, position);
    }
    unsigned long long Position() const { return m_writer.Position(); }
    void SetPosition(unsigned long long position) { m_writer.SetPosition(position); }
    DataWriter& operator<<(ConstData data) override;

  private:
    UnixPlatform::FileWriter m_writer;
};
