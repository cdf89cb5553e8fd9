// The texts of the dialogs in a session that runs in a real locale: they reach the widgets in
// the locale's encoding, and the widgets are all multibyte. The agent's texts are shown whatever
// they hold; a dialog with a text of its own that the locale cannot express is not built: the
// agent is told which dialog failed, twice, and the process ends with status 0. Those cases run
// in a child process with the pipe to the agent running.

// The testing fixture comes before the X headers, whose macros (None, Bool) would break GoogleTest.
#include "testing/DialogDisplay.h"

#include <X11/Xaw/AsciiText.h>
#include <X11/Xaw/Command.h>
#include <X11/Xaw/Label.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "dialogs/ActionDetailsDialog.h"
#include "dialogs/ConfirmationDialog.h"
#include "dialogs/MessageDialogs.h"
#include "dialogs/XHelpers.h"
#include "session/DialogCalls.h"
#include "session/MessageRequest.h"
#include "session/SessionState.h"
#include "testing/ForkedSession.h"
#include "testing/ScopedSettings.h"
#include "testing/ScopedTranslation.h"
#include "testing/TestText.h"
#include "testing/ToolkitDisplay.h"
#include "testing/XvfbServer.h"

namespace {

// A Greek capital omega, which ISO 8859-1 has no byte for.
std::string const omega = "\xCE\xA9";
// "Größe" in UTF-8 and in ISO 8859-1.
std::string const sizeInUTF8 =
    "Gr\xC3\xB6\xC3\x9F"
    "e";
std::string const sizeInLatin1 =
    "Gr\xF6\xDF"
    "e";

std::string DialogFailureReport(std::string const& dialogName) {
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<ClientToUI>\n\t<ClientUIErrorMessage>\n"
           "\t\t<DebugString>" +
           dialogName +
           "</DebugString>\n\t\t<ErrorCode>2</ErrorCode>\n\t</ClientUIErrorMessage>\n"
           "</ClientToUI>";
}

SharedUString<UTF8> SharedText(std::string const& text) {
    return SharedUString<UTF8>(MakeUString(U8(text)));
}

// Child status when the Latin-1 locale is missing; scripts/setup generates it.
int const noLocale = 5;

// In the child: a Latin-1 locale with multibyte widgets, as a session in a real locale has,
// and a display of the child's own.
void EnterLatin1Session(std::string const& displayName) {
    static ScopedCTypeLocale* const latin1 = new ScopedCTypeLocale("de_DE.ISO-8859-1");
    if (!latin1->Ok()) ::_exit(noLocale);
    international = true;
    static ToolkitDisplay* const toolkit = new ToolkitDisplay(displayName);
    app_context = toolkit->Context();
    display = toolkit->Connection();
}

class Latin1DialogsTest : public DialogDisplayTest {
  protected:
    Latin1DialogsTest() : DialogDisplayTest("de_DE.ISO-8859-1") {}
    void TearDown() override {
        HideActionDetailsDialog();
        HideConfirmationRequestDialog();
        RemoveQuietModeDialog();
        while (!messageDialogs.empty()) RemoveMessageDialog(messageDialogs.front().id);
        DialogDisplayTest::TearDown();
    }
};

// Every widget of every dialog but the forms takes the session's flag.
void ExpectMultibyteBelow(Widget widget) {
    if (XtIsSubclass(widget, formWidgetClass)) {
        EXPECT_STREQ(XtName(widget), "form");
    } else if (XtIsSubclass(widget, labelWidgetClass) || XtIsSubclass(widget, textWidgetClass)) {
        EXPECT_TRUE(WidgetResource<Boolean>(widget, XtNinternational)) << XtName(widget);
    }
    if (!XtIsComposite(widget)) return;
    WidgetList children = nullptr;
    Cardinal count = 0;
    XtVaGetValues(widget, XtNchildren, &children, XtNnumChildren, &count, nullptr);
    for (Cardinal i = 0; i < count; ++i) ExpectMultibyteBelow(children[i]);
}

}  // namespace

