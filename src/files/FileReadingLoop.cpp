#include "files/FileReadingLoop.h"

FileReadingLoop::FileReadingLoop(Data buffer, UnixPlatform::FileReadingPath const& path,
                                 unsigned long long start)
    : FileReadingLoop(buffer) {
    Start(path, start);
}

FileReadingLoop::FileReadingLoop(Data buffer, UnixPlatform::FileReadingPath const& path,
                                 Range<unsigned long long> range)
    : FileReadingLoop(buffer) {
    Start(path, range);
}

FileReadingLoop::FileReadingLoop(Data buffer, UnixPlatform::FileReadingPath const& path,
                                 unsigned long long start, unsigned long long end)
    : FileReadingLoop(buffer) {
    Start(path, start, end);
}

void FileReadingLoop::Start(UnixPlatform::FileReadingPath const& path, unsigned long long start) {
    unsigned long long const end = path.Length();
    StartRange(path, start, end, path.Unseekable());
}

void FileReadingLoop::Start(UnixPlatform::FileReadingPath const& path,
                            Range<unsigned long long> range) {
    StartRange(path, range.start, range.end, false);
}

void FileReadingLoop::Start(UnixPlatform::FileReadingPath const& path, unsigned long long start,
                            unsigned long long end) {
    StartRange(path, start, end, false);
}

void FileReadingLoop::StartRange(UnixPlatform::FileReadingPath const& path,
                                 unsigned long long start, unsigned long long end,
                                 bool endUnknown) {
    m_reader.Start(path, start);
    m_chunk = ConstData();
    m_endUnknown = endUnknown;
    m_remaining = end > start ? end - start : 0;
    if (m_remaining != 0) {
        Read();
    }
}

void FileReadingLoop::Read() {
    if (m_reader.Finished()) {
        if (m_endUnknown) {
            m_remaining = 0;
            return;
        }
        throw FileReadingLoopEndOfFileError();
    }
    Buffer buffer(m_buffer);
    if (buffer.Size() > m_remaining) {
        buffer.end = buffer.cursor + m_remaining;
    }
    unsigned char* const begin = buffer.cursor;
    m_reader >> buffer;
    m_chunk = ConstData(begin, buffer.cursor);
}

FileReadingLoop& FileReadingLoop::operator++() {
    m_remaining -= m_chunk.Size();
    m_chunk = ConstData();
    if (m_remaining != 0) {
        Read();
    }
    return *this;
}
