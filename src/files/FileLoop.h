#pragma once
// Walks the entries of one directory in alphasort order, "." and ".." never among them. The
// names are listed once at the start; an entry that vanishes before its turn is skipped without
// a word, and a directory that can't be read looks empty.
//
//   for (FileLoop loop(directory, "*.xlat"); !loop.Finished(); ++loop) use(*loop);

#include <dirent.h>

#include "files/AdviceFileTypes.h"
#include "files/FileItem.h"
#include "files/FileLocation.h"
#include "threads/DebuggableException.h"

namespace UnixPlatform {

class FileLoop {
  public:
    // Misuse of a loop; stands outside the file failure family.
    class Error : public DebuggableException {};
    // A finished loop was dereferenced.
    class InvalidIteratorPosition : public Error {};

    FileLoop() : m_names(nullptr), m_count(0), m_index(0), m_tryToGet(false) {}
    FileLoop(FileLoop const&) = delete;
    FileLoop& operator=(FileLoop const&) = delete;
    // Frees the list.
    virtual ~FileLoop();

    // Lists the directory, keeping the names that match wildcard (all when null), and moves to
    // the first entry that can be looked at. With tryToGet a dangling link counts as an entry.
    // Throws std::bad_alloc when the list can't be held.
    void Start(UnixPlatform::FileLocation const& directory, bool tryToGet, char const* wildcard);
    // Start, with the list emptied again when anything throws.
    void init(UnixPlatform::FileLocation const& directory, bool tryToGet, char const* wildcard);
    // Moves to the next entry that can be looked at, or to the end.
    FileLoop& operator++();

    bool Finished() const { return !m_names || m_index >= m_count; }
    bool Unfinished() const { return !Finished(); }
    // Returns the current entry; throws InvalidIteratorPosition on a finished loop.
    UnixPlatform::FileItem const& Current() const;
    UnixPlatform::FileLocation const& Directory() const { return m_directory; }

  private:
    void BuildNameList(char const* wildcard);
    // Frees the names and the array.
    void EmptyList();
    // Makes the current item from the name at the index; throws its FileIOError.
    void SetLoopItem();

    UnixPlatform::FileItem m_item;
    UnixPlatform::FileLocation m_directory;
    struct dirent64** m_names;
    int m_count;
    int m_index;
    bool m_tryToGet;
};

}  // namespace UnixPlatform

class FileLoop : public UnixPlatform::FileLoop {
  public:
    FileLoop() = default;
    // Start.
    FileLoop(FileLocation const& directory, char const* wildcard, bool tryToGet = false);
    // Start over the files of that type: the wildcard "*" and the type's extension.
    FileLoop(FileLocation const& directory, KetralFileType type);

    // Throw EmptyFileLocationError for an empty directory, else start as the platform loop.
    void Start(FileLocation const& directory, char const* wildcard, bool tryToGet = false);
    void Start(FileLocation const& directory, KetralFileType type);
    // The same as Start.
    void WildcardStart(FileLocation const& directory, char const* wildcard) {
        Start(directory, wildcard);
    }

    // Return the current entry, which the loop keeps until the next call; throw
    // InvalidIteratorPosition on a finished loop.
    FileItem const& operator*() const;
    FileItem const* operator->() const { return &**this; }

  private:
    mutable FileItem m_value;
};
