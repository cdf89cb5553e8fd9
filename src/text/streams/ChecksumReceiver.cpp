#include "text/streams/ChecksumReceiver.h"

#include <array>

namespace {

// The tables are made when the program is compiled, by the usual shift-and-XOR rule, so they
// stand before any code runs. Table 0 is the classic one: the register's update for a byte whose
// value meets the register's top byte. Table k gives the same for a byte that still has k zero
// bytes to pass through the register after it, which lets the loop take sixteen bytes per step
// with exactly the result of taking them one by one.
using CrcTables = std::array<std::array<std::uint32_t, 256>, 16>;

constexpr std::uint32_t polynomial = 0x04C11DB7u;

constexpr CrcTables MakeTables() {
    CrcTables tables{};
    for (std::uint32_t byte = 0; byte < 256; ++byte) {
        std::uint32_t value = byte << 24;
        for (int bit = 0; bit < 8; ++bit) {
            value = (value & 0x80000000u) ? (value << 1) ^ polynomial : value << 1;
        }
        tables[0][byte] = value;
    }
    for (std::size_t k = 1; k < 16; ++k) {
        for (std::uint32_t byte = 0; byte < 256; ++byte) {
            std::uint32_t previous = tables[k - 1][byte];
            tables[k][byte] = (previous << 8) ^ tables[0][previous >> 24];
        }
    }
    return tables;
}

constexpr CrcTables tables = MakeTables();

inline std::uint32_t Step(std::uint32_t crc, unsigned char byte) {
    return (crc << 8) ^ tables[0][byte ^ (crc >> 24)];
}

}  // namespace

ChecksumReceiver::ChecksumReceiver() : m_register(0xFFFFFFFFu) {}

void ChecksumReceiver::Start() {
    m_register = 0xFFFFFFFFu;
}

void ChecksumReceiver::Receive(ConstData data) {
    std::uint32_t crc = m_register;
    unsigned char const* p = data.begin;
    unsigned char const* end = data.end;
    // Sixteen bytes at a time: the first four meet the register, the rest only the tables.
    while (end - p >= 16) {
        std::uint32_t high = crc ^ (std::uint32_t(p[0]) << 24 | std::uint32_t(p[1]) << 16 |
                                    std::uint32_t(p[2]) << 8 | std::uint32_t(p[3]));
        crc = tables[15][high >> 24] ^ tables[14][(high >> 16) & 0xFF] ^
              tables[13][(high >> 8) & 0xFF] ^ tables[12][high & 0xFF] ^ tables[11][p[4]] ^
              tables[10][p[5]] ^ tables[9][p[6]] ^ tables[8][p[7]] ^ tables[7][p[8]] ^
              tables[6][p[9]] ^ tables[5][p[10]] ^ tables[4][p[11]] ^ tables[3][p[12]] ^
              tables[2][p[13]] ^ tables[1][p[14]] ^ tables[0][p[15]];
        p += 16;
    }
    for (; p != end; ++p) crc = Step(crc, *p);
    m_register = crc;
}
