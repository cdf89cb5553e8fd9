// The program itself (its main and its X shell) with stand-ins for dialogs that do not exist
// yet, chosen by the environment variable ZOL_STANDIN_DIALOGS:
//   throw-on-tick   removing the timed-out message dialogs, which every tick of a set-up
//                   session does, throws
//   label-on-show   showing the action dialog makes a shell with a label, the first widget
//                   that needs a font, as the real dialog's first widgets do
// Every other call does nothing.

#include <X11/Intrinsic.h>
#include <X11/Shell.h>
#include <X11/StringDefs.h>
#include <X11/Xaw/Label.h>

#include <cstdlib>
#include <stdexcept>
#include <string>

#include "session/DialogCalls.h"
#include "session/SessionCalls.h"

namespace {

bool StandIn(char const* mode) {
    char const* chosen = std::getenv("ZOL_STANDIN_DIALOGS");
    return chosen && std::string(chosen) == mode;
}

}  // namespace

void RemoveTimedoutMessageDialogs() {
    if (StandIn("throw-on-tick")) throw std::runtime_error("thrown inside a tick");
}

void ShowActionRequestDialog(bool, TimeInterval const&, bool) {
    if (!StandIn("label-on-show")) return;
    Widget shell = XtVaAppCreateShell(nullptr, "XZOLClientUI", applicationShellWidgetClass, display,
                                      XtNinternational, international, nullptr);
    XtVaCreateManagedWidget("label", labelWidgetClass, shell, XtNinternational, international,
                            XtNlabel, "pending", nullptr);
    XtRealizeWidget(shell);
}

void UpdateActionRequestDialog() {}
bool IsActionRequestDialogShown() {
    return false;
}
void DisableActionRequestDialog() {}
void EnableActionRequestDialog() {}
void ShowActionDetailsDialog(unsigned long long) {}
void ShowConfirmationRequestDialog(unsigned long long) {}
void ShowMessageDialog(MessageRequest const&) {}
void RemoveMessageDialog(unsigned long long) {}
void ShowQuietModeDialog(Instant const&, Instant const&) {}
void RemoveQuietModeDialog() {}
