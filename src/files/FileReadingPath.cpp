#include "files/FileReadingPath.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>

#include "files/FileErrors.h"
#include "files/Seek64.h"
#include "files/ThrowFileError.h"
#include "text/bytes/Ascii.h"

namespace {

// The kernel's message file: reading it would block and consume messages meant for the system
// log. Made once, before main, and kept to process exit.
UnixPlatform::FileLocation const kernelMessageFile = [] {
    UnixPlatform::FileLocation location;
    location.SetFullPathName("/proc/kmsg", 10);
    return location;
}();

}  // namespace

namespace UnixPlatform {

FileReadingPath::~FileReadingPath() {
    try {
        Close();
    } catch (...) {
    }
}

void FileReadingPath::OpenExisting(UnixPlatform::FileLocation const& location) {
    Close();
    if (&location != &m_location) {
        m_location = location;
    }
    if (Ascii::CompareLowercase(ConstData(m_location.Text()),
                                ConstData(kernelMessageFile.Text())) == 0) {
        throw FileIOError(m_location.LogString(), 0);
    }
    Open(m_location, O_RDONLY);
}

void FileReadingPath::Open(UnixPlatform::FileLocation const& location, int flags) {
    Close();
    if (&location != &m_location) {
        m_location = location;
    }
    m_unseekable = false;
    int const fd = ::open64(m_location.Text(), flags, 0666);
    if (fd == -1) {
        ThrowError(errno);
    }
    m_fd = fd;
    ::fcntl(m_fd, F_SETFD, 1);
}

void FileReadingPath::Close() {
    if (m_fd == -1) {
        return;
    }
    int const result = ::close(m_fd);
    m_fd = -1;
    if (result != 0) {
        ThrowError(errno);
    }
}

unsigned long long FileReadingPath::Length() const {
    unsigned long long const unknown = ~0ULL;
    if (m_unseekable) {
        return unknown;
    }
    if (m_fd == -1) {
        throw FileNotOpenError(m_location.LogString(), 0);
    }
    // A pipe or socket answers ESPIPE here, an unusual device EINVAL; both mean a stream.
    long long const saved = Seek64(m_fd, 0, SEEK_CUR);
    if (saved == -1) {
        if (errno == ESPIPE) {
            m_unseekable = true;
            return unknown;
        }
        ThrowError(errno);
    }
    long long const end = Seek64(m_fd, 0, SEEK_END);
    if (end == -1) {
        if (errno == EINVAL || errno == ESPIPE) {
            m_unseekable = true;
            return unknown;
        }
        ThrowError(errno);
    }
    if (Seek64(m_fd, static_cast<unsigned long long>(saved), SEEK_SET) == -1) {
        ThrowError(errno);
    }
    return static_cast<unsigned long long>(end);
}

void FileReadingPath::ThrowError(UnixPlatform::FileLocation const& location, int code) const {
    ::ThrowFileError(location, code);
}

}  // namespace UnixPlatform

void FileReadingPath::OpenExisting(FileLocation const& location) {
    location.RequireNonEmpty();
    OpenExisting(location.Platform());
}
