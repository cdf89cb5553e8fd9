#pragma once
// The first document of a session: the session directory, the support files to put into it,
// and the settings of the dialogs. Read once, on the main thread, before the display is open.

#include <string>
#include <vector>

#include "files/FileLocation.h"
#include "files/FileName.h"
#include "session/FileTransfer.h"
#include "text/bytes/NullOr.h"
#include "text/bytes/NullOrConstRef.h"
#include "time/TimeInterval.h"
#include "time/TimeObject.h"

class XMLElement;

// Settings of the dialogs. Most of them are part of the wire format without a use in this
// process: they are accepted, loaded and dropped with the record.
struct InitialUISettings {
    TimeInterval m_remindInterval;    // the snooze length handed to the action dialog
    NullOr<TimeObject> m_remindTime;  // when present, the dialog stays away until then
    unsigned long m_historyMode = 0;  // always sent by the agent; 0 when it is not
    NullOr<TimeInterval> m_maxHistoryAge;
    unsigned long m_techHistoryMode = 0;  // always sent by the agent; 0 when it is not
    NullOr<TimeInterval> m_maxTechHistoryAge;
    unsigned long m_balloonMode = 1;
    unsigned long m_trayMode = 2;
    bool m_hasMainDialog = true;
    bool m_allowSnooze = true;
    bool m_alwaysTopmost = false;
    bool m_displaySingleActionSummary = true;
    bool m_useLocale = false;  // always sent by the agent; false when it is not
    TimeInterval m_idleThreshold;
    bool m_useActivityTracking = false;  // always sent by the agent; false when it is not
    bool m_actionRunningTray = false;
    NullOr<std::string> m_initialTab;
};

struct InitializationInfo {
    // Each getter returns the first support file with an empty sub-folder whose name equals
    // the one sought, ignoring ASCII case; null when none does. The result points into
    // m_supportFiles and holds while the record is unchanged.
    NullOrConstRef<FileTransfer> BrandTranslation() const;  // "_brand.xlat"
    // "_brand", then the full locale, then ".xlat"; failing that the same with the language.
    NullOrConstRef<FileTransfer> LocalizedBrandTranslation(FileName const& fullLocale,
                                                           FileName const& language) const;
    // The full locale and ".xlat"; failing that the language and ".xlat".
    NullOrConstRef<FileTransfer> GeneralLocalization(FileName const& fullLocale,
                                                     FileName const& language) const;
    NullOrConstRef<FileTransfer> BrandIcon() const;        // "_clientui.ico"
    NullOrConstRef<FileTransfer> TechnicianPage() const;   // "_currentTechnician.html"
    NullOrConstRef<FileTransfer> Dashboard() const;        // "_currentDashboard.html"
    NullOrConstRef<FileTransfer> NoSelectionPage() const;  // "_noselection.html"
    // Tries prefix + fullLocale + ".xlat", then prefix + language + ".xlat"; an empty locale
    // part is not tried.
    NullOrConstRef<FileTransfer> GetLocalization(FileName const& prefix, FileName const& fullLocale,
                                                 FileName const& language) const;
    NullOr<std::string> const& InitialTabID() const { return m_settings.m_initialTab; }

    std::vector<FileTransfer> m_supportFiles;  // one per "SupportFiles" element, in order
    FileLocation m_baseDirectory;
    InitialUISettings m_settings;
};

// Load the fields in the order listed above. Throw what the value forms throw.
void XMLSerialize(XMLElement const& element, InitialUISettings& settings);
void XMLSerialize(XMLElement const& element, InitializationInfo& info);
