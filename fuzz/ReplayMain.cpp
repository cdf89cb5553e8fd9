// Feeds every file of the given directories (or the given files) once through the fuzz entry
// point, so that a corpus found by libFuzzer keeps being checked in ordinary builds.

#include <dirent.h>
#include <sys/stat.h>

#include <cstdint>
#include <cstdio>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(uint8_t const* data, size_t size);

static int RunFile(std::string const& path) {
    std::ifstream in(path, std::ios::binary);
    if (!in) {
        std::fprintf(stderr, "cannot read %s\n", path.c_str());
        return 1;
    }
    std::vector<char> bytes((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
    LLVMFuzzerTestOneInput(reinterpret_cast<uint8_t const*>(bytes.data()), bytes.size());
    return 0;
}

int main(int argc, char** argv) {
    int failures = 0, count = 0;
    for (int i = 1; i < argc; ++i) {
        struct stat info;
        if (stat(argv[i], &info) != 0) {
            std::fprintf(stderr, "no such corpus: %s\n", argv[i]);
            return 1;
        }
        if (!S_ISDIR(info.st_mode)) {
            failures += RunFile(argv[i]);
            ++count;
            continue;
        }
        DIR* dir = opendir(argv[i]);
        if (!dir) return 1;
        while (dirent* entry = readdir(dir)) {
            std::string name = entry->d_name;
            if (name == "." || name == "..") continue;
            failures += RunFile(std::string(argv[i]) + "/" + name);
            ++count;
        }
        closedir(dir);
    }
    std::printf("replayed %d inputs\n", count);
    return failures == 0 && count > 0 ? 0 : 1;
}
