#pragma once
// Finding the rows of a list from its pixels, without knowing its font: every row's text is a
// horizontal band of lines that hold pixels other than the background, and a highlighted row is
// a band drawn inverted. Pure functions over a grid of pixels, so they are tested without X.

#include <cstddef>
#include <cstdint>
#include <vector>

// Pixels row by row, top to bottom; each value is 0xRRGGBB.
struct PixelGrid {
    int width = 0, height = 0;
    std::vector<uint32_t> pixels;
    uint32_t At(int x, int y) const { return pixels[static_cast<std::size_t>(y) * width + x]; }
};

// One row's band: lines top to bottom (exclusive), and the columns left to right (exclusive)
// that hold its ink. For an inverted band, the ink is the highlight.
struct RowBand {
    int top = 0, bottom = 0;
    int left = 0, right = 0;
    bool inverted = false;
};

// Returns the bands top to bottom. The background is the most frequent pixel value. A band of
// text runs from a line with ink to the next blank line. A highlight is a band that starts with
// a solid line (ink without a gap) and continues while the ink spans exactly the same columns,
// so a highlighted row stays apart from rows of text right above or below it.
std::vector<RowBand> FindRowBands(PixelGrid const& grid);

// Returns the index in the list of each band. scrolledBy is how many lines of the list lie
// above the grid; 0 means the grid starts at the list's top, and the bands are counted from 0.
// Otherwise rows are numbered by their pitch: the height of a highlight, or else the median
// distance between two text bands, which is exact when they start at the same height in their rows.
// A row's band must start less than one pitch below the row's own top (the list's margin and the
// space above the text are smaller than a row). A band cut by the grid's edge gets -1. Returns an
// empty vector when a scrolled list shows too few whole rows to measure the pitch. Rows whose text
// is empty leave no band and are not counted.
std::vector<int> NumberBands(std::vector<RowBand> const& bands, int scrolledBy, int gridHeight);
