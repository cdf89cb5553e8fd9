// The testing fixture comes before the X headers, whose macros (None, Bool) would break GoogleTest.
#include "testing/DialogDisplay.h"

#include "dialogs/MessageDialogs.h"

#include <X11/Xaw/AsciiText.h>
#include <X11/Xaw/Command.h>

#include <string>

#include "session/DialogCalls.h"
#include "session/MessageRequest.h"
#include "testing/TestText.h"

namespace {

class MessageDialogsTest : public DialogDisplayTest {
  protected:
    void TearDown() override {
        while (!messageDialogs.empty()) RemoveMessageDialog(messageDialogs.front().id);
        DialogDisplayTest::TearDown();
    }

    // A timeout below zero stands for none.
    static MessageRequest Request(unsigned long long id, std::string const& title,
                                  std::string const& message, long long timeoutSeconds = -1,
                                  bool completion = false) {
        MessageRequest request;
        request.m_id = id;
        if (!title.empty()) request.m_title = SharedUString<UTF8>(MakeUString(U8(title)));
        if (!message.empty()) request.m_message = SharedUString<UTF8>(MakeUString(U8(message)));
        if (timeoutSeconds >= 0) request.m_timeout = TimeInterval(timeoutSeconds * 1000000);
        request.m_isCompletionMessage = completion;
        return request;
    }

    // Returns the titles and texts of the dialogs on screen, "title|text", bottom first.
    std::vector<std::string> ShownMessages() {
        std::vector<std::string> shown;
        for (Widget shell : TopLevelShells()) {
            Widget text = XtNameToWidget(shell, "form.actionmessage");
            shown.push_back(WidgetText(shell, XtNtitle) + "|" +
                            (text ? WidgetText(text, XtNstring) : "(no text)"));
        }
        return shown;
    }
};

}  // namespace

TEST_F(MessageDialogsTest, TreeHasTheNamedWidgetsWithTheirResources) {
    ShowMessageDialog(Request(5, "Maintenance tonight", "The server restarts at ten."));
    Widget shell = OnlyShell();
    ASSERT_NE(shell, nullptr);
    EXPECT_EQ(WidgetText(shell, XtNtitle), "Maintenance tonight");
    Widget text = XtNameToWidget(shell, "form.actionmessage");
    Widget dismiss = XtNameToWidget(shell, "form.dismiss");
    ASSERT_TRUE(text && dismiss);
    ExpectReadOnlyTextBox(text);
    EXPECT_EQ(WidgetText(text, XtNstring), "The server restarts at ten.");
    EXPECT_EQ(WidgetResource<Dimension>(text, XtNwidth), 500);

    EXPECT_EQ(XtClass(dismiss), commandWidgetClass);
    EXPECT_EQ(WidgetText(dismiss, XtNlabel), "OK");
    EXPECT_EQ(WidgetResource<Widget>(dismiss, XtNfromVert), text);
    int const boxWidth = WidgetResource<Dimension>(text, XtNwidth);
    int const border = WidgetResource<Dimension>(text, XtNborderWidth);
    // Placed from the form's left edge so that it ends about where the box ends.
    EXPECT_EQ(WidgetResource<Position>(dismiss, XtNx),
              boxWidth + border - WidgetResource<Dimension>(dismiss, XtNwidth));

    ASSERT_EQ(messageDialogs.size(), 1u);
    EXPECT_EQ(messageDialogs.front().id, 5u);
    EXPECT_EQ(messageDialogs.front().shell, shell);
    EXPECT_EQ(messageDialogs.front().text, text);
}

// Dialogs are known by ID: a new ID adds one, a known ID refreshes its title and text in place.
TEST_F(MessageDialogsTest, EachIDHasOneDialogThatANewRequestRefreshes) {
    ShowMessageDialog(Request(1, "first", "one"));
    ShowMessageDialog(Request(2, "second", "two"));
    EXPECT_EQ(ShownMessages(), (std::vector<std::string>{"first|one", "second|two"}));
    ASSERT_EQ(messageDialogs.size(), 2u);
    Widget const firstShell = messageDialogs.front().shell;
    Widget const firstButton = XtNameToWidget(firstShell, "form.dismiss");
    Position const x = WidgetResource<Position>(firstShell, XtNx);

    ShowMessageDialog(Request(1, "first again", "one, newer"));
    EXPECT_EQ(ShownMessages(), (std::vector<std::string>{"first again|one, newer", "second|two"}));
    ASSERT_EQ(messageDialogs.size(), 2u);
    EXPECT_EQ(messageDialogs.front().shell, firstShell);
    EXPECT_EQ(XtNameToWidget(firstShell, "form.dismiss"), firstButton);
    EXPECT_EQ(WidgetResource<Position>(firstShell, XtNx), x);
}

