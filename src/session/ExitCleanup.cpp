#include "session/ExitCleanup.h"

#include <unistd.h>

#include <cstdlib>

#include "session/SessionState.h"

void ExitCleanup(int status, char const*) {
    if (app_context) XtDestroyApplicationContext(app_context);
    sleep(2);
    exit(status);
}
