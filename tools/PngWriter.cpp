#include "PngWriter.h"

#include <sys/stat.h>
#include <zlib.h>

#include <cstdint>
#include <fstream>

#include "ScenarioScript.h"

namespace {

void PutBigEndian(std::string& out, uint32_t value) {
    for (int shift = 24; shift >= 0; shift -= 8) out += static_cast<char>((value >> shift) & 0xff);
}

// Appends a chunk: length, type, data, and the CRC over type and data.
void PutChunk(std::string& out, char const* type, std::string const& data) {
    PutBigEndian(out, static_cast<uint32_t>(data.size()));
    std::string typed = std::string(type, 4) + data;
    out += typed;
    uLong crc = crc32(0L, Z_NULL, 0);
    crc = crc32(crc, reinterpret_cast<Bytef const*>(typed.data()), static_cast<uInt>(typed.size()));
    PutBigEndian(out, static_cast<uint32_t>(crc));
}

void MakeParents(std::string const& path) {
    for (size_t slash = path.find('/', 1); slash != std::string::npos;
         slash = path.find('/', slash + 1))
        mkdir(path.substr(0, slash).c_str(), 0777);
}

}  // namespace

std::string EncodePng(PixelGrid const& grid) {
    std::string header;
    PutBigEndian(header, static_cast<uint32_t>(grid.width));
    PutBigEndian(header, static_cast<uint32_t>(grid.height));
    header += '\x08';                // bits per sample
    header += '\x02';                // colour type: RGB
    header += std::string(3, '\0');  // deflate, adaptive filtering, no interlace

    std::string raw;
    raw.reserve(static_cast<size_t>(grid.height) * (1 + 3 * static_cast<size_t>(grid.width)));
    for (int y = 0; y < grid.height; ++y) {
        raw += '\0';  // filter type 0: the line as it is
        for (int x = 0; x < grid.width; ++x) {
            uint32_t pixel = grid.At(x, y);
            raw += static_cast<char>((pixel >> 16) & 0xff);
            raw += static_cast<char>((pixel >> 8) & 0xff);
            raw += static_cast<char>(pixel & 0xff);
        }
    }
    uLongf size = compressBound(static_cast<uLong>(raw.size()));
    std::string compressed(size, '\0');
    if (compress2(reinterpret_cast<Bytef*>(&compressed[0]), &size,
                  reinterpret_cast<Bytef const*>(raw.data()), static_cast<uLong>(raw.size()),
                  Z_BEST_SPEED) != Z_OK)
        throw ScenarioError("cannot compress the image");
    compressed.resize(size);

    std::string png("\x89PNG\r\n\x1a\n", 8);
    PutChunk(png, "IHDR", header);
    PutChunk(png, "IDAT", compressed);
    PutChunk(png, "IEND", std::string());
    return png;
}

void WritePng(std::string const& path, PixelGrid const& grid) {
    MakeParents(path);
    std::string png = EncodePng(grid);
    std::ofstream out(path, std::ios::binary);
    out.write(png.data(), static_cast<std::streamsize>(png.size()));
    out.close();
    if (!out) throw ScenarioError(path + ": cannot write the screenshot");
}
