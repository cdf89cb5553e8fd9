// The records of the agent's documents as their loaders fill them: defaults, the text forms,
// the rules for absent, repeated, optional and unknown children, and the checks of names.

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "session/ActionRequest.h"
#include "session/InitializationInfo.h"
#include "session/MessageRequest.h"
#include "session/QuietMode.h"
#include "session/RemoveRequest.h"
#include "testing/TestText.h"
#include "text/unicode/UStringBuilder.h"
#include "time/TimeText.h"
#include "xml/SimpleXMLParse.h"
#include "xml/XMLLoad.h"
#include "xml/XMLSave.h"

namespace {

std::string Quoted(SharedUString<UTF8> const& text) {
    return "'" + Str(text) + "'";
}
std::string Quoted(std::string const& text) {
    return "'" + text + "'";
}
template <class T>
std::string Quoted(NullOr<T> const& value) {
    return value.IsNull() ? "null" : Quoted(*value);
}
std::string Time(NullOr<TimeObject> const& value) {
    return value.IsNull() ? "null" : TimeToText(*value).CString();
}
std::string Micros(TimeInterval value) {
    return std::to_string(value.Microseconds());
}
std::string Micros(NullOr<TimeInterval> const& value) {
    return value.IsNull() ? "null" : Micros(*value);
}

std::string RecordText(ActionRequest const& r) {
    std::string flags;
    for (auto const& flag :
         {std::make_pair(r.m_cancellable, "cancellable"), std::make_pair(r.m_shutdown, "shutdown"),
          std::make_pair(r.m_restart, "restart"), std::make_pair(r.m_forceRun, "forceRun"),
          std::make_pair(r.m_requestSave, "requestSave"),
          std::make_pair(r.m_useCannedStrings, "cannedStrings")})
        if (flag.first) flags += std::string(" ") + flag.second;
    return "ID " + std::to_string(r.m_id) + ", deadline " + Time(r.m_deadline) + ", preview " +
           Quoted(r.m_preview) + ", confirm " + Quoted(r.m_preActionMessage) + ", title " +
           Quoted(r.m_title) + ", description " + Quoted(r.m_shortDescription) + ", flags" +
           (flags.empty() ? " none" : flags);
}

std::string RecordText(MessageRequest const& r) {
    return "ID " + std::to_string(r.m_id) + ", " + Quoted(r.m_title) + ", " + Quoted(r.m_message) +
           ", completion " + (r.m_isCompletionMessage ? "true" : "false") + ", timeout " +
           Micros(r.m_timeout);
}

std::string RecordText(RemoveRequest const& r) {
    return "ID " + std::to_string(r.m_id) + ", type " + std::to_string(r.m_type);
}

std::string RecordText(QuietModeStart const& r) {
    return std::string(TimeToText(r.m_startTime).CString()) + " to " +
           TimeToText(r.m_endTime).CString();
}

std::string RecordText(InitializationInfo const& r) {
    InitialUISettings const& s = r.m_settings;
    std::string text = "directory '" + std::string(r.m_baseDirectory.Text()) + "', files";
    for (FileTransfer const& file : r.m_supportFiles)
        text += std::string(" ") + file.m_name.Text() + "[" + file.m_subFolder.Text() +
                "]=" + Quoted(file.m_content);
    return text + "; remind " + Micros(s.m_remindInterval) + " " + Time(s.m_remindTime) +
           ", history " + std::to_string(s.m_historyMode) + " " + Micros(s.m_maxHistoryAge) +
           ", tech " + std::to_string(s.m_techHistoryMode) + " " + Micros(s.m_maxTechHistoryAge) +
           ", balloon " + std::to_string(s.m_balloonMode) + ", tray " +
           std::to_string(s.m_trayMode) + ", main " + std::to_string(s.m_hasMainDialog) +
           ", snooze " + std::to_string(s.m_allowSnooze) + ", top " +
           std::to_string(s.m_alwaysTopmost) + ", single " +
           std::to_string(s.m_displaySingleActionSummary) + ", locale " +
           std::to_string(s.m_useLocale) + ", idle " + Micros(s.m_idleThreshold) + ", activity " +
           std::to_string(s.m_useActivityTracking) + ", running " +
           std::to_string(s.m_actionRunningTray) + ", tab " + Quoted(s.m_initialTab);
}

void LoadRecord(XMLElement const& element, RemoveRequest& record) {
    XMLLoad(element, record);
}
template <class Record>
void LoadRecord(XMLElement const& element, Record& record) {
    XMLSerialize(element, record);
}

// Loads a default-made record from the element with the given content, then, if again is
// given, loads the same record once more from that. Returns the record's fields, or the
// failure.
template <class Record>
std::string LoadAsText(std::string const& content, std::string const& again = std::string()) {
    Record record;
    try {
        std::unique_ptr<XMLElement> const element = SimpleXML::Parse(U8("<r>" + content + "</r>"));
        LoadRecord(*element, record);
        if (!again.empty()) {
            std::unique_ptr<XMLElement> const next = SimpleXML::Parse(U8("<r>" + again + "</r>"));
            LoadRecord(*next, record);
        }
    } catch (std::exception const& failure) {
        return std::string("throws ") + failure.what();
    }
    return RecordText(record);
}

struct Case {
    std::string content;
    std::string again;
    std::string expected;
};

}  // namespace

