#pragma once
// FileStats with accessors: what kind of thing stands at a path and its times. File times are
// whole seconds of the Unix clock; they convert to and from Instant through 64-bit microseconds.

#include <cstdint>

#include "files/FileStats.h"
#include "time/Instant.h"

// Returns the whole seconds of the instant, rounded down, so that a time before 1970 stays at or
// before the instant.
long long InstantToFileTime(Instant const& time);
// Returns the instant of a file time in seconds.
Instant FileTimeToInstant(long long const& seconds);

class FileLocation;

namespace UnixPlatform {

class FileLocation;

class UnixFileInfo : public FileStats {
  public:
    // Looks at the location. Returns 0, or the errno of the failed call.
    int Set(FileLocation const& location);

    Status GetStatus() const { return status; }
    bool Exists() const { return status != absent; }
    // Returns whether the path itself is a symbolic link, with or without a target.
    bool IsLink() const { return status == link || status == dangling; }
    // Returns whether the target is a regular file or a directory; never for a dangling link.
    bool IsFile() const;
    bool IsDirectory() const;
    // Returns the size of the target in bytes.
    std::uint64_t Size() const { return static_cast<std::uint64_t>(target.st_size); }

    Instant ModificationTime() const;
    Instant AccessTime() const;
    // Changes the modification time of this record only; the file is not touched.
    void SetModificationTime(Instant const& time);

    // Returns whether both records say the same thing stands there, unchanged: status, device,
    // inode, mode, size and modification time of the target.
    bool operator==(UnixFileInfo const& other) const;
    bool operator!=(UnixFileInfo const& other) const { return !(*this == other); }
};

// Returns what stands at the location now; a location that cannot be looked at reads as absent.
UnixFileInfo Look(::FileLocation const& location);

}  // namespace UnixPlatform
