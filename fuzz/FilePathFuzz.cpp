// Random bytes as a path and a wildcard pattern, separated by the first zero byte, through the
// path and name types: the invariants of trimming, the parent chain, leaf names and matching
// must hold, and only the documented failures may be thrown.

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string>

#include "files/FileErrors.h"
#include "files/FileLocation.h"
#include "files/FileLocationFunctions.h"
#include "files/FileName.h"

namespace {

void Require(bool condition) {
    if (!condition) {
        std::abort();
    }
}

void CheckLocation(std::string const& path) {
    FileLocation location = MakeFileLocation(path.c_str());
    std::string const text = location.LogString();
    Require(text.size() <= path.size());
    Require(path.compare(0, text.size(), text) == 0);
    Require(text.empty() || text == "/" || text.back() != '/');
    if (text.empty()) {
        return;
    }
    // The parent chain shortens the text at each step and ends at the root or at a path
    // without structure.
    for (int steps = 0;; ++steps) {
        Require(steps <= static_cast<int>(path.size()));
        try {
            FileName const name = location.Name();
            Require(std::strchr(name.Text(), '/') == nullptr);
        } catch (IllegalFileName const&) {
        } catch (IllegalFileNameLength const&) {
        }
        FileLocation parent;
        try {
            parent = location.Parent();
        } catch (RootHasNoParent const&) {
            Require(location.LogString() == "/");
            return;
        } catch (InvalidFileLocation const&) {
            Require(location.LogString().find('/') == std::string::npos);
            return;
        }
        std::string const parentText = parent.LogString();
        Require(parentText.size() < location.LogString().size());
        Require(location.LogString().compare(0, parentText.size(), parentText) == 0);
        Require(EqualOrDescendant(parent, location));
        location = parent;
    }
}

void CheckName(std::string const& text, std::string const& pattern) {
    UnixPlatform::FileName name;
    try {
        name.Set(text.data(), text.size());
    } catch (IllegalFileName const&) {
        Require(text == "." || text == ".." || text.find('/') != std::string::npos);
        return;
    } catch (IllegalFileNameLength const&) {
        Require(text.empty() || text.size() > 255);
        return;
    }
    Require(name.Text() == text);
    Require(name.MatchesWildCard("*"));
    // The matcher is exponential in the number of stars; the program's own patterns have one.
    auto const stars = [](std::string const& s) {
        std::size_t count = 0;
        for (char c : s) {
            count += c == '*';
        }
        return count;
    };
    if (stars(text) <= 3) {
        Require(name.MatchesWildCard(text.c_str()));
    }
    if (stars(pattern) <= 3 && pattern.size() <= 64) {
        bool const matches = name.MatchesWildCard(pattern.c_str());
        if (pattern.find_first_of("*?") == std::string::npos) {
            Require(matches == (pattern == text));
        }
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(uint8_t const* data, size_t size) {
    std::string const input(reinterpret_cast<char const*>(data), size);
    std::size_t const split = input.find('\0');
    std::string const path = input.substr(0, split);
    std::string pattern = split == std::string::npos ? std::string() : input.substr(split + 1);
    pattern = pattern.substr(0, pattern.find('\0'));
    CheckLocation(path);
    CheckName(path, pattern);
    return 0;
}