TEST(MessageDocuments, ActionRequestFields) {
    std::string const bare =
        "ID 5, deadline null, preview null, confirm null, title '', description '', flags ";
    Case const cases[] = {
        {"<ID>5</ID>", "", bare + "none"},
        {"", "",
         "ID 0, deadline null, preview null, confirm null, title '', description '', flags none"},
        {"<ID>5</ID><Cancellable>FALSE</Cancellable>", "", bare + "cancellable"},
        {"<ID>5</ID><Cancellable></Cancellable>", "", bare + "cancellable"},
        {"<ID>5</ID><Cancellable>no</Cancellable>", "", bare + "cancellable"},
        {"<ID>5</ID><Cancellable>false</Cancellable><Shutdown>0</Shutdown>", "", bare + "none"},
        {"<ID>5</ID><Shutdown>1</Shutdown><Restart>true</Restart><ForceRun>yes</ForceRun>"
         "<RequestSave>x</RequestSave><UseCannedStrings>true</UseCannedStrings>",
         "", bare + "shutdown restart forceRun requestSave cannedStrings"},
        {"<ID>4</ID><Unknown>9</Unknown><id>7</id><ID>5</ID>", "", bare + "none"},
        {"<ID>5</ID><Title>a &amp; b</Title><ShortDescription><![CDATA[<b>x</b>]]>"
         "</ShortDescription><Preview></Preview><PreActionMessage>Sure?</PreActionMessage>",
         "",
         "ID 5, deadline null, preview '', confirm 'Sure?', title 'a & b', description "
         "'<b>x</b>', flags none"},
        {"<ID>5</ID><Deadline>Sat, 04 Mar 2000 07:05:09 +0100</Deadline>", "",
         "ID 5, deadline Sat, 04 Mar 2000 07:05:09 +0100, preview null, confirm null, title '', "
         "description '', flags none"},
        {"<ID>5</ID><Deadline>04 Mar 2000 07:05:09</Deadline>", "", "throws NoTimeZone"},
        {"<ID>18446744073709551615</ID>", "",
         "ID 18446744073709551615, deadline null, preview null, confirm null, title '', "
         "description '', flags none"},
        {"<ID>18446744073709551616</ID>", "", "throws NumeralTooLarge"},
        {"<ID>five</ID>", "", "throws NotANumeral"},
        // Loaded again: optional fields that are absent become null, plain ones keep their value.
        {"<ID>5</ID><Title>t</Title><Preview>p</Preview><Deadline>1 Jan 2001 00:00 +0000"
         "</Deadline><Cancellable>true</Cancellable>",
         "<Shutdown>true</Shutdown>",
         "ID 5, deadline null, preview null, confirm null, title 't', description '', flags "
         "cancellable shutdown"},
    };
    for (Case const& c : cases)
        EXPECT_EQ(LoadAsText<ActionRequest>(c.content, c.again), c.expected) << c.content;
}

