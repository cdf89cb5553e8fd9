#include "files/FileIOErrorClasses.h"

#include "files/FileLocation.h"

FileNotFoundError::FileNotFoundError(FileLocation const& location, int code)
    : FileIOError(location.LogString(), code) {}
FileNotFoundError::FileNotFoundError(UnixPlatform::FileLocation const& location, int code)
    : FileIOError(location.LogString(), code) {}

FileFoundError::FileFoundError(FileLocation const& location, int code)
    : FileIOError(location.LogString(), code) {}
FileFoundError::FileFoundError(UnixPlatform::FileLocation const& location, int code)
    : FileIOError(location.LogString(), code) {}

FileItemError::FileItemError(FileLocation const& location, int code)
    : FileIOError(location.LogString(), code) {}
FileItemError::FileItemError(UnixPlatform::FileLocation const& location, int code)
    : FileIOError(location.LogString(), code) {}
