// A test program that sets up like the real process (the pipe to the agent on descriptors 0 and
// 1 with its two threads running, the display open) and then shows the action dialog in a
// Latin-1 locale with the multibyte flag on, under a translation of the dialog's title that
// Latin-1 cannot express. The tests read its reports on descriptor 1 and its exit status.
// The arguments go to XtOpenDisplay ("-display :N").
// Status 3 means that showing the dialog returned; 4, that set-up went wrong.

#include <X11/Intrinsic.h>

#include <clocale>
#include <cstdlib>
#include <string>

#include "localized/FormatOverrides.h"
#include "session/DialogCalls.h"
#include "session/SessionState.h"
#include "text/unicode/UString.h"

namespace {

int const notEnded = 3;
int const setUpFailed = 4;

// "Action Requests" in Russian: Cyrillic, outside Latin-1.
char const translation[] =
    "Action Requests\t\xD0\x97\xD0\xB0\xD0\xBF\xD1\x80\xD0\xBE\xD1\x81\xD1\x8B\n";

}  // namespace

// Held for the life of the process, as main holds its reference; outside the anonymous
// namespace so that the leak checker sees the store.
UnixPipeRef* probeReference = nullptr;

int main(int argc, char** argv) {
    clientPipe = new UnixPipe(readQ, writeQ);
    probeReference = new UnixPipeRef(clientPipe);
    clientPipe->Start(0, 1);

    if (!std::setlocale(LC_CTYPE, "de_DE.ISO-8859-1")) return setUpFailed;
    international = true;
    static FormatOverrideSet const overrides(UStringRef<UTF8>(
        reinterpret_cast<UTF8::Unit const*>(translation),
        reinterpret_cast<UTF8::Unit const*>(translation) + sizeof translation - 1));
    static FormatOverrideScope const scope(overrides, GlobalFormatOverrideContext());

    XtToolkitInitialize();
    app_context = XtCreateApplicationContext();
    display = XtOpenDisplay(app_context, nullptr, nullptr, "XZOLClientUI", nullptr, 0, &argc, argv);
    if (!display) return setUpFailed;

    ActionRequest action;
    action.m_id = 1;
    action.SetTitle(UStringRef<UTF8>(reinterpret_cast<UTF8::Unit const*>("Update"),
                                     reinterpret_cast<UTF8::Unit const*>("Update") + 6));
    actions.push_back(action);
    ShowActionRequestDialog(false, m_remindInterval, true);
    return notEnded;
}
