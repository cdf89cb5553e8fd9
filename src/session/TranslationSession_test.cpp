// A session in a real French locale, from the agent's first document to the bytes a dialog
// would hand to the toolkit: the document goes through dispatch, the support files through
// Base64 onto disk, the locale comes from LANG, and the chosen translation files change the
// texts. Translation files cannot be taken out again, so this has a program of its own.

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "localized/LocalizedStrings.h"
#include "localized/UFormat.h"
#include "session/ProcessMessagesFromClient.h"
#include "session/SessionState.h"
#include "testing/RecordingDialogs.h"
#include "testing/ScopedSettings.h"
#include "testing/TemporaryDirectory.h"
#include "testing/TestText.h"
#include "text/streams/Base64.h"

namespace {

class TranslationSession : public TemporaryDirectory {
  protected:
    // Returns the first document with the files as support files, in order.
    std::string FirstDocument(std::vector<std::pair<std::string, std::string>> const& files) {
        std::string document =
            "<?xml version=\"1.0\" encoding=\"UTF-8\"?><ClientToUI><InitializationInfo>";
        for (auto const& file : files) {
            document += "<SupportFiles><FileName>" + file.first +
                        "</FileName><SubFolder></SubFolder>" + "<Content>" +
                        Base64Encode(ConstData(file.second.data(), file.second.size())) +
                        "</Content></SupportFiles>";
        }
        return document + "<BaseDirectory>" + Path("session") +
               "</BaseDirectory><InitialUISettings><UseLocale>true</UseLocale>" +
               "</InitialUISettings></InitializationInfo></ClientToUI>";
    }

    static void Receive(std::string const& text) {
        UIMessage message;
        message.m_text = MakeUString(U8(text));
        readQ.WriteMessage(message);
    }
};

std::string PlatformText(AutoNullTerminated<char> const& text) {
    return text.pointer;
}

}  // namespace

TEST_F(TranslationSession, TheFrenchFilesOfTheSupportFilesTranslateTheDialogTexts) {
    ScopedCTypeLocale const restoreLocale("C");
    ScopedEnvironment const all("LC_ALL", nullptr), ctype("LC_CTYPE", nullptr),
        lang("LANG", "fr_CA.UTF-8");
    Receive(FirstDocument({
        {"_brand.xlat", "OK\tD'accord (plain brand)\n"},
        {"_brandfr.xlat",
         "Cancel\tAnnuler (marque)\nTake All Actions\tTout faire (marque)\n"
         "Session test: {count} pending\t{count} en attente (marque)\n"},
        {"fr.xlat", "Cancel\tAnnuler (langue)\n"},
        {"FR_ca.XLAT",
         "Take All Actions\tEx\xC3\xA9"
         "cuter toutes les actions\n"
         "Session test: {count} pending\t{count} actions en attente, d\xC3\xA9j\xC3\xA0\n"},
    }));
    ProcessMessagesFromClient();

    ASSERT_TRUE(initialized) << "fr_CA.UTF-8 may be missing: run scripts/setup";
    EXPECT_TRUE(international);
    EXPECT_EQ(ReadText(Path("session/FR_ca.XLAT")).substr(0, 16), "Take All Actions");
    EXPECT_EQ(PlatformText(LocalizedStrings::TakeAllActions()),
              "Ex\xC3\xA9"
              "cuter toutes les actions")
        << "the general file is asked before the brand file";
    EXPECT_EQ(PlatformText(LocalizedStrings::Cancel()), "Annuler (marque)")
        << "the brand file of the language, and not the general file of the language";
    EXPECT_EQ(PlatformText(LocalizedStrings::OK()), "OK")
        << "the plain brand file was added as well";
    EXPECT_EQ(PlatformText(MakeLocalString(UFormat("Session test: {count} pending").With(U8("3")))),
              "3 actions en attente, d\xC3\xA9j\xC3\xA0");

    // The same texts in another encoding of the locale's language come out in that encoding.
    ScopedCTypeLocale const latin1("de_DE.ISO-8859-1");
    ASSERT_TRUE(latin1.Ok()) << "de_DE.ISO-8859-1 is missing: run scripts/setup";
    EXPECT_EQ(PlatformText(LocalizedStrings::TakeAllActions()),
              "Ex\xE9"
              "cuter toutes les actions");
}
