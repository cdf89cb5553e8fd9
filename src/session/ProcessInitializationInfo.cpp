#include "session/ProcessInitializationInfo.h"

#include <clocale>
#include <string>

#include "files/FileCreate.h"
#include "files/FileDelete.h"
#include "files/FileErrors.h"
#include "files/UnixFileInfo.h"
#include "localized/TranslationFiles.h"
#include "session/InitializationInfo.h"
#include "session/SessionErrors.h"
#include "session/SessionState.h"

namespace {

// The session directory may hold what the agent would not show to other users of the machine.
// The umask can narrow this further, never widen it.
DirectoryCreatingInfo PrivateDirectory() {
    DirectoryCreatingInfo info;
    info.mode = 0700;
    return info;
}

// Leaves an empty directory at the location: what the last session left there is removed here
// and nowhere else. Nothing is refused for its owner; a link is refused, since emptying through
// it would empty whatever directory it points to.
void ForceEmptySessionDirectory(FileLocation const& location) {
    UnixPlatform::UnixFileInfo existing;
    existing.Set(location.Platform());
    if (existing.IsLink()) throw SessionDirectoryIsLink();
    if (existing.Exists())
        ForceDeleteContents(location);
    else
        CreateDirectoryTree(location, PrivateDirectory());
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
    ForceEmptySessionDirectory(m_baseDirectory);
    for (FileTransfer const& file : info.m_supportFiles) {
        // Without a name the location would be the directory itself.
        if (file.m_name.Empty()) throw IllegalFileNameLength();
        file.WriteToFile(FileLocation(m_baseDirectory, file.m_name));
    }
    AddTranslations(info);
    InitialUISettings const& settings = info.m_settings;
    if (!settings.m_remindTime.IsNull()) m_postponedTo = Instant(*settings.m_remindTime);
    m_remindInterval = settings.m_remindInterval;
    m_snoozable = settings.m_allowSnooze;
    initialized = true;
}
