#include "session/InitializationInfo.h"

#include <cstring>

#include "text/bytes/Ascii.h"
#include "xml/XMLLoad.h"

namespace {

// Returns the first file without a sub-folder whose name is the text, ignoring ASCII case.
NullOrConstRef<FileTransfer> Find(std::vector<FileTransfer> const& files, std::string const& name) {
    for (FileTransfer const& file : files) {
        if (file.m_subFolder.Empty() && Ascii::EqualIgnoringCase(file.m_name.Bytes(), name))
            return NullOrConstRef<FileTransfer>(file);
    }
    return NullOrConstRef<FileTransfer>();
}

std::string Text(FileName const& name) {
    return std::string(name.Text(), name.TextLength());
}

}  // namespace

NullOrConstRef<FileTransfer> InitializationInfo::GetLocalization(FileName const& prefix,
                                                                 FileName const& fullLocale,
                                                                 FileName const& language) const {
    for (FileName const* locale : {&fullLocale, &language}) {
        if (locale->Empty()) continue;
        NullOrConstRef<FileTransfer> found =
            Find(m_supportFiles, Text(prefix) + Text(*locale) + ".xlat");
        if (found) return found;
    }
    return NullOrConstRef<FileTransfer>();
}

NullOrConstRef<FileTransfer> InitializationInfo::BrandTranslation() const {
    return Find(m_supportFiles, "_brand.xlat");
}

NullOrConstRef<FileTransfer> InitializationInfo::LocalizedBrandTranslation(
    FileName const& fullLocale, FileName const& language) const {
    return GetLocalization(FileName("_brand"), fullLocale, language);
}

NullOrConstRef<FileTransfer> InitializationInfo::GeneralLocalization(
    FileName const& fullLocale, FileName const& language) const {
    return GetLocalization(FileName(), fullLocale, language);
}

NullOrConstRef<FileTransfer> InitializationInfo::BrandIcon() const {
    return Find(m_supportFiles, "_clientui.ico");
}

NullOrConstRef<FileTransfer> InitializationInfo::TechnicianPage() const {
    return Find(m_supportFiles, "_currentTechnician.html");
}

NullOrConstRef<FileTransfer> InitializationInfo::Dashboard() const {
    return Find(m_supportFiles, "_currentDashboard.html");
}

NullOrConstRef<FileTransfer> InitializationInfo::NoSelectionPage() const {
    return Find(m_supportFiles, "_noselection.html");
}

void XMLSerialize(XMLElement const& element, InitialUISettings& settings) {
    XMLSerialize(element, "RemindInterval", settings.m_remindInterval);
    XMLSerialize(element, "RemindTime", settings.m_remindTime);
    XMLSerialize(element, "HistoryMode", settings.m_historyMode);
    XMLSerialize(element, "MaxHistoryAge", settings.m_maxHistoryAge);
    XMLSerialize(element, "TechHistoryMode", settings.m_techHistoryMode);
    XMLSerialize(element, "MaxTechHistoryAge", settings.m_maxTechHistoryAge);
    XMLSerialize(element, "BalloonMode", settings.m_balloonMode);
    XMLSerialize(element, "TrayMode", settings.m_trayMode);
    XMLSerialize(element, "HasMainDialog", settings.m_hasMainDialog);
    XMLSerialize(element, "AllowSnooze", settings.m_allowSnooze);
    XMLSerialize(element, "AlwaysTopmost", settings.m_alwaysTopmost);
    XMLSerialize(element, "DisplaySingleActionSummary", settings.m_displaySingleActionSummary);
    XMLSerialize(element, "UseLocale", settings.m_useLocale);
    XMLSerialize(element, "IdleThreshold", settings.m_idleThreshold);
    XMLSerialize(element, "UseActivityTracking", settings.m_useActivityTracking);
    XMLSerialize(element, "ActionRunningTray", settings.m_actionRunningTray);
    XMLSerialize(element, "InitialTabID", settings.m_initialTab);
}

void XMLSerialize(XMLElement const& element, InitializationInfo& info) {
    XMLSerialize(element, "SupportFiles", info.m_supportFiles);
    XMLSerialize(element, "BaseDirectory", info.m_baseDirectory);
    XMLSerialize(element, "InitialUISettings", info.m_settings);
}
