// Feeds arbitrary bytes to the translation-file parser. Parsing never fails; every entry lies
// inside the text, has a non-empty key without tab or line end and a value without line end,
// and is found again by its key; the number of entries is the number of lines with a tab behind
// a non-empty key. Keys cut from the input at random are found exactly when an entry has them,
// through the set and through a context.

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <vector>

#include "localized/FormatOverrides.h"

namespace {

void Check(bool condition) {
    if (!condition) std::abort();
}

bool Holds(UStringRef<UTF8> text, char byte) {
    return !text.Empty() && std::memchr(text.begin, byte, text.Length()) != nullptr;
}

// Counts the lines (ended by CR or LF, each on its own) whose first tab isn't their first byte.
std::size_t CountEntryLines(uint8_t const* data, size_t size) {
    std::size_t count = 0;
    std::size_t lineStart = 0;
    bool seenTab = false;
    for (std::size_t i = 0; i <= size; ++i) {
        if (i == size || data[i] == '\r' || data[i] == '\n') {
            if (seenTab) ++count;
            lineStart = i + 1;
            seenTab = false;
        } else if (data[i] == '\t' && !seenTab) {
            seenTab = true;
            if (i == lineStart) {
                // An empty key: skip to the line's end.
                while (i + 1 < size && data[i + 1] != '\r' && data[i + 1] != '\n') ++i;
                seenTab = false;
            }
        }
    }
    return count;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(uint8_t const* data, size_t size) {
    UStringRef<UTF8> const text(data, data + size);
    FormatOverrideSet const set(text);
    FormatOverrideContext context;
    FormatOverrideScope const scope(set, context);
    std::vector<FormatBinding> const& entries = set.Entries();
    Check(entries.size() == CountEntryLines(data, size));
    for (std::size_t i = 0; i < entries.size(); ++i) {
        FormatBinding const& entry = entries[i];
        Check(entry.first.begin >= data && entry.first.end <= data + size);
        Check(entry.second.begin >= data && entry.second.end <= data + size);
        Check(!entry.first.Empty());
        Check(!Holds(entry.first, '\t') && !Holds(entry.first, '\r') && !Holds(entry.first, '\n'));
        Check(!Holds(entry.second, '\r') && !Holds(entry.second, '\n'));
        if (i > 0) Check(!(entry < entries[i - 1]));
        Check(set.HasOverride(entry.first));
        // The value found is the least of the key's values.
        UStringRef<UTF8> const found = set.GetOverride(entry.first);
        Check(!(entry.second < found));
        Check(context.Override(entry.first, UStringRef<UTF8>()) == found);
    }
    // Keys cut from the input: found exactly when some entry has that key.
    for (std::size_t start = 0; start < size && start < 64; ++start) {
        std::size_t const length = data[start] % 24;
        if (start + length > size) break;
        UStringRef<UTF8> const key(data + start, data + start + length);
        bool expected = false;
        for (FormatBinding const& entry : entries) expected = expected || entry.first == key;
        Check(set.HasOverride(key) == expected);
        Check(context.HasOverride(key) == expected);
        if (!expected) Check(context.Override(key, text) == text);
    }
    return 0;
}
