#include "RowBands.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

uint32_t const paper = 0xffffff;
uint32_t const ink = 0x000000;

PixelGrid BlankGrid(int width, int height) {
    PixelGrid grid;
    grid.width = width;
    grid.height = height;
    grid.pixels.assign(static_cast<size_t>(width) * height, paper);
    return grid;
}

void Put(PixelGrid& grid, int x, int y, uint32_t colour) {
    if (x >= 0 && y >= 0 && x < grid.width && y < grid.height)
        grid.pixels[static_cast<size_t>(y) * grid.width + x] = colour;
}

// Letters: ink on every other column of lines top to bottom (exclusive), so no line is solid;
// each line a little longer than the one above, as glyphs of uneven height leave it.
void DrawText(PixelGrid& grid, int left, int right, int top, int bottom) {
    for (int y = top; y < bottom; ++y)
        for (int x = left; x < right + (y - top); x += 2) Put(grid, x, y, ink);
}

// A highlighted row: a solid block with letters cut out in the paper colour.
void DrawHighlight(PixelGrid& grid, int left, int right, int top, int bottom) {
    for (int y = top; y < bottom; ++y)
        for (int x = left; x < right; ++x) Put(grid, x, y, ink);
    for (int y = top + 2; y < bottom - 2; ++y)
        for (int x = left + 3; x < right - 3; x += 3) Put(grid, x, y, paper);
}

}  // namespace

TEST(RowBands, RowsOfTextAreBandsCountedFromTheTop) {
    PixelGrid grid = BlankGrid(120, 60);
    for (int row = 0; row < 3; ++row) DrawText(grid, 4, 60 + 10 * row, 2 + 13 * row, 12 + 13 * row);
    std::vector<RowBand> bands = FindRowBands(grid);
    ASSERT_EQ(3u, bands.size());
    for (int row = 0; row < 3; ++row) {
        EXPECT_EQ(2 + 13 * row, bands[row].top);
        EXPECT_EQ(12 + 13 * row, bands[row].bottom);
        EXPECT_EQ(4, bands[row].left);
        EXPECT_FALSE(bands[row].inverted);
    }
    EXPECT_EQ((std::vector<int>{0, 1, 2}), NumberBands(bands, 0, grid.height));
}

TEST(RowBands, AHighlightTouchingTextStaysARowOfItsOwn) {
    PixelGrid grid = BlankGrid(120, 60);
    DrawText(grid, 4, 50, 2, 13);         // runs down to the highlight's first line
    DrawHighlight(grid, 2, 100, 13, 26);  // the second row, full width
    DrawText(grid, 4, 40, 26, 36);        // starts right under it
    std::vector<RowBand> bands = FindRowBands(grid);
    ASSERT_EQ(3u, bands.size());
    EXPECT_FALSE(bands[0].inverted);
    EXPECT_TRUE(bands[1].inverted);
    EXPECT_EQ(13, bands[1].top);
    EXPECT_EQ(26, bands[1].bottom);
    EXPECT_EQ(2, bands[1].left);
    EXPECT_EQ(100, bands[1].right);
    EXPECT_FALSE(bands[2].inverted);
    EXPECT_EQ(26, bands[2].top);
}

TEST(RowBands, ASolidLineInsideTextIsNoHighlight) {
    PixelGrid grid = BlankGrid(80, 30);
    for (int x = 5; x < 25; ++x) Put(grid, x, 4, ink);  // the bar of a T
    DrawText(grid, 14, 16, 5, 14);                      // its stem, narrower than the bar
    std::vector<RowBand> bands = FindRowBands(grid);
    ASSERT_EQ(1u, bands.size());
    EXPECT_FALSE(bands[0].inverted);
    EXPECT_EQ(4, bands[0].top);
    EXPECT_EQ(14, bands[0].bottom);
}

TEST(RowBands, AScrolledListIsNumberedByItsRowPitch) {
    struct Case {
        char const* what;
        bool highlight;
        std::vector<int> expected;
    } const cases[] = {
        {"pitch from the distance between text rows", false, {-1, 2, 3, 4}},
        {"pitch from the height of a highlight", true, {-1, 2, 3, 4}},
    };
    for (Case const& c : cases) {
        // Rows 13 lines apart, text from line 2 of each row; the grid shows the list from
        // its line 20 on, so row 1 is cut at the top.
        int const scrolledBy = 20;
        PixelGrid grid = BlankGrid(100, 48);
        for (int row = 1; row < 5; ++row) {
            int top = 13 * row - scrolledBy;
            if (c.highlight && row == 3)
                DrawHighlight(grid, 1, 90, top, top + 13);
            else
                DrawText(grid, 4, 50, top + 2, top + 11);
        }
        std::vector<RowBand> bands = FindRowBands(grid);
        EXPECT_EQ(c.expected, NumberBands(bands, scrolledBy, grid.height)) << c.what;
    }
}

TEST(RowBands, AScrolledListWithOneWholeRowCannotBeNumbered) {
    PixelGrid grid = BlankGrid(100, 20);
    DrawText(grid, 4, 50, 0, 4);    // cut by the top edge
    DrawText(grid, 4, 50, 6, 15);   // the only whole row
    DrawText(grid, 4, 50, 17, 20);  // cut by the bottom edge
    std::vector<RowBand> bands = FindRowBands(grid);
    ASSERT_EQ(3u, bands.size());
    EXPECT_TRUE(NumberBands(bands, 30, grid.height).empty());
}

TEST(RowBands, AnEmptyListHasNoBands) {
    EXPECT_TRUE(FindRowBands(BlankGrid(50, 50)).empty());
    EXPECT_TRUE(FindRowBands(PixelGrid{}).empty());
}
