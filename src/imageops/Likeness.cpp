// SPDX-License-Identifier: GPL-3.0-or-later
/// Sums over cells of 4 × 4 pixels, four of which are a window.
#include "imageops/Likeness.h"
#include "base/WorkPool.h"
#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <vector>

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "imageops/Likeness.cpp"
#include <hwy/foreach_target.h>
#include <hwy/highway.h>

#include "base/PixelVectors-inl.h"

HWY_BEFORE_NAMESPACE();
namespace zp::HWY_NAMESPACE
{
namespace
{

/// Of pixels over white, 0 to 255.
template <class D>
HWY_INLINE hn::Vec<D> brightness(D d, const std::uint32_t* pixels)
{
    const auto p = hn::LoadU(d, pixels);
    const auto byte = hn::Set(d, 255);
    const auto red = hn::And(hn::ShiftRight<8>(p), byte), green = hn::And(hn::ShiftRight<16>(p), byte);
    const auto blue = hn::ShiftRight<24>(p), gap = hn::Sub(byte, hn::And(p, byte));
    // The television weights in parts of 256; what lies behind is white.
    const auto sum = hn::Add(hn::Add(hn::Mul(red, hn::Set(d, 77)), hn::Mul(green, hn::Set(d, 150))),
                             hn::Add(hn::Mul(blue, hn::Set(d, 29)), hn::Set(d, 128)));
    return hn::Add(hn::ShiftRight<8>(sum), gap);
}

/// Adds a row's brightness, squares and products to the sums of its columns: four lots of @p width numbers.
void addMoments(const std::uint32_t* first, const std::uint32_t* second, std::uint32_t* sums, int width)
{
    std::uint32_t *const x = sums, *const y = x + width, *const squares = y + width, *const products = squares + width;
    forEachVector<std::uint32_t>(std::size_t(width), [=](auto d, std::size_t at) ZP_LANES {
        const auto a = brightness(d, first + at), b = brightness(d, second + at);
        const auto add = [&](std::uint32_t* to, auto v)
                             HWY_ATTR { hn::StoreU(hn::Add(hn::LoadU(d, to + at), v), d, to + at); };
        add(x, a);
        add(y, b);
        add(squares, hn::Add(hn::Mul(a, a), hn::Mul(b, b)));
        add(products, hn::Mul(a, b));
    });
}

} // namespace
} // namespace zp::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace zp
{

HWY_EXPORT(addMoments);

namespace
{

constexpr int kCell = 4, kWindowCells = 2, kRegionCells = 16;

/// The sums of a cell, and by addition those of a window.
struct Moments {
    std::uint32_t x = 0, y = 0, squares = 0, products = 0;
    Moments operator+(const Moments& other) const
    {
        return {x + other.x, y + other.y, squares + other.squares, products + other.products};
    }
};

double similarity(const Moments& m)
{
    constexpr double kPixels = kCell * kCell * kWindowCells * kWindowCells;
    // The measure's own constants: (0.01 · 255)² and (0.03 · 255)² keep flat windows from dividing nothing by nothing.
    constexpr double kMean = 6.5025, kSpread = 58.5225;
    const double x = m.x / kPixels, y = m.y / kPixels;
    const double spreads = m.squares / kPixels - x * x - y * y, together = m.products / kPixels - x * y;
    return (2 * x * y + kMean) * (2 * together + kSpread) / ((x * x + y * y + kMean) * (spreads + kSpread));
}

/// The cells of four rows.
void measureCells(ConstBitmapView first, ConstBitmapView second, int row, std::vector<std::uint32_t>& columns,
                  std::vector<Moments>& cells)
{
    const int width = int(cells.size()) * kCell;
    std::fill(columns.begin(), columns.end(), 0u);
    for (int y = row; y < row + kCell; ++y) HWY_DYNAMIC_DISPATCH(addMoments)
    (reinterpret_cast<const std::uint32_t*>(first.rowData(y)),
     reinterpret_cast<const std::uint32_t*>(second.rowData(y)), columns.data(), width);
    const std::uint32_t* const sums = columns.data();
    for (std::size_t c = 0; c < cells.size(); ++c) {
        std::array<std::uint32_t, 4> total{};
        for (std::size_t part = 0; part < total.size(); ++part)
            for (std::size_t i = 0; i < kCell; ++i) total[part] += sums[part * std::size_t(width) + c * kCell + i];
        cells[c] = {total[0], total[1], total[2], total[3]};
    }
}

/// Of windows whose first row of cells lies in one row of regions.
struct Share {
    double sum = 0, worst = 1;
};

Share shareOf(ConstBitmapView first, ConstBitmapView second, int from, int to)
{
    const auto across = std::size_t(first.width / kCell), windows = across - 1;
    const std::size_t regions = (windows + kRegionCells - 1) / kRegionCells;
    std::vector<std::uint32_t> columns(4 * across * kCell);
    std::vector<Moments> above(across), below(across);
    std::vector<double> sums(regions);
    measureCells(first, second, from * kCell, columns, above);
    for (int row = from; row < to; ++row, std::swap(above, below)) {
        measureCells(first, second, (row + 1) * kCell, columns, below);
        for (std::size_t w = 0; w < windows; ++w)
            sums[w / kRegionCells] += similarity((above[w] + above[w + 1]) + (below[w] + below[w + 1]));
    }
    Share share;
    for (std::size_t r = 0; r < regions; ++r) {
        share.sum += sums[r];
        const std::size_t there = std::min<std::size_t>(kRegionCells, windows - r * kRegionCells);
        share.worst = std::min(share.worst, sums[r] / (double(there) * (to - from)));
    }
    return share;
}

/// For pictures in which no window has room.
Likeness ofSpecks(ConstBitmapView first, ConstBitmapView second)
{
    int most = 0;
    for (int y = 0; y < first.height; ++y)
        for (int i = 0; i < 4 * first.width; ++i)
            most = std::max(most, std::abs(first.rowData(y)[i] - second.rowData(y)[i]));
    return {1 - most / 255.0, 1 - most / 255.0};
}

} // namespace

Likeness likenessOf(ConstBitmapView first, ConstBitmapView second)
{
    const int across = first.width / kCell - 1, down = first.height / kCell - 1;
    if (across < 1 || down < 1) return ofSpecks(first, second);
    std::vector<Share> shares(std::size_t((down + kRegionCells - 1) / kRegionCells));
    parallelFor(int(shares.size()), [&](int i) {
        shares[std::size_t(i)] = shareOf(first, second, i * kRegionCells, std::min(down, (i + 1) * kRegionCells));
    });
    Likeness likeness{0, 1};
    for (const Share& share : shares) {
        likeness.mean += share.sum / (double(across) * down);
        likeness.worst = std::min(likeness.worst, share.worst);
    }
    return likeness;
}

} // namespace zp
#endif
