#include "text/streams/Base64Decoder.h"

#include <cstring>

#include "text/streams/Base64Encoder.h"

namespace {

// The values of the alphabet's characters, each shifted to its place in a group of four characters,
// with the top bit standing for a byte outside the alphabet: OR-ing four of them gives the
// group's 24 bits, or a word with the top bit set if any of the four is to be skipped.
struct GroupTables {
    std::uint32_t shifted[4][256];
};

constexpr std::uint32_t outside = 0x80000000u;

constexpr GroupTables MakeGroupTables() {
    GroupTables tables{};
    for (int place = 0; place < 4; ++place) {
        for (int byte = 0; byte < 256; ++byte) tables.shifted[place][byte] = outside;
        for (std::uint32_t value = 0; value < 64; ++value) {
            unsigned char const character =
                static_cast<unsigned char>(Base64Encoder::alphabet[value]);
            tables.shifted[place][character] = value << (18 - 6 * place);
        }
    }
    return tables;
}

constexpr GroupTables groupTables = MakeGroupTables();

}  // namespace

// clang-format off
signed char const Base64Decoder::characterValues[256] = {
    -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1,
    -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1,
    -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, 62, -1, -1, -1, 63,
    52, 53, 54, 55, 56, 57, 58, 59, 60, 61, -1, -1, -1, -1, -1, -1,
    -1,  0,  1,  2,  3,  4,  5,  6,  7,  8,  9, 10, 11, 12, 13, 14,
    15, 16, 17, 18, 19, 20, 21, 22, 23, 24, 25, -1, -1, -1, -1, -1,
    -1, 26, 27, 28, 29, 30, 31, 32, 33, 34, 35, 36, 37, 38, 39, 40,
    41, 42, 43, 44, 45, 46, 47, 48, 49, 50, 51, -1, -1, -1, -1, -1,
    -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1,
    -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1,
    -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1,
    -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1,
    -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1,
    -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1,
    -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1,
    -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1,
};
// clang-format on

bool Base64Decoder::TableIsCorrect() {
    for (int byte = 0; byte < 256; ++byte) {
        char const* found =
            byte == 0 ? nullptr : std::strchr(Base64Encoder::alphabet, static_cast<char>(byte));
        int const expected = found ? static_cast<int>(found - Base64Encoder::alphabet) : -1;
        int const actual = characterValues[byte];
        if (expected >= 0 ? actual != expected : actual >= 0) return false;
    }
    return true;
}

void Base64Decoder::operator()(ConstBuffer& input, Buffer& output) {
    std::uint32_t accumulator = bits;
    unsigned count = bitCount;
    unsigned char const* in = input.cursor;
    unsigned char const* const inEnd = input.end;
    unsigned char* out = output.cursor;
    unsigned char* const outEnd = output.end;

    while (in != inEnd) {
        if (count == 0) {
            // Four alphabet characters in a row make three whole bytes; this is the common case
            // and runs without the accumulator. The output keeps room after them, so the check
            // for a full output below still sees every byte that fills it.
            while (inEnd - in >= 4 && outEnd - out > 3) {
                std::uint32_t const group =
                    groupTables.shifted[0][in[0]] | groupTables.shifted[1][in[1]] |
                    groupTables.shifted[2][in[2]] | groupTables.shifted[3][in[3]];
                if (group & outside) break;
                out[0] = static_cast<unsigned char>(group >> 16);
                out[1] = static_cast<unsigned char>(group >> 8);
                out[2] = static_cast<unsigned char>(group);
                in += 4;
                out += 3;
            }
            if (in == inEnd) break;
        }
        int const value = characterValues[*in];
        if (value < 0) {
            ++in;
            continue;
        }
        if (count < 2) {
            accumulator = (accumulator << 6) | std::uint32_t(value);
            count += 6;
            ++in;
            continue;
        }
        // This character completes a byte.
        if (out == outEnd) {
            bits = accumulator;
            bitCount = count;
            input.cursor = in;
            output.cursor = out;
            throw DataOverflow();
        }
        accumulator = (accumulator << 6) | std::uint32_t(value);
        count -= 2;
        ++in;
        *out++ = static_cast<unsigned char>(accumulator >> count);
        if (out == outEnd) break;
    }
    bits = accumulator;
    bitCount = count;
    input.cursor = in;
    output.cursor = out;
}
