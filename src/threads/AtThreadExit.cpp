#include "threads/AtThreadExit.h"

#include <deque>

namespace {

// The first five entries live inline and need no allocation; later ones go to a deque, whose
// elements never move once added.
struct ExitRoutineList {
    void (*first[5])() = {};
    unsigned long count = 0;
    std::deque<void (*)()> more;
};

ExitRoutineList& Routines() {
    static ExitRoutineList list;
    return list;
}

}  // namespace

void AtThreadExit(void (*routine)()) {
    ExitRoutineList& list = Routines();
    if (list.count < 5)
        list.first[list.count] = routine;
    else
        list.more.push_back(routine);
    ++list.count;
}

void DoThreadExitRoutines() {
    ExitRoutineList& list = Routines();
    for (unsigned long i = 0; i < list.count; ++i) {
        void (*routine)() = i < 5 ? list.first[i] : list.more[i - 5];
        if (routine) routine();
    }
}
