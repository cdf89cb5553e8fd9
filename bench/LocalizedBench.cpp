// What a localized text costs to make: "You have {number} pending actions." with its number,
// through an empty override context and through one holding a translation file of some two
// hundred lines (the shared texts and the summaries, each with a translation), beside snprintf
// making the same English text. And a summary sentence with its deadline wording.

#include <benchmark/benchmark.h>
#include <stdlib.h>
#include <unistd.h>

#include <cstdio>
#include <cstring>
#include <fstream>
#include <string>

#include "files/FileLocationFunctions.h"
#include "localized/ActionSummary.h"
#include "localized/DeadlineText.h"
#include "localized/FormatOverrides.h"
#include "localized/TranslationFiles.h"
#include "localized/UFormat.h"

namespace {

char const pendingKey[] = "You have {number} pending actions.";

// A translation file written to a temporary place, loaded and removed again.
class LoadedTranslation {
  public:
    LoadedTranslation() : m_path(MakeFile()), m_file(MakeFileLocation(m_path.c_str())) {
        ::unlink(m_path.c_str());
    }
    FormatOverrideSet const& Overrides() const { return m_file.Overrides(); }

  private:
    static std::string MakeFile() {
        char path[] = "/tmp/zollocalizedbench.XXXXXX";
        int const fd = ::mkstemp(path);
        if (fd >= 0) ::close(fd);
        std::ofstream out(path, std::ios::binary);
        // Keys shaped like the catalogue's and the summaries', in two hundred lines.
        for (int i = 0; i < 100; ++i) {
            out << "Shared text number " << i << " of the dialogs\tTexte commun num\xC3\xA9ro " << i
                << "\n";
            out << "You should save your work before taking action " << i
                << " within {DeadlineText}.\tEnregistrez votre travail avant l'action " << i
                << " dans {DeadlineText}.\n";
        }
        out << pendingKey << "\tVous avez {number} actions en attente.\n";
        return path;
    }

    std::string m_path;
    FormatFile m_file;
};

void RenderPending(benchmark::State& state, FormatOverrideContext const& context) {
    UStringRef<UTF8> const key = EncodingCast<UStringRef<UTF8> >(pendingKey);
    unsigned long long count = 2;
    for (auto _ : state) {
        AutoUString<UTF8> const number = FormattedNumber(count);
        AutoUString<UTF8> const text = MakeUString(UFormat(key, key, context).With(number));
        benchmark::DoNotOptimize(text.begin);
        count = count % 1000 + 2;
    }
    state.SetItemsProcessed(state.iterations());
}

void BM_LocalizedWithoutOverrides(benchmark::State& state) {
    FormatOverrideContext const empty;
    RenderPending(state, empty);
}
BENCHMARK(BM_LocalizedWithoutOverrides);

void BM_LocalizedWithTranslationFile(benchmark::State& state) {
    LoadedTranslation const translation;
    FormatOverrideContext context;
    FormatOverrideScope const scope(translation.Overrides(), context);
    RenderPending(state, context);
}
BENCHMARK(BM_LocalizedWithTranslationFile);

// The rendering alone, with the number's text made once.
void BM_LocalizedRenderOnly(benchmark::State& state) {
    UStringRef<UTF8> const key = EncodingCast<UStringRef<UTF8> >(pendingKey);
    AutoUString<UTF8> const number = FormattedNumber(42);
    FormatOverrideContext const empty;
    for (auto _ : state) {
        AutoUString<UTF8> const text = MakeUString(UFormat(key, key, empty).With(number));
        benchmark::DoNotOptimize(text.begin);
    }
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_LocalizedRenderOnly);

void BM_SnprintfStackBuffer(benchmark::State& state) {
    unsigned long count = 2;
    char buffer[64];
    for (auto _ : state) {
        std::snprintf(buffer, sizeof buffer, "You have %lu pending actions.", count);
        benchmark::DoNotOptimize(buffer);
        count = count % 1000 + 2;
    }
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_SnprintfStackBuffer);

// snprintf into a heap copy of the exact size, as the rendered text is.
void BM_SnprintfHeapCopy(benchmark::State& state) {
    unsigned long count = 2;
    char buffer[64];
    for (auto _ : state) {
        int const length =
            std::snprintf(buffer, sizeof buffer, "You have %lu pending actions.", count);
        char* const copy = new char[length + 1];
        std::memcpy(copy, buffer, length + 1);
        benchmark::DoNotOptimize(copy);
        delete[] copy;
        count = count % 1000 + 2;
    }
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_SnprintfHeapCopy);

struct Action {
    bool m_restart = true;
    bool m_shutdown = false;
    bool m_forceRun = false;
    bool m_requestSave = true;
    NullOr<Instant> m_deadline;
    NullOr<Instant> Deadline() const { return m_deadline; }
};

// "You should save your work ..., as it will require a system restart.  You must take this
// action within 3 hours." with the deadline worded afresh each time.
void BM_ActionSummaryWithDeadline(benchmark::State& state) {
    Action action;
    action.m_deadline = Instant::Now() + TimeInterval(3 * 3600000000LL);
    for (auto _ : state) {
        AutoUString<UTF8> const text = ActionSummary(action);
        benchmark::DoNotOptimize(text.begin);
    }
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_ActionSummaryWithDeadline);

}  // namespace

BENCHMARK_MAIN();
