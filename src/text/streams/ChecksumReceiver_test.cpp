#include <gtest/gtest.h>

#include <cstdint>
#include <random>
#include <vector>

#include "testing/RandomBytes.h"
#include "text/streams/ChecksumReceiver.h"
#include "text/streams/StreamHelpers.h"

namespace {

// The CRC one bit at a time, straight from its definition: no table, no grouping of bytes.
std::uint32_t BitwiseCrc(std::vector<unsigned char> const& bytes) {
    std::uint32_t crc = 0xFFFFFFFFu;
    for (unsigned char byte : bytes) {
        crc ^= std::uint32_t(byte) << 24;
        for (int bit = 0; bit < 8; ++bit)
            crc = crc & 0x80000000u ? crc << 1 ^ 0x04C11DB7u : crc << 1;
    }
    return crc;
}

}  // namespace

TEST(ChecksumReceiver, KnownAnswers) {
    ChecksumReceiver checksum;
    // The published check value of this CRC (CRC-32/MPEG-2).
    StartReceiveAndEnd(checksum, ConstData("123456789"));
    EXPECT_EQ(checksum.Value(), 0x0376E6E7u);
    // Start sets the register back; no bytes leave it at its preset.
    StartReceiveAndEnd(checksum, ConstData());
    EXPECT_EQ(checksum.Value(), 0xFFFFFFFFu);
    EXPECT_EQ(ChecksumReceiver().Value(), 0xFFFFFFFFu);
}

TEST(ChecksumReceiver, AgreesWithTheBitwiseDefinitionForAnyChunking) {
    std::mt19937 random(5);
    for (int round = 0; round < 200; ++round) {
        auto const bytes = RandomBytes<std::vector<unsigned char>>(random, random() % 300);
        ChecksumReceiver checksum;
        checksum.Start();
        // Pieces of every length up to 20 cover the sixteen-byte steps and the bytes left over.
        for (std::size_t at = 0; at < bytes.size();) {
            std::size_t piece = std::min<std::size_t>(random() % 21, bytes.size() - at);
            checksum.Receive(ConstData(bytes.data() + at, piece));
            at += piece;
        }
        checksum.ReceiveEnd();
        ASSERT_EQ(checksum.Value(), BitwiseCrc(bytes)) << bytes.size();
    }
}
