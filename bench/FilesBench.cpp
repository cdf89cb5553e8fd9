// Speed of the file layer on real files in a fresh directory under /tmp: reading through
// ReadFile's 2048-byte buffer, copying through the 65536-byte one, listing a directory, and
// the path arithmetic.

#include <benchmark/benchmark.h>
#include <stdlib.h>

#include <cstdlib>
#include <fstream>
#include <string>

#include "files/FileCopy.h"
#include "files/FileDelete.h"
#include "files/FileItem.h"
#include "files/FileLocationFunctions.h"
#include "files/FileLoop.h"
#include "files/ReadFile.h"
#include "text/streams/ChecksumReceiver.h"

namespace {

// A directory that lives as long as the benchmark program.
class BenchDirectory {
  public:
    BenchDirectory() {
        char pattern[] = "/tmp/zolbench.XXXXXX";
        m_path = ::mkdtemp(pattern) ? pattern : "/tmp";
    }
    ~BenchDirectory() { std::system(("rm -rf '" + m_path + "'").c_str()); }
    std::string const& Path() const { return m_path; }

  private:
    std::string m_path;
};

BenchDirectory const& Directory() {
    static BenchDirectory directory;
    return directory;
}

FileLocation FileOfSize(std::string const& name, std::size_t size) {
    std::string const path = Directory().Path() + "/" + name;
    std::ofstream(path, std::ios::binary) << std::string(size, 'z');
    return MakeFileLocation(path.c_str());
}

void BM_ReadFileChecksum(benchmark::State& state) {
    std::size_t const size = static_cast<std::size_t>(state.range(0));
    FileLocation const file = FileOfSize("read" + std::to_string(size), size);
    for (auto _ : state) {
        ChecksumReceiver checksum;
        ReadFile(file, checksum, 0);
        benchmark::DoNotOptimize(checksum.Value());
    }
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations()) * static_cast<int64_t>(size));
}
BENCHMARK(BM_ReadFileChecksum)->Arg(4096)->Arg(4 << 20);

void BM_CopyFile(benchmark::State& state) {
    std::size_t const size = static_cast<std::size_t>(state.range(0));
    FileLocation const from = FileOfSize("copy" + std::to_string(size), size);
    FileLocation const to = MakeFileLocation((Directory().Path() + "/copied").c_str());
    for (auto _ : state) {
        CopyFile(from, to);
        DeleteFile(to);
    }
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations()) * static_cast<int64_t>(size));
}
BENCHMARK(BM_CopyFile)->Arg(4096)->Arg(4 << 20);

void BM_FileLoop(benchmark::State& state) {
    std::string const path = Directory().Path() + "/listing";
    FileLocation const directory = MakeFileLocation(path.c_str());
    static bool made = false;
    if (!made) {
        std::system(("mkdir -p '" + path + "'").c_str());
        for (int i = 0; i < 1000; ++i) {
            std::ofstream(path + "/entry" + std::to_string(i) + (i % 10 ? ".dat" : ".xlat"));
        }
        made = true;
    }
    char const* wildcard = state.range(0) ? "*.xlat" : nullptr;
    for (auto _ : state) {
        std::size_t count = 0;
        for (FileLoop loop(directory, wildcard); !loop.Finished(); ++loop) {
            ++count;
        }
        benchmark::DoNotOptimize(count);
    }
}
BENCHMARK(BM_FileLoop)->Arg(0)->Arg(1);

void BM_ParentChain(benchmark::State& state) {
    FileLocation const deep = MakeFileLocation("/var/tmp/ZOL/ClientUI/.someone/a/b/c/d/e/f.xlat");
    FileLocation const base = MakeFileLocation("/var/tmp/ZOL/ClientUI");
    for (auto _ : state) {
        benchmark::DoNotOptimize(IsDescendant(base, deep));
    }
}
BENCHMARK(BM_ParentChain);

}  // namespace

BENCHMARK_MAIN();
