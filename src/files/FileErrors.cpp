#include "files/FileErrors.h"

#include <cstring>
#include <typeinfo>

#include "files/FileLocation.h"

// The XSI form of strerror_r, which reports an unknown number as a failure. The C library
// exports it under this name; <string.h> declares only the GNU form in this build.
extern "C" int __xpg_strerror_r(int code, char* buffer, std::size_t size);

struct FileIOError::Record {
    int code;
    std::string first;
    std::string second;
    std::string message;
};

std::string MakeErrorString(unsigned long code) {
    char buffer[256];
    buffer[0] = 0;
    if (__xpg_strerror_r(static_cast<int>(code), buffer, sizeof buffer) == 0) {
        return "Error: " + std::to_string(code) + ": " + buffer;
    }
    return "Unknown error: " + std::to_string(code);
}

FileIOError::FileIOError(int code) : m_record(new Record{code, {}, {}, {}}) {}

FileIOError::FileIOError(ConstData first, int code)
    : m_record(new Record{code, MakeString(first), {}, {}}) {}

FileIOError::FileIOError(ConstData first, ConstData second, int code)
    : m_record(new Record{code, MakeString(first), MakeString(second), {}}) {}

FileIOError::FileIOError(FileIOError const& other)
    : DebuggableException(other), m_record(new Record(*other.m_record)) {}

FileIOError& FileIOError::operator=(FileIOError const& other) {
    if (this != &other) {
        DebuggableException::operator=(other);
        m_record->code = other.m_record->code;
        m_record->first = other.m_record->first;
        m_record->second = other.m_record->second;
    }
    return *this;
}

FileIOError::~FileIOError() = default;

int FileIOError::GetCode() const {
    return m_record->code;
}
std::string const& FileIOError::GetFirst() const {
    return m_record->first;
}
std::string const& FileIOError::GetSecond() const {
    return m_record->second;
}

std::string FileIOError::MakeErrorMessage() const {
    std::string message = "File error \"";
    message += typeid(*this).name();
    message += "\"";
    if (!m_record->first.empty()) {
        message += " on \"" + m_record->first + "\"";
    }
    if (!m_record->second.empty()) {
        message += " and \"" + m_record->second + "\"";
    }
    if (m_record->code != 0) {
        message += ": " + MakeErrorString(static_cast<unsigned long>(m_record->code));
    }
    return message;
}

char const* FileIOError::what() const noexcept {
    try {
        m_record->message = MakeErrorMessage();
        return m_record->message.c_str();
    } catch (...) {
        return typeid(*this).name();
    }
}

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
