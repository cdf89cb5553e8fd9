#include "files/FileReader.h"

#include <unistd.h>

#include <cerrno>

#include "files/Seek64.h"
#include "files/ThrowFileError.h"

namespace UnixPlatform {

void FileReader::Start(FileReadingPath const& path, unsigned long long position) {
    m_path = &path;
    m_position = position;
    m_hasLookAhead = false;
    m_streamEnded = false;
    m_length = path.Length();
}

bool FileReader::Unfinished() const {
    if (!m_path->Unseekable()) {
        return m_position < m_path->Length();
    }
    if (m_streamEnded) {
        return false;
    }
    if (m_hasLookAhead) {
        return true;
    }
    // A stream is read in order: there is nothing to seek to.
    unsigned char byte = 0;
    if (::read(m_path->Descriptor(), &byte, 1) != 1) {
        m_streamEnded = true;
        return false;
    }
    m_lookAhead = byte;
    m_hasLookAhead = true;
    return true;
}

std::size_t FileReader::ReadOnce(Data target) {
    std::size_t count = 0;
    if (m_path->Unseekable()) {
        // The look-ahead byte is the first of the stream's remaining bytes.
        if (m_hasLookAhead) {
            target[0] = m_lookAhead;
            m_hasLookAhead = false;
            ++count;
            ++m_position;
            if (target.Size() == 1) {
                return count;
            }
        }
    } else {
        m_hasLookAhead = false;
        if (Seek64(m_path->Descriptor(), m_position, SEEK_SET) == -1) {
            ThrowError(errno);
        }
    }
    ssize_t const result =
        ::read(m_path->Descriptor(), target.begin + count, target.Size() - count);
    if (result < 0) {
        ThrowError(errno);
    }
    if (result == 0 && m_path->Unseekable()) {
        m_streamEnded = true;
    }
    m_position += static_cast<unsigned long long>(result);
    return count + static_cast<std::size_t>(result);
}

FileReader& FileReader::operator>>(Data target) {
    if (target.Empty()) {
        return *this;
    }
    if (ReadOnce(target) < target.Size()) {
        ThrowError(endOfFileErrorCode);
    }
    return *this;
}

FileReader& FileReader::operator>>(Buffer& target) {
    if (target.Full()) {
        return *this;
    }
    target.cursor += ReadOnce(target.Remaining());
    return *this;
}

void FileReader::ThrowError(int code) const {
    ThrowMappedFileError(FileErrorColumn::reader, m_path->Location().LogString(), code);
}

}  // namespace UnixPlatform

DataReader& FileReader::operator>>(Data target) {
    m_reader >> target;
    return *this;
}

DataReader& FileReader::operator>>(Buffer& target) {
    m_reader >> target;
    return *this;
}
