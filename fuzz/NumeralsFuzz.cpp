// Reads arbitrary bytes as numerals and as text to split, and checks the results against
// independent statements of the same rules: the C library's strtoull and strtoll, 128-bit
// arithmetic, and the reassembly of split pieces.

#include <cerrno>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <vector>

#include "text/bytes/AsciiNumerals.h"
#include "text/bytes/ConstData.h"
#include "text/bytes/Stringy.h"

namespace {

void Check(bool condition) {
    if (!condition) std::abort();
}

bool IsDigit(unsigned char c) {
    return c >= '0' && c <= '9';
}

// The expected status of the unsigned decimal read: the digits before the first bad byte decide
// whether overflow comes first, since overflow is tested before each byte.
int ExpectedUnsignedStatus(std::string const& text) {
    if (text.empty()) return 1;
    unsigned __int128 prefix = 0;
    unsigned __int128 const max = ~0ULL;
    for (unsigned char c : text) {
        if (prefix * 10 > max) return 2;
        if (!IsDigit(c)) return 1;
        prefix = prefix * 10 + (c - '0');
        if (prefix > max) return 2;
    }
    return 0;
}

void CheckUnsigned(std::string const& text) {
    unsigned long long value = 0;
    int status = TryReadAsciiDecimalNumeral(ConstData(text), value);
    Check(status == ExpectedUnsignedStatus(text));
    if (status != 0) return;
    errno = 0;
    Check(value == std::strtoull(text.c_str(), nullptr, 10) && errno == 0);
    // Writing the value back with as many digits as were read gives the same text.
    if (text.size() <= 20) Check(ConstData(MakeAsciiDecimalNumeral64(value, text.size())) == text);
}

void CheckSigned(std::string const& text) {
    long long value = 0;
    int status = TryReadAsciiDecimalNumeral(ConstData(text), value);
    std::size_t digits = !text.empty() && (text[0] == '-' || text[0] == '+') ? 1 : 0;
    bool wellFormed = text.size() > digits;
    for (std::size_t i = digits; i < text.size(); ++i) wellFormed = wellFormed && IsDigit(text[i]);
    if (!wellFormed) {
        Check(status != 0);
        return;
    }
    errno = 0;
    long long expected = std::strtoll(text.c_str(), nullptr, 10);
    Check((errno == ERANGE) == (status == 2));
    if (status == 0) Check(value == expected);
}

void CheckSplit(ConstData data, ConstData separator, bool trim, bool keepEmpty) {
    std::vector<ConstData> pieces = data.Split(separator, trim, keepEmpty);
    if (separator.Empty() || separator.Size() > data.Size()) {
        Check(pieces.size() == 1);
        return;
    }
    std::size_t hits = data.PositionsOf(separator).size();
    if (keepEmpty) Check(pieces.size() == hits + 1);
    if (keepEmpty && !trim) {
        std::string joined;
        for (std::size_t i = 0; i < pieces.size(); ++i) {
            if (i) joined += MakeString(separator);
            joined += MakeString(pieces[i]);
        }
        Check(joined == MakeString(data));
    }
    for (ConstData piece : pieces) {
        Check(keepEmpty || !piece.Empty());
        if (trim) Check(TrimAsciiWhitespace(piece) == piece);
        Check(piece.begin >= data.begin && piece.end <= data.end);
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(uint8_t const* data, size_t size) {
    std::string text(reinterpret_cast<char const*>(data), size);
    // A numeral of practical length has no embedded zero; strtoull would stop at one.
    std::string numeral = text.substr(0, text.find('\0'));
    CheckUnsigned(numeral);
    CheckSigned(numeral);

    ConstData bytes(data, size);
    for (std::size_t separatorLength = 0; separatorLength <= 2 && separatorLength <= size;
         ++separatorLength) {
        ConstData separator(data, separatorLength);
        ConstData rest(data + separatorLength, size - separatorLength);
        for (int flags = 0; flags < 4; ++flags) CheckSplit(rest, separator, flags & 1, flags & 2);
    }

    Stringy stringy(bytes);
    Check(stringy.Length() == size);
    Check(stringy.Inline() == (size <= 127));
    Check(ConstData(stringy) == bytes);
    return 0;
}
