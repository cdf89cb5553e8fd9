#pragma once
// Turns a system error number into the class of the file failure family that callers catch by
// meaning. Each thrower has its own column: an open file for writing knows that EEXIST means the
// target exists and ENOSPC a full disk, a positioned read or write that EINVAL means a bad seek.

#include <string>

class FileLocation;
namespace UnixPlatform {
class FileLocation;
}

// The mark a reader uses for a read that came up short; it is no system error number here.
int const endOfFileErrorCode = 90;

// The column of the mapping table a thrower uses.
enum class FileErrorColumn {
    general,      // ThrowFileError and FileReadingPath::ThrowError
    writingPath,  // FileWritingPath::ThrowError
    writer,       // FileWriter::ThrowError
    reader,       // FileReader::ThrowError
};

// Throws the class that the column gives the code, with first as the path; a number the column
// doesn't know gives a plain FileIOError. Does nothing for a code of 0.
void ThrowMappedFileError(FileErrorColumn column, std::string const& first, int code);

// Throws the general mapping of code with the location's path; does nothing for 0.
void ThrowFileError(FileLocation const& location, int code);
void ThrowFileError(UnixPlatform::FileLocation const& location, int code);
