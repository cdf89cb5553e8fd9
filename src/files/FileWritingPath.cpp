#include "files/FileWritingPath.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>

#include "files/RetryPolicy.h"
#include "files/Seek64.h"
#include "files/ThrowFileError.h"

namespace UnixPlatform {

void FileWritingPath::OpenNew(UnixPlatform::FileLocation const& location) {
    Open(location, O_RDWR | O_CREAT | O_EXCL);
}

void FileWritingPath::OpenExisting(UnixPlatform::FileLocation const& location) {
    Open(location, O_RDWR);
}

void FileWritingPath::OpenExistingOrNew(UnixPlatform::FileLocation const& location) {
    Open(location, O_RDWR | O_CREAT);
}

void FileWritingPath::OpenNewOrAsNew(UnixPlatform::FileLocation const& location) {
    Open(location, O_RDWR | O_CREAT | O_TRUNC);
}

void FileWritingPath::Flush() const {
    if (::fsync(Descriptor()) != 0) {
        ThrowError(errno);
    }
}

void FileWritingPath::FlushOnBrokenFilesystems() const {
    Flush();
}

void FileWritingPath::FlushOnBrokenFilesystemsWithRetry(::FileLocation const& location,
                                                        FileRetryLog const& log) const {
    RunWithRetry("FlushOnBrokenFilesystems", &location, nullptr, log, EmptyLocationRetry::retry,
                 [this] { FlushOnBrokenFilesystems(); });
}

void FileWritingPath::SetLength(unsigned long long length) {
    unsigned long long const current = Length();
    if (current >= length) {
        if (::ftruncate64(Descriptor(), static_cast<off64_t>(current)) != 0) {
            ThrowError(errno);
        }
        return;
    }
    if (Seek64(Descriptor(), 0, static_cast<unsigned int>(length - 1)) == -1) {
        ThrowError(errno);
    }
    unsigned char const zero = 0;
    if (::write(Descriptor(), &zero, 1) != 1) {
        ThrowError(errno);
    }
}

void FileWritingPath::ThrowError(UnixPlatform::FileLocation const& location, int code) const {
    ThrowMappedFileError(FileErrorColumn::writingPath, location.LogString(), code);
}

}  // namespace UnixPlatform

void FileWritingPath::OpenNew(FileLocation const& location) {
    location.RequireNonEmpty();
    OpenNew(location.Platform());
}

void FileWritingPath::OpenExisting(FileLocation const& location) {
    location.RequireNonEmpty();
    OpenExisting(location.Platform());
}

void FileWritingPath::OpenExistingOrNew(FileLocation const& location) {
    location.RequireNonEmpty();
    OpenExistingOrNew(location.Platform());
}

void FileWritingPath::OpenNewOrAsNew(FileLocation const& location) {
    location.RequireNonEmpty();
    OpenNewOrAsNew(location.Platform());
}
