#include "session/ProcessInitializationInfo.h"

#include "files/FileCreate.h"
#include "files/FileDelete.h"
#include "files/FileErrors.h"
#include "files/UnixFileInfo.h"
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

}  // namespace

void ProcessInitializationInfo(InitializationInfo const& info) {
    m_baseDirectory = info.m_baseDirectory;
    ForceEmptySessionDirectory(m_baseDirectory);
    for (FileTransfer const& file : info.m_supportFiles) {
        // Without a name the location would be the directory itself.
        if (file.m_name.Empty()) throw IllegalFileNameLength();
        file.WriteToFile(FileLocation(m_baseDirectory, file.m_name));
    }
    // The locale names and the translation files among the support files are taken up here.
    InitialUISettings const& settings = info.m_settings;
    if (!settings.m_remindTime.IsNull()) m_postponedTo = Instant(*settings.m_remindTime);
    m_remindInterval = settings.m_remindInterval;
    m_snoozable = settings.m_allowSnooze;
    initialized = true;
}
