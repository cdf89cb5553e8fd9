#include "files/FileItem.h"

#include <sys/time.h>

#include <cerrno>

#include "files/FileErrors.h"
#include "files/ReadFile.h"
#include "files/RetryPolicy.h"
#include "files/ThrowFileError.h"
#include "files/UnixFileInfo.h"
#include "text/streams/ChecksumReceiver.h"

namespace UnixPlatform {

int FileItem::SetAndGet(UnixPlatform::FileLocation const& parent, ConstData name) {
    m_location.Set(parent, name);
    return Get();
}

bool FileItem::MustReportError(bool tryToGet) const {
    return status == dangling ? !tryToGet : true;
}

void FileItem::HandleGetError(int code, bool tryToGet) const {
    if (MustReportError(tryToGet)) {
        ThrowFileError(m_location, code);
    }
}

void FileItem::SetModificationTime(Instant time) {
    if (status == absent) {
        throw InvalidStats(m_location.LogString(), 0);
    }
    UnixFileInfo::SetModificationTime(time);
    struct timeval times[2] = {};
    times[0].tv_sec = target.st_atime;
    times[1].tv_sec = target.st_mtime;
    if (::utimes(m_location.Text(), times) != 0) {
        int const code = errno;
        switch (code) {
            case ENOENT:
                throw FileNotFoundError(m_location, code);
            case EACCES:
                throw FilePermissionError(m_location.LogString(), code);
            default:
                throw FileIOError(m_location.LogString(), code);
        }
    }
}

}  // namespace UnixPlatform

FileItem::FileItem(FileLocation const& location) {
    location.RequireNonEmpty();
    m_location = location.Platform();
    HandleGetError(Get(), false);
}

std::uint32_t FileItem::Checksum() const {
    ChecksumReceiver checksum;
    ReadFile(Location(), checksum, 0);
    return ~checksum.Value();
}

Instant FileItem::RoundToFileSystem(Instant time) {
    return FileTimeToInstant(InstantToFileTime(time));
}

void FileItem::SetModificationTimeWithRetry(Instant time, FileRetryLog const& log) {
    FileLocation const location = Location();
    RunWithRetry("SetModificationTime", &location, nullptr, log, EmptyLocationRetry::retry,
                 [&] { SetModificationTime(time); });
}