TEST(MessageDocuments, MessageRequestTimeoutIsOptionalButNeverEmpty) {
    Case const cases[] = {
        {"<ID>7</ID><Title>T</Title><Message>M</Message>", "",
         "ID 7, 'T', 'M', completion false, timeout null"},
        {"<ID>7</ID><Timeout>PT30S</Timeout><IsCompletionMessage></IsCompletionMessage>", "",
         "ID 7, '', '', completion true, timeout 30000000"},
        {"<ID>7</ID><Timeout></Timeout>", "",
         "throws Could not convert XMLDuration to TimeInterval"},
        {"<ID>7</ID><Timeout>PT30S</Timeout><Title>T</Title>", "<ID>8</ID>",
         "ID 8, 'T', '', completion false, timeout null"},
        {"<ID>7</ID><ID>4294967296</ID>", "",
         "ID 4294967296, '', '', completion false, timeout null"},
    };
    for (Case const& c : cases)
        EXPECT_EQ(LoadAsText<MessageRequest>(c.content, c.again), c.expected) << c.content;
}

TEST(MessageDocuments, RemoveTypeWordsAreExactBytesAndAnyOtherMeansAll) {
    Case const cases[] = {
        {"<ID>3</ID>", "", "ID 3, type 3"},
        {"<ID>3</ID><RemoveType>Action</RemoveType>", "", "ID 3, type 0"},
        {"<ID>3</ID><RemoveType>Offer</RemoveType>", "", "ID 3, type 1"},
        {"<ID>3</ID><RemoveType>Message</RemoveType>", "", "ID 3, type 2"},
        {"<ID>3</ID><RemoveType>All</RemoveType>", "", "ID 3, type 3"},
        {"<ID>3</ID><RemoveType>action</RemoveType>", "", "ID 3, type 3"},
        {"<ID>3</ID><RemoveType> Action</RemoveType>", "", "ID 3, type 3"},
        {"<ID>3</ID><RemoveType></RemoveType>", "", "ID 3, type 3"},
        {"<RemoveType>Message</RemoveType><RemoveType>Action</RemoveType>", "", "ID 0, type 0"},
        {"<RemoveType>Offer</RemoveType><RemoveType>Bogus</RemoveType>", "", "ID 0, type 1"},
    };
    for (Case const& c : cases)
        EXPECT_EQ(LoadAsText<RemoveRequest>(c.content, c.again), c.expected) << c.content;
}

TEST(MessageDocuments, QuietModeStartNeedsZonedTimes) {
    Case const cases[] = {
        {"", "", "Thu, 01 Jan 1970 00:00:00 +0000 to Thu, 01 Jan 1970 00:00:00 +0000"},
        {"<StartTime>Sat, 04 Mar 2000 07:00 +0000</StartTime><EndTime>4 Mar 2000 08:00:30 -0100"
         "</EndTime>",
         "", "Sat, 04 Mar 2000 07:00:00 +0000 to Sat, 04 Mar 2000 08:00:30 -0100"},
        {"<StartTime>Sat, 04 Mar 2000 07:00</StartTime>", "", "throws NoTimeZone"},
    };
    for (Case const& c : cases)
        EXPECT_EQ(LoadAsText<QuietModeStart>(c.content, c.again), c.expected) << c.content;
}

