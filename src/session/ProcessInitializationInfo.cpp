#include "session/ProcessInitializationInfo.h"

#include <sys/stat.h>

#include <cerrno>
#include <climits>
#include <clocale>
#include <cstring>
#include <string>
#include <vector>

#include "files/FileCreate.h"
#include "files/FileDelete.h"
#include "files/FileErrors.h"
#include "files/UnixFileInfo.h"
#include "localized/TranslationFiles.h"
#include "session/InitializationInfo.h"
#include "session/SessionErrors.h"
#include "session/SessionState.h"
#include "session/Trace.h"

namespace {

// The longest path the system takes, terminator included, and the longest name of one
// component. A path that passes them fails at the first call that would use it, after what
// came before had already been made: so they are checked before anything is touched.
std::size_t const longestPath = PATH_MAX;
std::size_t const longestName = NAME_MAX;

// Writes the one trace line that says why the first document is refused, and throws.
template <class Refusal>
[[noreturn]] void Refuse(std::string const& why) {
    Trace([&] { return "refused InitializationInfo: " + why; });
    throw Refusal();
}

// Returns the path or name in quotes as the trace shows names from the agent's documents.
std::string Quoted(std::string const& text) {
    UTF8::Unit const* const begin = reinterpret_cast<UTF8::Unit const*>(text.data());
    return "\"" + PrintableName(UStringRef<UTF8>(begin, begin + text.size())) + "\"";
}

// Checks the session directory before anything is deleted or made. Emptying goes wherever the
// path leads, so it must lead nowhere but where it says: it is absolute, has no "." or ".."
// component (refused rather than resolved, since ".." after a link resolves elsewhere than the
// text suggests), and no component that exists is a symbolic link or anything but a directory.
// Components that do not exist yet will be made. Throws SessionDirectoryRefused, or
// SessionDirectoryIsLink for a link among the components.
void CheckSessionDirectory(FileLocation const& location) {
    std::string const path = location.Text();
    if (path.empty() || path[0] != '/')
        Refuse<SessionDirectoryRefused>("the session directory is no absolute path");
    if (path.size() >= longestPath)
        Refuse<SessionDirectoryRefused>("the session directory is longer than " +
                                        std::to_string(longestPath - 1) + " bytes");
    // The text first, then what exists: where each component ends.
    std::vector<std::size_t> ends;
    for (std::size_t start = 1; start <= path.size();) {
        std::size_t end = path.find('/', start);
        if (end == std::string::npos) end = path.size();
        std::string const name = path.substr(start, end - start);
        if (name == "." || name == "..")
            Refuse<SessionDirectoryRefused>(
                "the session directory has a \".\" or \"..\" component");
        if (name.size() > longestName)
            Refuse<SessionDirectoryRefused>("a component of the session directory is longer than " +
                                            std::to_string(longestName) + " bytes");
        if (!name.empty()) ends.push_back(end);
        start = end + 1;
    }
    // Emptying the root would empty the whole machine as far as the user may delete.
    if (ends.empty()) Refuse<SessionDirectoryRefused>("the session directory is the root");
    for (std::size_t end : ends) {
        std::string const prefix = path.substr(0, end);
        struct stat record;
        if (::lstat(prefix.c_str(), &record) != 0) {
            // Nothing below a missing directory exists: the rest will be made.
            if (errno == ENOENT) return;
            Refuse<SessionDirectoryRefused>(Quoted(prefix) + " cannot be examined");
        }
        if (S_ISLNK(record.st_mode))
            Refuse<SessionDirectoryIsLink>(Quoted(prefix) + " is a symbolic link");
        if (!S_ISDIR(record.st_mode))
            Refuse<SessionDirectoryRefused>(Quoted(prefix) + " is no directory");
    }
}

// Checks every support file before anything is deleted or made: a name, which every file
// needs, since without one its location would be the directory itself; a sub-folder that is
// empty or a name, although it plays no part in where the file lands; and a path that the
// system takes. Throws SupportFileRefused.
void CheckSupportFiles(FileLocation const& directory, std::vector<FileTransfer> const& files) {
    std::size_t const directoryLength = std::strlen(directory.Text());
    for (FileTransfer const& file : files) {
        std::string const name = file.m_name.Text();
        if (name.empty()) Refuse<SupportFileRefused>("a support file has no name");
        for (FileName const* part : {&file.m_name, &file.m_subFolder}) {
            std::string const text = part->Text();
            if (text.size() > longestName || text == "." || text == ".." ||
                text.find('/') != std::string::npos || part->Length() != text.size())
                Refuse<SupportFileRefused>("the support file " + Quoted(name) +
                                           " has a name or sub-folder that is no name");
        }
        if (directoryLength + 1 + name.size() >= longestPath)
            Refuse<SupportFileRefused>("the path of the support file " + Quoted(name) +
                                       " would be longer than " + std::to_string(longestPath - 1) +
                                       " bytes");
    }
}

// Leaves an empty directory at the checked location: what the last session left there is
// removed here and nowhere else. Nothing is refused for its owner. Missing parents are made as
// any program makes them, by the umask, since a shared root made owner-only by the first user
// would lock every other user out; only the session directory itself may hold what the agent
// would not show other users, so it is made owner-only (0700, the umask can only narrow it).
void ForceEmptySessionDirectory(FileLocation const& location) {
    UnixPlatform::UnixFileInfo existing;
    existing.Set(location.Platform());
    if (existing.Exists()) {
        ForceDeleteContents(location);
        return;
    }
    if (!location.IsRoot()) CreateDirectoryTree(location.Parent());
    DirectoryCreatingInfo ownerOnly;
    ownerOnly.mode = 0700;
    CreateDirectory(location, ownerOnly);
}

// The names by which translation files are chosen: "fr_CA" and "fr" for fr_CA.UTF-8.
struct LocaleNames {
    std::string fullLocale;
    std::string language;
};

// Takes the character type from the environment and returns its names, without the character
// set. Sets international unless the locale is the plain one. Throws NoCharacterTypeLocale when
// the environment names a locale the system does not have.
LocaleNames FindLocaleNames() {
    char const* const chosen = std::setlocale(LC_CTYPE, "");
    if (!chosen) throw NoCharacterTypeLocale();
    std::string const name = chosen;
    LocaleNames names;
    if (name.empty() || name == "C" || name == "POSIX") return names;
    international = true;
    names.fullLocale = name.substr(0, name.find('.'));
    std::string::size_type const underscore = names.fullLocale.find('_');
    if (underscore != std::string::npos) names.language = names.fullLocale.substr(0, underscore);
    return names;
}

FileName NameOrEmpty(std::string const& text) {
    return text.empty() ? FileName() : FileName(text.c_str());
}

// Adds the translation files among the support files: at most one brand file, the localized
// one before the plain one, and then the general file of the locale, which is thus asked first.
void AddTranslations(InitializationInfo const& info) {
    LocaleNames names;
    if (info.m_settings.m_useLocale) names = FindLocaleNames();
    FileName const fullLocale = NameOrEmpty(names.fullLocale);
    FileName const language = NameOrEmpty(names.language);
    NullOrConstRef<FileTransfer> const localizedBrand =
        info.LocalizedBrandTranslation(fullLocale, language);
    NullOrConstRef<FileTransfer> const brand = info.BrandTranslation();
    NullOrConstRef<FileTransfer> const general = info.GeneralLocalization(fullLocale, language);
    if (localizedBrand)
        AddTranslationFile(FileLocation(m_baseDirectory, localizedBrand->m_name));
    else if (brand)
        AddTranslationFile(FileLocation(m_baseDirectory, brand->m_name));
    if (general) AddTranslationFile(FileLocation(m_baseDirectory, general->m_name));
}

}  // namespace

void ProcessInitializationInfo(InitializationInfo const& info) {
    m_baseDirectory = info.m_baseDirectory;
    CheckSessionDirectory(m_baseDirectory);
    CheckSupportFiles(m_baseDirectory, info.m_supportFiles);
    ForceEmptySessionDirectory(m_baseDirectory);
    for (FileTransfer const& file : info.m_supportFiles)
        file.WriteToFile(FileLocation(m_baseDirectory, file.m_name));
    AddTranslations(info);
    InitialUISettings const& settings = info.m_settings;
    if (!settings.m_remindTime.IsNull()) m_postponedTo = Instant(*settings.m_remindTime);
    m_remindInterval = settings.m_remindInterval;
    m_snoozable = settings.m_allowSnooze;
    initialized = true;
}