// Only the tick closes dialogs whose time has come; a refresh sets a new expiry or drops it.
TEST_F(MessageDialogsTest, TimeoutsCloseOnTheNextTickAndARefreshResetsThem) {
    long long const none = -1, hour = 3600;
    struct Case {
        long long firstTimeout;
        bool refreshed;
        long long refreshTimeout;
        bool closesOnTheTick;
    };
    Case const cases[] = {
        {0, false, none, true},  // PT0S
        {none, false, none, false}, {hour, false, none, false},
        {0, true, none, false},  // a refresh without a timeout makes it permanent
        {none, true, 0, true},   // a refresh with one makes it expire
        {0, true, hour, false},  // from now, not from the first request
        {hour, true, 0, true},
    };
    unsigned long long id = 100;
    for (Case const& c : cases) {
        ++id;
        SCOPED_TRACE(id);
        ShowMessageDialog(Request(id, "title", "text", c.firstTimeout));
        if (c.refreshed) ShowMessageDialog(Request(id, "title", "newer", c.refreshTimeout));
        ASSERT_EQ(TopLevelShells().size(), 1u);
        RemoveTimedoutMessageDialogs();
        EXPECT_EQ(TopLevelShells().size(), c.closesOnTheTick ? 0u : 1u);
        EXPECT_EQ(messageDialogs.size(), c.closesOnTheTick ? 0u : 1u);
        RemoveMessageDialog(id);
    }
    EXPECT_EQ(TakeCommands().size(), 0u);
    EXPECT_EQ(TakeDocuments(), 0u);
}

// Expired dialogs go and the others stay, wherever they stand in the list.
TEST_F(MessageDialogsTest, OneTickClosesEveryExpiredDialogAndOnlyThose) {
    ShowMessageDialog(Request(1, "a", "expires", 0));
    ShowMessageDialog(Request(2, "b", "stays"));
    ShowMessageDialog(Request(3, "c", "expires", 0));
    ShowMessageDialog(Request(4, "d", "expires", 0));
    ShowMessageDialog(Request(5, "e", "stays", 3600));
    RemoveTimedoutMessageDialogs();
    EXPECT_EQ(ShownMessages(), (std::vector<std::string>{"b|stays", "e|stays"}));
}

TEST_F(MessageDialogsTest, ACompletionMessageShowsTheTemplateAroundTheTitle) {
    struct Case {
        char const* title;
        char const* message;
        char const* shown;
    };
    Case const cases[] = {
        {"Backup", "ignored", "Quorvane notification:|Action \"Backup\" has completed."},
        {"", "", "Quorvane notification:|Action \"\" has completed."},
        {"", "not shown either", "Quorvane notification:|Action \"\" has completed."},
    };
    unsigned long long id = 0;
    for (Case const& c : cases) {
        SCOPED_TRACE(c.shown);
        ShowMessageDialog(Request(++id, c.title, c.message, -1, true));
        EXPECT_EQ(ShownMessages(), std::vector<std::string>{c.shown});
        RemoveMessageDialog(id);
    }
    // A refresh turns a plain message into a completion message and back.
    ShowMessageDialog(Request(9, "Backup", "plain"));
    ShowMessageDialog(Request(9, "Backup", "plain", -1, true));
    EXPECT_EQ(ShownMessages(),
              std::vector<std::string>{"Quorvane notification:|Action \"Backup\" has completed."});
    ShowMessageDialog(Request(9, "Backup", "plain"));
    EXPECT_EQ(ShownMessages(), std::vector<std::string>{"Backup|plain"});
}

TEST_F(MessageDialogsTest, RemoveTakesTheDialogOfThatIDOnly) {
    ShowMessageDialog(Request(1, "a", "one"));
    ShowMessageDialog(Request(2, "b", "two"));
    RemoveMessageDialog(7);  // unknown
    EXPECT_EQ(ShownMessages().size(), 2u);
    RemoveMessageDialog(1);
    EXPECT_EQ(ShownMessages(), std::vector<std::string>{"b|two"});
    RemoveMessageDialog(1);  // already gone
    EXPECT_EQ(ShownMessages(), std::vector<std::string>{"b|two"});
    ASSERT_EQ(messageDialogs.size(), 1u);
    EXPECT_EQ(messageDialogs.front().id, 2u);
}

// The button closes its own dialog, and nobody is told.
TEST_F(MessageDialogsTest, DismissClosesItsDialogAndTellsNobody) {
    ShowMessageDialog(Request(1, "a", "one"));
    ShowMessageDialog(Request(2, "b", "two"));
    ShowMessageDialog(Request(3, "c", "three"));
    Widget const middle = std::next(messageDialogs.begin())->shell;
    Press(XtNameToWidget(middle, "form.dismiss"));
    EXPECT_EQ(ShownMessages(), (std::vector<std::string>{"a|one", "c|three"}));
    EXPECT_EQ(messageDialogs.size(), 2u);
    EXPECT_EQ(TakeCommands().size(), 0u);
    EXPECT_EQ(TakeDocuments(), 0u);
    // Its ID is free again, and removing it is no error.
    RemoveMessageDialog(2);
    ShowMessageDialog(Request(2, "b", "two again"));
    EXPECT_EQ(ShownMessages(), (std::vector<std::string>{"a|one", "c|three", "b|two again"}));
}
