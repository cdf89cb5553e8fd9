#pragma once
// The usual way of reading a file: chunks of at most the caller's buffer, from a start to an
// end position.
//
//   for (loop.Start(path, start, end); loop.Remaining() != 0; ++loop) use(*loop);

#include "files/FileErrors.h"
#include "files/FileReader.h"
#include "text/bytes/ConstData.h"
#include "text/bytes/Range.h"

// The buffer and the path belong to the caller and must outlive the loop.
class FileReadingLoop {
  public:
    explicit FileReadingLoop(Data buffer) : m_buffer(buffer), m_remaining(0), m_endUnknown(false) {}
    // Start with the path's Length() as the end.
    FileReadingLoop(Data buffer, UnixPlatform::FileReadingPath const& path,
                    unsigned long long start);
    FileReadingLoop(Data buffer, UnixPlatform::FileReadingPath const& path,
                    Range<unsigned long long> range);
    FileReadingLoop(Data buffer, UnixPlatform::FileReadingPath const& path,
                    unsigned long long start, unsigned long long end);

    // Read the first chunk from start towards end (the path's Length() when not given). With
    // nothing to read the chunk stays empty. Throw FileReadingLoopEndOfFileError when the file
    // has ended first, and the reader's failures. A stream that can't seek has no known end:
    // with the end taken from its Length() the loop ends where the stream does.
    void Start(UnixPlatform::FileReadingPath const& path, unsigned long long start);
    void Start(UnixPlatform::FileReadingPath const& path, Range<unsigned long long> range);
    void Start(UnixPlatform::FileReadingPath const& path, unsigned long long start,
               unsigned long long end);

    // Counts the current chunk as done and reads the next one while anything remains.
    FileReadingLoop& operator++();

    // Returns the current chunk; valid until the next step.
    ConstData operator*() const { return m_chunk; }
    // Returns the bytes not yet counted as done, the current chunk included.
    unsigned long long Remaining() const { return m_remaining; }

  private:
    void StartRange(UnixPlatform::FileReadingPath const& path, unsigned long long start,
                    unsigned long long end, bool endUnknown);
    // Reads the next chunk. Throws FileReadingLoopEndOfFileError when the file ended before
    // the end; a stream without a known end just ends the loop.
    void Read();

    Data m_buffer;
    FileReader m_reader;
    ConstData m_chunk;
    unsigned long long m_remaining;
    bool m_endUnknown;
};
