#include "files/FileWriter.h"

#include <unistd.h>

#include <cerrno>

#include "files/Seek64.h"
#include "files/ThrowFileError.h"

namespace UnixPlatform {

FileWriter::FileWriter(FileWritingPath const& path, WritePositionEndOfFile)
    : m_path(&path), m_position(path.Length()) {}

FileWriter& FileWriter::operator<<(ConstData data) {
    while (!data.Empty()) {
        int const fd = m_path->Descriptor();
        if (Seek64(fd, m_position, SEEK_SET) == -1) {
            ThrowError(errno);
        }
        ssize_t const written = ::write(fd, data.begin, data.Size());
        if (written < 0) {
            ThrowError(errno);
        }
        m_position += static_cast<unsigned long long>(written);
        data.begin += written;
    }
    return *this;
}

void FileWriter::ThrowError(int code) const {
    ThrowMappedFileError(FileErrorColumn::writer, m_path->Location().LogString(), code);
}

}  // namespace UnixPlatform

DataWriter& FileWriter::operator<<(ConstData data) {
    m_writer << data;
    return *this;
}
