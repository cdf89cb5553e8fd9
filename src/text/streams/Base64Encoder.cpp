#include "text/streams/Base64Encoder.h"

#include <cstring>

namespace {

// The two characters of each 12-bit value, so that a group of three bytes takes two look-ups.
struct PairTable {
    unsigned char pairs[4096][2];
};

constexpr PairTable MakePairTable() {
    PairTable table{};
    for (unsigned value = 0; value < 4096; ++value) {
        table.pairs[value][0] = static_cast<unsigned char>(Base64Encoder::alphabet[value >> 6]);
        table.pairs[value][1] = static_cast<unsigned char>(Base64Encoder::alphabet[value & 0x3F]);
    }
    return table;
}

constexpr PairTable pairTable = MakePairTable();

}  // namespace

void Base64Encoder::operator()(ConstBuffer& input, Buffer& output) {
    std::uint32_t accumulator = bits;
    unsigned count = bitCount;
    unsigned char const* in = input.cursor;
    unsigned char const* const inEnd = input.end;
    unsigned char* out = output.cursor;
    unsigned char* const outEnd = output.end;

    // Whole groups of three bytes make four characters with nothing left over; this is the
    // common case and runs without looking at the accumulator.
    if (count == 0) {
        while (inEnd - in >= 3 && outEnd - out >= 4) {
            std::uint32_t group = std::uint32_t(in[0]) << 16 | std::uint32_t(in[1]) << 8 | in[2];
            std::memcpy(out, pairTable.pairs[group >> 12], 2);
            std::memcpy(out + 2, pairTable.pairs[group & 0xFFF], 2);
            in += 3;
            out += 4;
        }
    }
    for (;;) {
        if (count >= 6) {
            if (out == outEnd) break;
            count -= 6;
            *out++ = static_cast<unsigned char>(alphabet[(accumulator >> count) & 0x3F]);
        } else {
            if (in == inEnd || out == outEnd) break;
            accumulator = (accumulator << 8) | *in++;
            count += 8;
        }
    }
    // Only the low bitCount bits are still to be written; the others are cleared.
    bits = accumulator & ((1u << count) - 1u);
    bitCount = count;
    input.cursor = in;
    output.cursor = out;
}

void Base64Encoder::Flush(Buffer& output) {
    unsigned char* const start = output.cursor;
    while (bitCount >= 6) {
        if (output.Full()) return;
        bitCount -= 6;
        *output.cursor++ = static_cast<unsigned char>(alphabet[(bits >> bitCount) & 0x3F]);
    }
    if (bitCount == 0) return;
    // 2 bits left make a character and "=="; 4 bits left a character and "=".
    std::size_t const needed = bitCount == 2 ? 3 : 2;
    if (output.Size() < needed) {
        if (output.cursor != start) return;
        throw DataOverflow();
    }
    *output.cursor++ = static_cast<unsigned char>(alphabet[(bits << (6 - bitCount)) & 0x3F]);
    for (std::size_t i = 1; i < needed; ++i) *output.cursor++ = '=';
    bits = 0;
    bitCount = 0;
}
