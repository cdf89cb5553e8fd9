#include "threads/AtThreadExit.h"

#include <atomic>

namespace {

// A list that one registering thread appends to while finishing threads walk it, without a
// lock: an entry is complete before the count or link that publishes it, and never moves.
// The first five entries live inline and need no allocation.
struct ExtraRoutine {
    void (*routine)();
    std::atomic<ExtraRoutine*> next{nullptr};
};

struct ExitRoutineList {
    void (*first[5])() = {};
    std::atomic<unsigned long> count{0};
    std::atomic<ExtraRoutine*> more{nullptr};
    ExtraRoutine* last = nullptr;  // touched by the registering side only
};

ExitRoutineList& Routines() {
    static ExitRoutineList list;
    return list;
}

}  // namespace

void AtThreadExit(void (*routine)()) {
    ExitRoutineList& list = Routines();
    unsigned long count = list.count.load();
    if (count < 5) {
        list.first[count] = routine;
    } else {
        ExtraRoutine* entry = new ExtraRoutine{routine};
        if (list.last)
            list.last->next.store(entry);
        else
            list.more.store(entry);
        list.last = entry;
    }
    list.count.store(count + 1);
}

void DoThreadExitRoutines() {
    ExitRoutineList& list = Routines();
    unsigned long count = list.count.load();
    for (unsigned long i = 0; i < count && i < 5; ++i)
        if (list.first[i]) list.first[i]();
    if (count <= 5) return;
    for (ExtraRoutine* entry = list.more.load(); entry; entry = entry->next.load())
        if (entry->routine) entry->routine();
}
