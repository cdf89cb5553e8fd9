#pragma once
// A path together with what stands at it. A dangling symbolic link is reported as an error
// unless the caller tries to get links whatever their state.

#include <cstdint>

#include "files/FileLocation.h"
#include "files/UnixFileInfo.h"
#include "time/Instant.h"
#include "time/TimeInterval.h"

class FileRetryLog;

namespace UnixPlatform {

class FileItem : public UnixFileInfo {
  public:
    FileItem() = default;

    UnixPlatform::FileLocation const& Location() const { return m_location; }
    // Sets the location to parent/name and looks at it. Returns 0 or the errno of the look.
    int SetAndGet(UnixPlatform::FileLocation const& parent, ConstData name);
    // Looks at the stored location again. Returns 0 or the errno of the look.
    int Get() { return Set(m_location); }

    // Returns whether a failed look must be reported: always, except for a dangling link when
    // the caller tries to get.
    bool MustReportError(bool tryToGet) const;
    // Throws the mapped FileIOError for code when MustReportError says so; nothing for 0.
    void HandleGetError(int code, bool tryToGet) const;
    // Returns the opposite of MustReportError.
    bool HandleTryToGetError(bool tryToGet) const { return !MustReportError(tryToGet); }

    // Stores the time in this record and sets the file's access and modification times from
    // the record, in whole seconds. Throws InvalidStats when nothing stands at the path,
    // FileNotFoundError for ENOENT, FilePermissionError for EACCES, else a plain FileIOError.
    void SetModificationTime(Instant time);

  protected:
    UnixPlatform::FileLocation m_location;
};

}  // namespace UnixPlatform

class FileItem : public UnixPlatform::FileItem {
  public:
    FileItem() = default;
    explicit FileItem(UnixPlatform::FileItem const& item) : UnixPlatform::FileItem(item) {}
    // Looks at the location. Throws EmptyFileLocationError, and the mapped FileIOError when
    // nothing usable stands there; a dangling link gives FileNotFoundError.
    explicit FileItem(FileLocation const& location);

    FileLocation Location() const { return FileLocation(m_location); }

    // Returns the complement of the CRC (ChecksumReceiver) of the whole file. Throws what
    // ReadFile throws.
    std::uint32_t Checksum() const;

    // Returns the time cut to what the file system keeps: whole seconds.
    static Instant RoundToFileSystem(Instant time);
    // Returns the offset between file times and the clock: none on this platform.
    static TimeInterval GetTimeBias() { return TimeInterval(0); }

    // SetModificationTime under the retry policy, reported as "SetModificationTime".
    void SetModificationTimeWithRetry(Instant time, FileRetryLog const& log);
};
