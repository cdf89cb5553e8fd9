#pragma once
// Writing a grid of pixels as a PNG file: 8-bit RGB, no interlace, every line with filter 0,
// the image data compressed by zlib, each chunk with its CRC.

#include <string>

#include "RowBands.h"

// Returns the bytes of the PNG file of the grid.
std::string EncodePng(PixelGrid const& grid);

// Writes the PNG file of the grid, making missing parent directories. Throws ScenarioError if
// the file cannot be written.
void WritePng(std::string const& path, PixelGrid const& grid);