// The agent's texts are shown whatever they hold: what Latin-1 lacks, and bytes that are not
// UTF-8, become "?" (Latin-1 has no U+FFFD); a title is cut to 1000 characters with "...".
TEST_F(Latin1DialogsTest, TextsReachTheWidgetsInTheLocaleEncoding) {
    ScopedTranslation translation("OK\t" + sizeInUTF8 + "\n");
    std::string const longTail(2000, 'n');
    ActionRequest action;
    action.m_id = 1;
    action.m_title = SharedText(sizeInUTF8 + " title" + omega + "\xFF" + longTail);
    action.m_preview = SharedText(sizeInUTF8 + " preview" + omega);
    action.m_preActionMessage = SharedText(sizeInUTF8 + " message\xC0");
    actions.push_back(action);
    MessageRequest request;
    request.m_id = 2;
    request.m_title = SharedText(sizeInUTF8 + " notice" + omega + longTail);
    request.m_message = SharedText(sizeInUTF8 + " text" + omega);
    MessageRequest completion;
    completion.m_id = 3;
    completion.m_isCompletionMessage = true;
    completion.m_title = SharedText(omega);

    ShowActionDetailsDialog(1);
    ShowConfirmationRequestDialog(1);
    ShowMessageDialog(request);
    ShowQuietModeDialog(Instant::Now(), Instant::Now() + TimeInterval(3600000000LL));
    ShowMessageDialog(completion);

    std::vector<Widget> shells = TopLevelShells();
    ASSERT_EQ(shells.size(), 5u);
    struct Shown {
        char const* widget;
        char const* resource;
        std::string text;
    };
    // "Größe title??" and "Größe notice?" are 13 characters: 984 more fit before the "...".
    Shown const expected[] = {
        {"form.actiondetails", XtNstring, sizeInLatin1 + " preview?"},
        {"form.ok", XtNlabel, sizeInLatin1},
        {"form.actiontitle", XtNlabel, sizeInLatin1 + " title??" + std::string(984, 'n') + "..."},
        {"form.actionconfirmation", XtNstring, sizeInLatin1 + " message?"},
        {"form.actionmessage", XtNstring, sizeInLatin1 + " text?"},
        {"form.dismiss", XtNlabel, sizeInLatin1},
        {"form.actionmessage", XtNstring, "Action \"?\" has completed."},
    };
    for (Shown const& shown : expected) {
        SCOPED_TRACE(shown.widget);
        int found = 0;
        for (Widget shell : shells) {
            Widget widget = XtNameToWidget(shell, shown.widget);
            if (!widget || WidgetText(widget, shown.resource) != shown.text) continue;
            ++found;
        }
        EXPECT_GE(found, 1);
    }
    EXPECT_EQ(WidgetText(shells[2], XtNtitle),
              sizeInLatin1 + " notice?" + std::string(984, 'n') + "...");
    EXPECT_EQ(WidgetText(shells[4], XtNtitle), "Quorvane notification:");
    for (Widget shell : shells) ExpectMultibyteBelow(shell);
}

TEST(DialogBuildFailure, EachDialogReportsItsNameAndEndsWithZero) {
    struct Case {
        char const* dialog;
        std::function<void()> show;
    };
    // Each dialog fails on a text of its own, here its title or its button translated into
    // Greek; the agent's texts are shown whatever they hold and never fail a dialog.
    Case const cases[] = {
        {"ActionDetailsDialog",
         [] {
             static ScopedTranslation const translation("Action Script Preview\t" + omega + "\n");
             ActionRequest action;
             action.m_id = 3;
             action.m_title = SharedText("Update");
             action.m_preview = SharedText("echo " + omega);
             actions.push_back(action);
             ShowActionDetailsDialog(3);
         }},
        {"ConfirmationDialog",
         [] {
             static ScopedTranslation const translation("Confirmation Required\t" + omega + "\n");
             ActionRequest action;
             action.m_id = 4;
             action.m_title = SharedText("Update");
             action.m_preActionMessage = SharedText("Bitte speichern " + omega);
             actions.push_back(action);
             ShowConfirmationRequestDialog(4);
         }},
        {"MessageDialog",
         [] {
             static ScopedTranslation const translation("OK\t" + omega + "\n");
             MessageRequest request;
             request.m_id = 5;
             request.m_title = SharedText(omega);
             request.m_message = SharedText("Nachricht");
             ShowMessageDialog(request);
         }},
        {"QuietModeDialog",
         [] {
             static ScopedTranslation const translation("Not Currently Available\t" + omega + "\n");
             ShowQuietModeDialog(Instant::Now(), Instant::Now() + TimeInterval(3600000000LL));
         }},
    };
    XvfbServer server;
    for (Case const& c : cases) {
        SCOPED_TRACE(c.dialog);
        std::string const displayName = server.DisplayName();
        ForkedSessionEnd end = RunInForkedSession([&] {
            EnterLatin1Session(displayName);
            c.show();
        });
        ASSERT_TRUE(end.exited) << "ended by signal " << end.status;
        ASSERT_NE(end.status, noLocale) << "the locale de_DE.ISO-8859-1 is missing";
        EXPECT_EQ(end.status, 0);
        std::string const report = DialogFailureReport(c.dialog);
        EXPECT_EQ(end.frames, (std::vector<std::string>{report, report}));
    }
}
