#include "RowBands.h"

#include <algorithm>
#include <unordered_map>

namespace {

uint32_t MostFrequent(std::vector<uint32_t> const& pixels) {
    std::unordered_map<uint32_t, size_t> counts;
    uint32_t best = 0;
    size_t bestCount = 0;
    for (uint32_t pixel : pixels) {
        size_t count = ++counts[pixel];
        if (count > bestCount) {
            best = pixel;
            bestCount = count;
        }
    }
    return best;
}

// The ink of each line: how many pixels differ from the background, and where.
struct LineInk {
    int count = 0;
    int left = 0, right = 0;  // right exclusive
    bool Blank() const { return count == 0; }
    // No gap between the outermost pixels: a line of a highlight's margin.
    bool Solid() const { return count >= 2 && count == right - left; }
};

// A highlight is at least this many lines tall: its margins above and below the text, and
// the text itself.
int const shortestHighlight = 4;

// Returns where a highlight that starts at line y ends: a run of lines whose ink spans exactly
// the same columns, starting with a solid line and holding text. Returns y if there is none.
int HighlightEnd(std::vector<LineInk> const& lines, int y) {
    if (!lines[y].Solid()) return y;
    int end = y;
    bool text = false;
    while (end < static_cast<int>(lines.size()) && !lines[end].Blank() &&
           lines[end].left == lines[y].left && lines[end].right == lines[y].right) {
        text = text || !lines[end].Solid();
        ++end;
    }
    return end - y >= shortestHighlight && text ? end : y;
}

}  // namespace

std::vector<RowBand> FindRowBands(PixelGrid const& grid) {
    std::vector<RowBand> bands;
    if (grid.width <= 0 || grid.height <= 0) return bands;
    uint32_t const background = MostFrequent(grid.pixels);
    std::vector<LineInk> lines(grid.height);
    for (int y = 0; y < grid.height; ++y) {
        LineInk& line = lines[y];
        for (int x = 0; x < grid.width; ++x) {
            if (grid.At(x, y) == background) continue;
            if (line.count++ == 0) line.left = x;
            line.right = x + 1;
        }
    }

    int y = 0;
    while (y < grid.height) {
        if (lines[y].Blank()) {
            ++y;
            continue;
        }
        RowBand band;
        band.top = y;
        band.left = lines[y].left;
        band.right = lines[y].right;
        int highlightEnd = HighlightEnd(lines, y);
        if (highlightEnd > y) {
            band.inverted = true;
            y = highlightEnd;
        } else {
            // Text runs to a blank line or to the start of a highlight; a solid line that
            // starts none, such as the bar of a T, is text.
            while (y < grid.height && !lines[y].Blank() &&
                   (y == band.top || HighlightEnd(lines, y) == y)) {
                band.left = std::min(band.left, lines[y].left);
                band.right = std::max(band.right, lines[y].right);
                ++y;
            }
        }
        band.bottom = y;
        bands.push_back(band);
    }
    return bands;
}

std::vector<int> NumberBands(std::vector<RowBand> const& bands, int scrolledBy, int gridHeight) {
    std::vector<int> numbers;
    if (scrolledBy == 0) {
        for (size_t i = 0; i < bands.size(); ++i) numbers.push_back(static_cast<int>(i));
        return numbers;
    }
    // Bands cut by the grid's edges say nothing of where their row starts.
    auto cut = [gridHeight](RowBand const& band) {
        return band.top == 0 || band.bottom == gridHeight;
    };
    // A highlight fills its row's whole height; text bands start at the same height within
    // their rows, so the distance between two of them is a whole number of rows.
    int pitch = 0;
    std::vector<int> steps;
    RowBand const* previous = nullptr;
    for (RowBand const& band : bands) {
        if (cut(band)) continue;
        if (band.inverted) {
            pitch = band.bottom - band.top;
            break;
        }
        if (previous) steps.push_back(band.top - previous->top);
        previous = &band;
    }
    if (pitch == 0 && !steps.empty()) {
        std::sort(steps.begin(), steps.end());
        pitch = steps[steps.size() / 2];
    }
    if (pitch <= 0) return numbers;
    for (RowBand const& band : bands)
        numbers.push_back(cut(band) ? -1 : (band.top + scrolledBy) / pitch);
    return numbers;
}
