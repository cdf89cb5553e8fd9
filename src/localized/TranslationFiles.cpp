#include "localized/TranslationFiles.h"

#include "files/FileReader.h"
#include "files/FileReadingPath.h"
#include "localized/LocalizedErrors.h"

namespace {

// Returns the length of the file, refusing what a 32-bit count can't hold.
std::size_t CheckedLength(FileReadingPath const& path) {
    unsigned long long const length = path.Length();
    if (length > 0xFFFFFFFFULL) throw RequiredValueWouldOverflow();
    return static_cast<std::size_t>(length);
}

// Returns the contents read whole from the open file.
UStringRef<UTF8> ReadAll(FileReadingPath const& path, SizedAutoArray<unsigned char> const& into) {
    UnixPlatform::FileReader reader(path, 0);
    if (into.Count() != 0) reader >> Data(into.begin(), into.end());
    return UStringRef<UTF8>(into.begin(), into.end());
}

}  // namespace

FormatFile::FormatFile(FileLocation const& location) : FormatFile(FileReadingPath(location)) {}

FormatFile::FormatFile(FileReadingPath const& path)
    : m_contents(CheckedLength(path)), m_overrides(ReadAll(path, m_contents)) {}

std::set<SharingPtr<FormatFile> > m_formatFiles;
std::set<SharingPtr<FormatOverrideScope> > m_formatOverrides;

void AddTranslationFile(FileLocation const& location) {
    SharingPtr<FormatFile> const file(new FormatFile(location));
    SharingPtr<FormatOverrideScope> const scope(
        new FormatOverrideScope(file->Overrides(), GlobalFormatOverrideContext()));
    m_formatFiles.insert(file);
    m_formatOverrides.insert(scope);
}
