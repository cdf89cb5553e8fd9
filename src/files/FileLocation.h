#pragma once
// A whole path in the local 8-bit encoding, without trailing slashes except for the root "/".
// UnixPlatform::FileLocation does the work; the plain FileLocation wraps it and refuses the
// empty path, which is a legal value but not a place, with EmptyFileLocationError.

#include <string>

#include "files/FileName.h"
#include "files/PathStorage.h"
#include "text/bytes/ConstData.h"
#include "text/unicode/UString.h"

namespace UnixPlatform {

class UnixFileInfo;

class FileLocation : public PathStorage<128> {
  public:
    FileLocation() = default;

    // Stores the text less its trailing slashes, keeping at least one character, so "/" stays
    // "/" and "/a//" becomes "/a". An empty text stores the empty path; the location's own
    // text is left as it stands.
    void SetFullPathName(char const* text, unsigned long length);
    // Stores parent "/" child, without the "/" when the child begins with one, and without the
    // child's trailing slashes; an empty child copies the parent. Throws EmptyFileLocationError
    // for an empty parent. The parent's own trailing "/" is not looked at, so a child of "/"
    // gets two slashes. The stored length is always parent + child + 1, one above the text
    // when the child begins with "/"; only the storage size sees that.
    void Set(FileLocation const& parent, ConstData const& child);
    // Returns Set with this location as the parent; the path is not checked as a name.
    FileLocation Relative(char const* path) const;

    // Returns the path up to its last "/", or "/" when that is the first character. Throws
    // RootHasNoParent for "/", EmptyFileLocationError for the empty path, and
    // InvalidFileLocation for a path without any "/".
    FileLocation Parent() const;
    // Returns the text behind the last "/"; the empty path gives the empty name. Throws
    // IllegalFileNameLength for the root, and the name errors for a text that isn't a name.
    FileName Name() const;
    // Returns whether the path is "/"; throws EmptyFileLocationError for the empty path.
    bool IsRoot() const;
    // Returns whether the path leads, through links, to a regular file.
    bool IsFile() const;
    // Returns whether the target has no write bit for anybody; throws the mapped FileIOError
    // when it can't be examined.
    bool IsReadOnly() const;
    // Returns what stands at the path; throws the mapped FileIOError when nothing does.
    UnixFileInfo GetValidInfo() const;
    // Returns the path as a string.
    std::string LogString() const { return Text(); }
    // Returns a view of the path; valid while the location is unchanged.
    UStringRef<Local8Bit> Local8BitPath() const;
};

}  // namespace UnixPlatform

class FileLocation {
  public:
    // The empty path.
    FileLocation() = default;
    explicit FileLocation(UnixPlatform::FileLocation const& location) : m_location(location) {}
    // The parent's child of that name. Throws EmptyFileLocationError for an empty parent.
    FileLocation(FileLocation const& parent, FileName const& name);
    // Applies the name rules to the text first; a null text gives the parent's location.
    FileLocation(FileLocation const& parent, char const* name);
    // The parent's child of that text, which is not checked as a name.
    FileLocation(FileLocation const& parent, ConstData name);

    // Returns the child of that name; throws EmptyFileLocationError on an empty path.
    FileLocation Child(FileName const& name) const;
    // Returns the parent's child of that name.
    FileLocation Sibling(FileName const& name) const;
    // Throws EmptyFileLocationError on an empty path.
    void RequireNonEmpty() const;

    // The checked forms of the platform operations.
    FileLocation Parent() const;
    FileName Name() const;
    bool IsRoot() const;
    bool IsFile() const;
    bool IsReadOnly() const;

    bool Empty() const { return m_location.Empty(); }
    char const* Text() const { return m_location.Text(); }
    std::string LogString() const { return m_location.LogString(); }
    UStringRef<Local8Bit> Local8BitPath() const { return m_location.Local8BitPath(); }
    UnixPlatform::FileLocation const& Platform() const { return m_location; }
    UnixPlatform::FileLocation& Platform() { return m_location; }

  private:
    UnixPlatform::FileLocation m_location;
};

// Compare the texts through ASCII lower case, so "/Tmp" equals "/tmp" even where the file
// system tells them apart. Deliberate; callers that key maps by location rely on it.
bool operator==(FileLocation const& a, FileLocation const& b);
bool operator!=(FileLocation const& a, FileLocation const& b);
bool operator<(FileLocation const& a, FileLocation const& b);
