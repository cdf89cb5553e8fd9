#include "files/FileLoop.h"

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <new>
#include <string>

#include "files/AdviceFileTypes.h"
#include "files/FileErrors.h"
#include "files/WildCard.h"

namespace {

int NotDotOrDotDot(struct dirent64 const* entry) {
    char const* name = entry->d_name;
    return !(name[0] == '.' && (name[1] == 0 || (name[1] == '.' && name[2] == 0)));
}

}  // namespace

namespace UnixPlatform {

FileLoop::~FileLoop() {
    EmptyList();
}

void FileLoop::EmptyList() {
    if (m_names) {
        for (int i = 0; i < m_count; ++i) {
            std::free(m_names[i]);
        }
        std::free(m_names);
    }
    m_names = nullptr;
    m_count = 0;
    m_index = 0;
}

void FileLoop::BuildNameList(char const* wildcard) {
    EmptyList();
    struct dirent64** names = nullptr;
    int const count = ::scandir64(m_directory.Text(), &names, NotDotOrDotDot, ::alphasort64);
    if (count < 0) {
        if (errno == ENOMEM) {
            throw std::bad_alloc();
        }
        return;
    }
    m_names = names;
    m_count = count;
    if (wildcard) {
        int kept = 0;
        for (int i = 0; i < count; ++i) {
            if (MatchesWildCard(names[i]->d_name, wildcard)) {
                names[kept++] = names[i];
            } else {
                std::free(names[i]);
            }
        }
        m_count = kept;
    }
    if (m_count == 0) {
        EmptyList();
    }
}

void FileLoop::SetLoopItem() {
    char const* name = m_names[m_index]->d_name;
    int const code = m_item.SetAndGet(m_directory, ConstData(name));
    m_item.HandleGetError(code, m_tryToGet);
}

void FileLoop::Start(UnixPlatform::FileLocation const& directory, bool tryToGet,
                     char const* wildcard) {
    m_tryToGet = tryToGet;
    if (&directory != &m_directory) {
        m_directory = directory;
    }
    BuildNameList(wildcard);
    if (Finished()) {
        return;
    }
    try {
        SetLoopItem();
    } catch (FileIOError const&) {
        ++*this;
    }
}

void FileLoop::init(UnixPlatform::FileLocation const& directory, bool tryToGet,
                    char const* wildcard) {
    try {
        Start(directory, tryToGet, wildcard);
    } catch (...) {
        EmptyList();
        throw;
    }
}

FileLoop& FileLoop::operator++() {
    for (;;) {
        if (Finished()) {
            return *this;
        }
        ++m_index;
        if (m_index == m_count) {
            EmptyList();
            return *this;
        }
        try {
            SetLoopItem();
            return *this;
        } catch (FileIOError const&) {
            // The entry vanished or can't be looked at since the listing: skip it.
        }
    }
}

UnixPlatform::FileItem const& FileLoop::Current() const {
    if (Finished()) {
        throw InvalidIteratorPosition();
    }
    return m_item;
}

}  // namespace UnixPlatform

FileLoop::FileLoop(FileLocation const& directory, char const* wildcard, bool tryToGet) {
    Start(directory, wildcard, tryToGet);
}

FileLoop::FileLoop(FileLocation const& directory, KetralFileType type) {
    Start(directory, type);
}

void FileLoop::Start(FileLocation const& directory, char const* wildcard, bool tryToGet) {
    directory.RequireNonEmpty();
    init(directory.Platform(), tryToGet, wildcard);
}

void FileLoop::Start(FileLocation const& directory, KetralFileType type) {
    std::string const wildcard = std::string("*") + AdviceFileTypes::ExtensionOfType(type);
    Start(directory, wildcard.c_str());
}

FileItem const& FileLoop::operator*() const {
    m_value = FileItem(Current());
    return m_value;
}
