#include "files/FileLocation.h"

#include <sys/stat.h>

#include <cstring>

#include "files/FileErrors.h"
#include "files/ThrowFileError.h"
#include "files/UnixFileInfo.h"
#include "text/bytes/Ascii.h"

namespace UnixPlatform {

void FileLocation::SetFullPathName(char const* text, unsigned long length) {
    if (text == Text()) {
        return;
    }
    while (length > 1 && text[length - 1] == '/') {
        --length;
    }
    Assign(text, length);
}

void FileLocation::Set(FileLocation const& parent, ConstData const& child) {
    if (parent.Empty()) {
        throw EmptyFileLocationError(0);
    }
    if (child.Empty()) {
        if (&parent != this) {
            *this = parent;
        }
        return;
    }
    std::size_t childLength = child.Size();
    while (childLength > 1 && child[childLength - 1] == '/') {
        --childLength;
    }
    bool const slash = child[0] != '/';
    // parent may be this very object, so the new text is built apart and then taken over.
    std::size_t const parentLength = parent.TextLength();
    FileLocation result;
    char* text = result.Reserve(parentLength + childLength + 1);
    std::memcpy(text, parent.Text(), parentLength);
    std::size_t at = parentLength;
    if (slash) {
        text[at++] = '/';
    }
    std::memcpy(text + at, child.begin, childLength);
    text[at + childLength] = 0;
    *this = std::move(result);
}

FileLocation FileLocation::Relative(char const* path) const {
    FileLocation result;
    result.Set(*this, ConstData(path));
    return result;
}

FileLocation FileLocation::Parent() const {
    if (IsRoot()) {
        throw RootHasNoParent(LogString(), 0);
    }
    char const* text = Text();
    char const* slash = std::strrchr(text, '/');
    if (!slash) {
        throw InvalidFileLocation(LogString(), 0);
    }
    FileLocation result;
    if (slash == text) {
        result.SetFullPathName("/", 1);
    } else {
        result.SetFullPathName(text, slash - text);
    }
    return result;
}

FileName FileLocation::Name() const {
    FileName name;
    if (Empty()) {
        return name;
    }
    char const* text = Text();
    char const* slash = std::strrchr(text, '/');
    char const* start = slash ? slash + 1 : text;
    name.Set(start, std::strlen(start));
    return name;
}

bool FileLocation::IsRoot() const {
    if (Empty()) {
        throw EmptyFileLocationError(0);
    }
    return std::strcmp(Text(), "/") == 0;
}

bool FileLocation::IsFile() const {
    struct stat64 record;
    return ::stat64(Text(), &record) == 0 && S_ISREG(record.st_mode);
}

bool FileLocation::IsReadOnly() const {
    struct stat64 record;
    if (::stat64(Text(), &record) != 0) {
        ThrowFileError(*this, errno);
    }
    return (record.st_mode & (S_IWUSR | S_IWGRP | S_IWOTH)) == 0;
}

UnixFileInfo FileLocation::GetValidInfo() const {
    UnixFileInfo info;
    ThrowFileError(*this, info.Set(*this));
    return info;
}

UStringRef<Local8Bit> FileLocation::Local8BitPath() const {
    char const* text = Text();
    return UStringRef<Local8Bit>(text, text + TextLength(), true);
}

}  // namespace UnixPlatform

FileLocation::FileLocation(FileLocation const& parent, FileName const& name) {
    m_location.Set(parent.m_location, name.Bytes());
}

FileLocation::FileLocation(FileLocation const& parent, char const* name) {
    if (!name) {
        m_location = parent.m_location;
        return;
    }
    m_location.Set(parent.m_location, FileName(name).Bytes());
}

FileLocation::FileLocation(FileLocation const& parent, ConstData name) {
    m_location.Set(parent.m_location, name);
}

FileLocation FileLocation::Child(FileName const& name) const {
    return FileLocation(*this, name);
}

FileLocation FileLocation::Sibling(FileName const& name) const {
    return FileLocation(Parent(), name);
}

void FileLocation::RequireNonEmpty() const {
    if (Empty()) {
        throw EmptyFileLocationError(0);
    }
}

FileLocation FileLocation::Parent() const {
    RequireNonEmpty();
    return FileLocation(m_location.Parent());
}

FileName FileLocation::Name() const {
    RequireNonEmpty();
    return m_location.Name();
}

bool FileLocation::IsRoot() const {
    RequireNonEmpty();
    return m_location.IsRoot();
}

bool FileLocation::IsFile() const {
    RequireNonEmpty();
    return m_location.IsFile();
}

bool FileLocation::IsReadOnly() const {
    RequireNonEmpty();
    return m_location.IsReadOnly();
}

namespace {

int CompareLocations(FileLocation const& a, FileLocation const& b) {
    return Ascii::CompareLowercase(ConstData(a.Text()), ConstData(b.Text()));
}

}  // namespace

bool operator==(FileLocation const& a, FileLocation const& b) {
    return CompareLocations(a, b) == 0;
}
bool operator!=(FileLocation const& a, FileLocation const& b) {
    return CompareLocations(a, b) != 0;
}
bool operator<(FileLocation const& a, FileLocation const& b) {
    return CompareLocations(a, b) < 0;
}
