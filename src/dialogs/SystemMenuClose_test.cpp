// GoogleTest comes before the X headers, whose macros (None, Bool) would break it.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "AgentSimulator.h"
#include "testing/AgentExit.h"
#include "testing/XvfbServer.h"

// The probe binds the action to every client message, as a resource file could, and sends its
// shell one. Only a close request ends the process, normally; another protocol or another
// message type leaves it running until the probe gives up by itself with status 3.
TEST(SystemMenuClose, OnlyAWindowManagerCloseRequestEndsTheProcess) {
    XvfbServer server;
    struct Case {
        char const* mode;
        int status;
    };
    Case const cases[] = {{"close-delete", 0}, {"close-other", 3}, {"close-other-type", 3}};
    AgentSimulator agents[3];
    for (int i = 0; i < 3; ++i)
        agents[i].Launch(XFAILUREPROBE_PATH, {cases[i].mode, "-display", server.DisplayName()});
    for (int i = 0; i < 3; ++i) {
        SCOPED_TRACE(cases[i].mode);
        ExpectExitStatus(agents[i], cases[i].status);
        EXPECT_FALSE(agents[i].ReceiveFrame(100).has_value()) << "nothing goes to the agent";
    }
}
