#pragma once
// An open file for reading: a location and a raw descriptor with 64-bit offsets, and no buffer
// of its own. Readers and writers keep their own positions and seek before every transfer.

#include "files/FileLocation.h"

namespace UnixPlatform {

class FileReadingPath {
  public:
    FileReadingPath() : m_fd(-1), m_unseekable(false) {}
    FileReadingPath(FileReadingPath const&) = delete;
    FileReadingPath& operator=(FileReadingPath const&) = delete;
    // Closes the descriptor and swallows any failure.
    virtual ~FileReadingPath();

    // Opens the location read-only, closing what was open before. The kernel's message file,
    // "/proc/kmsg" in any case, is never opened: it throws a plain FileIOError with code 0.
    // Other failures throw the mapped FileIOError.
    void OpenExisting(UnixPlatform::FileLocation const& location);
    // Closes the descriptor; does nothing when none is open. Throws the mapped FileIOError when
    // close fails, with the path closed all the same.
    void Close();
    // Returns the length of the file, or all ones for a descriptor that can't seek (a pipe);
    // once found unseekable it stays so without touching the descriptor again. Throws
    // FileNotOpenError when nothing is open.
    unsigned long long Length() const;

    // Throws the class of the file failure family that code means to this object; does nothing
    // for 0.
    virtual void ThrowError(UnixPlatform::FileLocation const& location, int code) const;
    void ThrowError(int code) const { ThrowError(m_location, code); }

    UnixPlatform::FileLocation const& Location() const { return m_location; }
    int Descriptor() const { return m_fd; }
    bool IsOpen() const { return m_fd != -1; }
    // Returns whether Length() has found that the descriptor can't seek.
    bool Unseekable() const { return m_unseekable; }

  protected:
    // Closes, then opens the stored location with the flags and mode 0666 less the umask; the
    // descriptor is not inherited by child processes.
    void Open(UnixPlatform::FileLocation const& location, int flags);

  private:
    UnixPlatform::FileLocation m_location;
    int m_fd;
    mutable bool m_unseekable;
};

}  // namespace UnixPlatform

// The reading path for a checked location.
class FileReadingPath : public UnixPlatform::FileReadingPath {
  public:
    FileReadingPath() = default;
    // Opens as OpenExisting.
    explicit FileReadingPath(FileLocation const& location) { OpenExisting(location); }

    using UnixPlatform::FileReadingPath::OpenExisting;
    // Throws EmptyFileLocationError for an empty location, else opens it read-only.
    void OpenExisting(FileLocation const& location);
};
