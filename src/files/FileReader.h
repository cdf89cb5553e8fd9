#pragma once
// Positioned reading from an open file, seekable or not. Every read of a file seeks first; a
// stream that can't seek (a pipe) is read in order, with one byte of look-ahead to tell whether
// more is coming.

#include "files/FileReadingPath.h"
#include "text/bytes/ConstData.h"
#include "text/streams/DataReader.h"

namespace UnixPlatform {

// The path must outlive the reader.
class FileReader {
  public:
    FileReader()
        : m_path(nullptr),
          m_position(0),
          m_length(0),
          m_lookAhead(0),
          m_hasLookAhead(false),
          m_streamEnded(false) {}
    // Starts at position; the path may be a FileWritingPath too.
    FileReader(FileReadingPath const& path, unsigned long long position) : FileReader() {
        Start(path, position);
    }

    // Aims at the path, takes its Length() and starts at position.
    void Start(FileReadingPath const& path, unsigned long long position);
    // Returns whether more can be read: on a file, whether the position is below the length,
    // asked afresh so that a growing file is followed; on a stream, whether a byte came.
    bool Unfinished() const;
    bool Finished() const { return !Unfinished(); }

    // Fills all of target with one read at the position. Throws EndOfFileError when fewer
    // bytes came, with the position moved by those that did; other failures the mapped
    // FileIOError. An empty target reads nothing.
    FileReader& operator>>(Data target);
    // Reads once into the buffer, which takes what came; a short read is fine.
    FileReader& operator>>(Buffer& target);

    unsigned long long Position() const { return m_position; }
    // Returns the length found at Start: all ones for a stream.
    unsigned long long Length() const { return m_length; }

    // Throws what code means to a reader: EINVAL is FileSeekError, the short-read mark
    // EndOfFileError, most others a plain FileIOError.
    void ThrowError(int code) const;

  private:
    // Reads once at the position into target after any look-ahead byte; returns the count.
    std::size_t ReadOnce(Data target);

    FileReadingPath const* m_path;
    unsigned long long m_position;
    unsigned long long m_length;
    mutable unsigned char m_lookAhead;
    mutable bool m_hasLookAhead;
    mutable bool m_streamEnded;
};

}  // namespace UnixPlatform

// The reader as a DataReader. The path must outlive the reader.
class FileReader : public DataReader {
  public:
    FileReader() = default;
    FileReader(UnixPlatform::FileReadingPath const& path, unsigned long long position)
        : m_reader(path, position) {}

    void Start(UnixPlatform::FileReadingPath const& path, unsigned long long position) {
        m_reader.Start(path, position);
    }
    bool Finished() const override { return m_reader.Finished(); }
    bool Unfinished() const override { return m_reader.Unfinished(); }
    // Fills all of target, or throws EndOfFileError after a short read.
    DataReader& operator>>(Data target) override;
    DataReader& operator>>(Buffer& target) override;

    unsigned long long Position() const { return m_reader.Position(); }
    UnixPlatform::FileReader& Platform() { return m_reader; }

  private:
    UnixPlatform::FileReader m_reader;
};
