// SPDX-License-Identifier: GPL-3.0-or-later
/// Resampling one axis after the other, in 16-bit fixed point, a few rows at a time.
#include "drawing/Resample.h"
#include "base/WorkPool.h"
#include "drawing/Halving.h"
#include "drawing/ResampleRows.h"
#include <algorithm>
#include <cmath>
#include <cstring>
#include <vector>

namespace zp
{

namespace
{

using namespace resampling;

/// The cubic of Catmull and Rom at distance @p t: it passes through the pixels and does not blur.
double cubic(double t)
{
    t = std::abs(t);
    if (t < 1) return (1.5 * t - 2.5) * t * t + 1;
    if (t < 2) return ((-0.5 * t + 2.5) * t - 4) * t + 2;
    return 0;
}

/// An axis of the source.
struct Axis {
    int length;  ///< in its pixels
    int divisor; ///< of the file's pixels that one of them stands for
    int before;  ///< of those, how many stand before the picture
    int size;    ///< the picture, in the file's pixels
};
Axis columnsOf(ConstBitmapView source, const Reduction& r) { return {source.width, r.divisor, r.left, r.width}; }
Axis rowsOf(ConstBitmapView source, const Reduction& r) { return {source.height, r.divisor, r.top, r.height}; }

/// Shares of the source positions in each destination position [from, to) of an axis.
Taps makeTaps(const Axis& axis, int wanted, int from, int to)
{
    const int length = axis.length;
    const double step = double(length) / wanted;
    TapsBuilder taps;
    for (int d = from; d < to; ++d) {
        std::vector<double> shares;
        if (wanted == length) {
            taps.add(d, {1.0});
        } else if (wanted > length) {
            const double middle = (d + 0.5) * step - 0.5;
            const int first = int(std::floor(middle)) - 1;
            for (int k = 0; k < 4; ++k) shares.push_back(cubic(middle - (first + k)));
            taps.add(first, std::move(shares));
        } else {
            // Whole numbers over the wanted length: no rounding moves an edge into the next pixel.
            const std::int64_t pixel = std::int64_t(axis.divisor) * wanted;
            const std::int64_t begin = std::int64_t(axis.before) * wanted + std::int64_t(d) * axis.size;
            const std::int64_t end = begin + axis.size;
            for (std::int64_t at = begin; at < end;) {
                const std::int64_t next = std::min(end, (at / pixel + 1) * pixel);
                shares.push_back(double(next - at) / axis.size);
                at = next;
            }
            taps.add(int(begin / pixel), std::move(shares));
        }
    }
    return taps.build();
}

/// Down the columns first: every source row is read once and what is left is narrow.
void shrinkRows(ConstBitmapView source, const Axis& down, BitmapView destination, const Taps& columns, int from, int to)
{
    const Taps rows = makeTaps(down, destination.height, from, to);
    PaddedRow sums(source.width);
    std::vector<Wide> line(std::size_t(destination.width) * 4 + 64);
    std::vector<std::uint32_t> longSums;
    for (int y = from; y < to; ++y) {
        const std::size_t place = std::size_t(y - from);
        sumRows(source, rows, place, sums.samples(), longSums);
        sums.repeatEnds();
        sumAlong(sums.samples(), columns, line.data());
        finishRow(line.data(), destination.row(y), destination.width, kFirstBits - 1);
    }
}

/// Along the rows first: every source row is stretched once and kept for the rows that need it.
void growRows(ConstBitmapView source, const Axis& down, BitmapView destination, const Taps& columns, int from, int to)
{
    const Taps rows = makeTaps(down, destination.height, from, to);
    constexpr int kKept = 4;
    PaddedRow wide(source.width);
    std::vector<Wide> kept[kKept];
    int holds[kKept] = {-1, -1, -1, -1};
    for (auto& line : kept) line.resize(std::size_t(destination.width) * 4 + 64);
    std::vector<Wide> line(std::size_t(destination.width) * 4 + 64);
    for (int y = from; y < to; ++y) {
        const std::size_t place = std::size_t(y - from);
        const Wide* lines[kKept];
        for (int k = 0; k < kKept; ++k) {
            const int row = std::clamp(rows.first[place] + k, 0, source.height - 1);
            std::vector<Wide>& slot = kept[row % kKept];
            if (holds[row % kKept] != row) {
                holds[row % kKept] = row;
                widenRow(source.row(row), wide.samples(), source.width);
                wide.repeatEnds();
                sumAlong(wide.samples(), columns, slot.data());
            }
            lines[k] = slot.data();
        }
        sumFourRows(lines, &rows.shares[place * std::size_t(rows.perPlace)], line.data(), destination.width);
        finishRow(line.data(), destination.row(y), destination.width, kFirstBits - 1);
    }
}

} // namespace

void resample(ConstBitmapView source, BitmapView destination) { resample(source, {}, destination); }

void resample(ConstBitmapView source, const Reduction& reduction, BitmapView destination)
{
    if (source.isEmpty() || destination.isEmpty()) return;
    const Reduction of = reduction.divisor > 1 ? reduction : Reduction{.width = source.width, .height = source.height};
    const Axis along = columnsOf(source, of), down = rowsOf(source, of);
    const bool whole = along.size == along.divisor * along.length && down.size == down.divisor * down.length;
    const bool sameWidth = source.width == destination.width, sameHeight = source.height == destination.height;
    const int grain = std::max(1, 200'000 / std::max(destination.width, source.width));
    if (sameWidth && sameHeight) {
        for (int y = 0; y < source.height; ++y)
            std::memcpy(destination.rowData(y), source.rowData(y), std::size_t(source.width) * 4);
        return;
    }
    for (int level = 1; level <= kMostHalvings; ++level)
        if (whole && source.width == std::int64_t(destination.width) << level &&
            source.height == std::int64_t(destination.height) << level) {
            parallelBands(destination.height, grain, [&](int from, int to) {
                for (int y = from; y < to; ++y)
                    averageSquares(source, 0, y << level, destination.width, level, destination.row(y));
            });
            return;
        }
    const Taps columns = makeTaps(along, destination.width, 0, destination.width);
    parallelBands(destination.height, grain, [&](int from, int to) {
        if (destination.height > source.height)
            growRows(source, down, destination, columns, from, to);
        else
            shrinkRows(source, down, destination, columns, from, to);
    });
}

} // namespace zp
