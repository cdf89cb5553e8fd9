#include "files/UnixFileInfo.h"

#include "files/FileLocation.h"

long long InstantToFileTime(Instant const& time) {
    long long const microseconds = time.Microseconds();
    long long seconds = microseconds / 1000000;
    if (microseconds % 1000000 < 0) {
        --seconds;
    }
    return seconds;
}

Instant FileTimeToInstant(long long const& seconds) {
    return Instant(static_cast<std::int64_t>(seconds) * 1000000);
}

namespace UnixPlatform {

int UnixFileInfo::Set(FileLocation const& location) {
    return get(location.Text());
}

UnixFileInfo Look(::FileLocation const& location) {
    UnixFileInfo info;
    info.Set(location.Platform());
    return info;
}

bool UnixFileInfo::IsFile() const {
    return (status == plain || status == link) && S_ISREG(target.st_mode);
}

bool UnixFileInfo::IsDirectory() const {
    return (status == plain || status == link) && S_ISDIR(target.st_mode);
}

Instant UnixFileInfo::ModificationTime() const {
    return FileTimeToInstant(static_cast<long long>(target.st_mtime));
}

Instant UnixFileInfo::AccessTime() const {
    return FileTimeToInstant(static_cast<long long>(target.st_atime));
}

void UnixFileInfo::SetModificationTime(Instant const& time) {
    target.st_mtim.tv_sec = static_cast<time_t>(InstantToFileTime(time));
    target.st_mtim.tv_nsec = 0;
}

bool UnixFileInfo::operator==(UnixFileInfo const& other) const {
    return status == other.status && target.st_dev == other.target.st_dev &&
           target.st_ino == other.target.st_ino && target.st_mode == other.target.st_mode &&
           target.st_size == other.target.st_size && target.st_mtime == other.target.st_mtime;
}

}  // namespace UnixPlatform