TEST(MessageDocuments, InitializationInfoDefaultsSettingsAndSupportFiles) {
    std::string const defaults =
        "; remind 0 null, history 0 null, tech 0 null, balloon 1, tray 2, main 1, snooze 1, "
        "top 0, single 1, locale 0, idle 0, activity 0, running 0, tab null";
    Case const cases[] = {
        {"", "", "directory '', files" + defaults},
        {"<BaseDirectory>/var/tmp/ZOL/ClientUI/.u/</BaseDirectory>"
         "<SupportFiles><FileName>_brand.xlat</FileName><Content>aGk=</Content></SupportFiles>"
         "<SupportFiles><SubFolder>sub</SubFolder><FileName>b</FileName></SupportFiles>",
         "",
         "directory '/var/tmp/ZOL/ClientUI/.u', files _brand.xlat[]='aGk=' b[sub]=''" + defaults},
        {"<SupportFiles><FileName>..</FileName></SupportFiles>", "", "throws IllegalFileName"},
        {"<SupportFiles><FileName>a/b</FileName></SupportFiles>", "", "throws IllegalFileName"},
        {"<SupportFiles><FileName>a</FileName><SubFolder>.</SubFolder></SupportFiles>", "",
         "throws IllegalFileName"},
        {"<SupportFiles><FileName>" + std::string(256, 'n') + "</FileName></SupportFiles>", "",
         "throws IllegalFileNameLength"},
        {"<InitialUISettings><RemindInterval>PT10M</RemindInterval><RemindTime>Sat, 04 Mar 2000 "
         "07:05:09 +0000</RemindTime><HistoryMode>4294967295</HistoryMode><MaxHistoryAge>P1D"
         "</MaxHistoryAge><TechHistoryMode>1</TechHistoryMode><MaxTechHistoryAge>PT1H"
         "</MaxTechHistoryAge><BalloonMode>0</BalloonMode><TrayMode>0</TrayMode><HasMainDialog>"
         "false</HasMainDialog><AllowSnooze>0</AllowSnooze><AlwaysTopmost></AlwaysTopmost>"
         "<DisplaySingleActionSummary>false</DisplaySingleActionSummary><UseLocale>true"
         "</UseLocale><IdleThreshold>PT1S</IdleThreshold><UseActivityTracking>1"
         "</UseActivityTracking><ActionRunningTray>true</ActionRunningTray><InitialTabID>tab"
         "</InitialTabID></InitialUISettings>",
         "",
         "directory '', files; remind 600000000 Sat, 04 Mar 2000 07:05:09 +0000, history "
         "4294967295 86400000000, tech 1 3600000000, balloon 0, tray 0, main 0, snooze 0, top 1, "
         "single 0, locale 1, idle 1000000, activity 1, running 1, tab 'tab'"},
        {"<InitialUISettings><HistoryMode>4294967296</HistoryMode></InitialUISettings>", "",
         "throws NumeralTooLarge"},
        // A second load appends files and drops an optional setting that is now absent.
        {"<SupportFiles><FileName>a</FileName></SupportFiles><InitialUISettings><RemindTime>1 "
         "Jan 2001 00:00 +0000</RemindTime></InitialUISettings>",
         "<SupportFiles><FileName>a</FileName></SupportFiles><InitialUISettings>"
         "</InitialUISettings>",
         "directory '', files a[]='' a[]=''" + defaults},
    };
    for (Case const& c : cases)
        EXPECT_EQ(LoadAsText<InitializationInfo>(c.content, c.again), c.expected) << c.content;
}

// The translation files by locale are chosen in the set-up's own test
// (ProcessInitializationInfo_test.cpp); here the first match wins and the fixed names.
TEST(MessageDocuments, SupportFilesAreFoundByNameIgnoringCaseOnlyWithoutSubFolder) {
    InitializationInfo info;
    auto add = [&](char const* name, char const* subFolder) {
        FileTransfer file;
        file.m_name = FileName(name);
        if (*subFolder) file.m_subFolder = FileName(subFolder);
        file.m_content = name;
        info.m_supportFiles.push_back(file);
    };
    add("_BRAND.xlat", "x");
    add("_Brand.Xlat", "");
    add("_brand.xlat", "");
    add("_clientui.ico", "");
    auto found = [](NullOrConstRef<FileTransfer> file) {
        return file.IsNull() ? std::string("null") : file->m_content;
    };
    struct Lookup {
        NullOrConstRef<FileTransfer> file;
        char const* expected;
    } const lookups[] = {
        {info.BrandTranslation(), "_Brand.Xlat"},
        {info.BrandIcon(), "_clientui.ico"},
        {info.TechnicianPage(), "null"},
    };
    for (Lookup const& l : lookups) EXPECT_EQ(found(l.file), l.expected);
}

TEST(MessageDocuments, RemoveRequestWrittenReadsBackTheSame) {
    for (RemoveType type : {Action, Offer, Message, All}) {
        RemoveRequest written;
        written.m_id = 12345678901ull;
        written.m_type = type;
        UStringBuilder<UTF8> builder(64);
        XMLWriter writer(builder, XMLWriter::NoLines);
        XMLSave(writer, U8("RemoveRequest"), written);
        writer.EndDocument();
        std::unique_ptr<XMLElement> const element = SimpleXML::Parse(builder.Content());
        EXPECT_EQ(Str(UStringRef<UTF8>(element->children.at(0).name)), "RemoveType");
        RemoveRequest read;
        read.m_type = Offer == type ? All : Offer;
        XMLLoad(*element, read);
        EXPECT_EQ(RecordText(read), RecordText(written));
    }
}
