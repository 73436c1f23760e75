// SPDX-License-Identifier: GPL-3.0-or-later
/// The coarse waves of a picture's brightness.
#include "library/PictureLook.h"
#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <cstdlib>
#include <numbers>
#include <vector>

namespace zp
{

namespace
{

constexpr int kSide = 32;     // cells a side
constexpr int kWaves = 8;     // waves across and down, the mean among them
constexpr float kPaper = 128; // what stands behind transparent pictures everywhere in the program
/// Levels of 256: below it the waves are noise, and all such pictures would be alike.
constexpr double kPlainest = 2;
/// Of 63. docs/decisions.md has the figures: copies differ by less, other pictures by 16 and more.
constexpr int kMostDifferent = 10;
/// A copy may have lost a tenth of one side; a picture squeezed by more is another one.
constexpr int kMostShapeChange = 20;

using Cells = std::array<std::array<double, kSide>, kSide>;

/// The part of each cell that a pixel of a side of @p count covers: cell @p i reaches from i * count / kSide on.
template <class Add>
void forCellsOfPixel(int pixel, int count, const Add& add)
{
    const double scale = double(kSide) / count, begin = pixel * scale, end = begin + scale;
    for (int cell = int(begin); cell < kSide && cell < end; ++cell)
        add(cell, std::min(end, cell + 1.0) - std::max(begin, double(cell)));
}

Cells cellsOf(const ConstBitmapView& picture)
{
    struct Share {
        int pixel, cell;
        float part;
    };
    std::vector<Share> shares;
    for (int x = 0; x < picture.width; ++x)
        forCellsOfPixel(x, picture.width, [&](int cell, double part) { shares.push_back({x, cell, float(part)}); });
    Cells cells{};
    std::vector<float> row(std::size_t(picture.width));
    for (int y = 0; y < picture.height; ++y) {
        const std::uint8_t* p = picture.rowData(y);
        for (float& level : row) {
            level = 0.299f * p[1] + 0.587f * p[2] + 0.114f * p[3] + float(255 - p[0]) * (kPaper / 255);
            p += 4;
        }
        std::array<float, kSide> across{};
        for (const Share& share : shares) across[std::size_t(share.cell)] += row[std::size_t(share.pixel)] * share.part;
        forCellsOfPixel(y, picture.height, [&](int cell, double part) {
            for (std::size_t i = 0; i < kSide; ++i) cells[std::size_t(cell)][i] += across[i] * part;
        });
    }
    return cells;
}

/// Cosine transform of the coarsest waves: down by across.
std::array<double, kWaves * kWaves> wavesOf(const Cells& cells)
{
    std::array<std::array<double, kSide>, kWaves> cosine{};
    for (int u = 0; u < kWaves; ++u)
        for (int x = 0; x < kSide; ++x)
            cosine[std::size_t(u)][std::size_t(x)] = std::cos(std::numbers::pi * (2 * x + 1) * u / (2 * kSide));
    std::array<double, kWaves * kWaves> waves{};
    for (std::size_t y = 0; y < kSide; ++y)
        for (std::size_t u = 0; u < kWaves; ++u) {
            double across = 0;
            for (std::size_t x = 0; x < kSide; ++x) across += cells[y][x] * cosine[u][x];
            for (std::size_t v = 0; v < kWaves; ++v) waves[v * kWaves + u] += across * cosine[v][y];
        }
    return waves;
}

double deviationOf(const Cells& cells)
{
    double sum = 0, squares = 0;
    for (const auto& row : cells)
        for (const double level : row) sum += level, squares += level * level;
    constexpr double kCount = kSide * kSide;
    return std::sqrt(std::max(0.0, squares / kCount - sum / kCount * sum / kCount));
}

} // namespace

std::optional<PictureLook> lookOfPicture(const ConstBitmapView& picture)
{
    if (picture.isEmpty()) return std::nullopt;
    const Cells cells = cellsOf(picture);
    if (deviationOf(cells) < kPlainest) return std::nullopt;
    const auto waves = wavesOf(cells);
    auto sorted = waves;
    const auto median = sorted.begin() + (sorted.size() - 1) / 2 + 1; // the first one is the mean, which does not count
    std::nth_element(sorted.begin() + 1, median, sorted.end());
    PictureLook look;
    for (std::size_t i = 1; i < waves.size(); ++i)
        if (waves[i] > *median) look.waves |= std::uint64_t{1} << i;
    look.shape = int(std::lround(100 * std::log2(double(picture.width) / picture.height)));
    return look;
}

int lookDistance(const PictureLook& a, const PictureLook& b) { return std::popcount(a.waves ^ b.waves); }

bool looksTheSame(const PictureLook& a, const PictureLook& b)
{
    return lookDistance(a, b) <= kMostDifferent && std::abs(a.shape - b.shape) <= kMostShapeChange;
}

} // namespace zp
