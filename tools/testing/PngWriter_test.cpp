#include "PngWriter.h"

#include <gtest/gtest.h>
#include <zlib.h>

#include <cstdint>
#include <map>
#include <string>

namespace {

uint32_t BigEndianAt(std::string const& bytes, size_t at) {
    uint32_t value = 0;
    for (size_t i = 0; i < 4; ++i) value = value << 8 | static_cast<uint8_t>(bytes[at + i]);
    return value;
}

// Returns the chunks of a PNG file by type, checking the signature and each chunk's CRC.
std::map<std::string, std::string> PngChunks(std::string const& png) {
    std::map<std::string, std::string> chunks;
    EXPECT_EQ(std::string("\x89PNG\r\n\x1a\n", 8), png.substr(0, 8));
    size_t at = 8;
    while (at + 12 <= png.size()) {
        uint32_t length = BigEndianAt(png, at);
        std::string typed = png.substr(at + 4, 4 + length);
        uLong crc = crc32(0L, reinterpret_cast<Bytef const*>(typed.data()),
                          static_cast<uInt>(typed.size()));
        EXPECT_EQ(crc, BigEndianAt(png, at + 8 + length)) << typed.substr(0, 4);
        chunks[typed.substr(0, 4)] += typed.substr(4);
        at += 12 + length;
    }
    EXPECT_EQ(png.size(), at);
    return chunks;
}

}  // namespace

TEST(PngWriter, TheImageDecodesToTheSamePixels) {
    PixelGrid grid;
    grid.width = 7;
    grid.height = 5;
    for (int y = 0; y < grid.height; ++y)
        for (int x = 0; x < grid.width; ++x)
            grid.pixels.push_back(static_cast<uint32_t>(x * 0x230000 + y * 0x1900 + (x ^ y)));

    std::map<std::string, std::string> chunks = PngChunks(EncodePng(grid));
    ASSERT_EQ(3u, chunks.size());
    ASSERT_EQ(13u, chunks["IHDR"].size());
    EXPECT_EQ(7u, BigEndianAt(chunks["IHDR"], 0));
    EXPECT_EQ(5u, BigEndianAt(chunks["IHDR"], 4));
    EXPECT_EQ(std::string("\x08\x02\0\0\0", 5), chunks["IHDR"].substr(8));
    EXPECT_TRUE(chunks["IEND"].empty());

    std::string raw(static_cast<size_t>(grid.height) * (1 + 3 * grid.width) + 1, '\x55');
    uLongf size = raw.size();
    ASSERT_EQ(Z_OK, uncompress(reinterpret_cast<Bytef*>(&raw[0]), &size,
                               reinterpret_cast<Bytef const*>(chunks["IDAT"].data()),
                               static_cast<uLong>(chunks["IDAT"].size())));
    ASSERT_EQ(raw.size() - 1, size);
    for (int y = 0; y < grid.height; ++y) {
        size_t line = static_cast<size_t>(y) * (1 + 3 * grid.width);
        EXPECT_EQ('\0', raw[line]) << "filter of line " << y;
        for (int x = 0; x < grid.width; ++x) {
            uint32_t pixel = grid.At(x, y);
            size_t at = line + 1 + 3 * static_cast<size_t>(x);
            EXPECT_EQ(pixel >> 16 & 0xff, static_cast<uint8_t>(raw[at]));
            EXPECT_EQ(pixel >> 8 & 0xff, static_cast<uint8_t>(raw[at + 1]));
            EXPECT_EQ(pixel & 0xff, static_cast<uint8_t>(raw[at + 2]));
        }
    }
}
