// SPDX-License-Identifier: GPL-3.0-or-later
/// Resampling one axis after the other, in 16-bit fixed point, a few rows at a time.
#include "canvas/Resample.h"
#include "canvas/ResampleRows.h"
#include "platform/WorkPool.h"
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

/// Shares of the source positions in each destination position [from, to) of an axis.
Taps makeTaps(int length, int wanted, int from, int to)
{
    struct Place {
        int first;
        std::vector<double> shares;
    };
    const double step = double(length) / wanted;
    std::vector<Place> places;
    std::size_t most = 1;
    for (int d = from; d < to; ++d) {
        Place place{d, {1.0}};
        if (wanted > length) {
            const double middle = (d + 0.5) * step - 0.5;
            place.first = int(std::floor(middle)) - 1;
            place.shares.clear();
            for (int k = 0; k < 4; ++k) place.shares.push_back(cubic(middle - (place.first + k)));
        } else if (wanted < length) {
            // Whole numbers over the wanted length: no rounding moves an edge into the next pixel.
            const std::int64_t begin = std::int64_t(d) * length, end = begin + length;
            place.first = int(begin / wanted);
            place.shares.clear();
            for (std::int64_t at = begin; at < end;) {
                const std::int64_t next = std::min(end, (at / wanted + 1) * wanted);
                place.shares.push_back(double(next - at) / length);
                at = next;
            }
        }
        most = std::max(most, place.shares.size());
        places.push_back(std::move(place));
    }
    Taps taps;
    taps.perPlace = int(most + kTapGroup - 1) / kTapGroup * kTapGroup;
    for (const Place& place : places) {
        taps.first.push_back(place.first);
        taps.count.push_back(int(place.shares.size()));
        // Differences of the rounded running sum: the shares are exactly one together.
        double reached = 0;
        int before = 0;
        for (int k = 0; k < taps.perPlace; ++k) {
            reached += k < int(place.shares.size()) ? place.shares[std::size_t(k)] : 0;
            const int now = int(std::lround(reached * kShareOne));
            taps.shares.push_back(std::int16_t(now - before));
            before = now;
        }
    }
    return taps;
}

/// A wide row with room before and behind, where its ends are repeated for kernels that reach beyond them.
class PaddedRow
{
public:
    explicit PaddedRow(int pixels) : mPixels(pixels), mSamples(std::size_t(pixels + 2 * kPadding) * 4 + 64) {}
    Wide* samples() { return mSamples.data() + 4 * kPadding; }
    void repeatEnds()
    {
        Wide* begin = samples();
        Wide* end = begin + std::ptrdiff_t{4} * mPixels;
        for (int i = 0; i < kPadding; ++i) {
            std::memcpy(begin - 4 * (i + 1), begin, 4 * sizeof(Wide));
            std::memcpy(end + 4 * i, end - 4, 4 * sizeof(Wide));
        }
    }

private:
    int mPixels;
    std::vector<Wide> mSamples;
};

/// Down the columns first: every source row is read once and what is left is narrow.
void shrinkRows(ConstBitmapView source, BitmapView destination, const Taps& columns, int from, int to)
{
    const Taps rows = makeTaps(source.height, destination.height, from, to);
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
void growRows(ConstBitmapView source, BitmapView destination, const Taps& columns, int from, int to)
{
    const Taps rows = makeTaps(source.height, destination.height, from, to);
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

void resample(ConstBitmapView source, BitmapView destination)
{
    if (source.isEmpty() || destination.isEmpty()) return;
    const bool sameWidth = source.width == destination.width, sameHeight = source.height == destination.height;
    const int grain = std::max(1, 200'000 / std::max(destination.width, source.width));
    if (sameWidth && sameHeight) {
        for (int y = 0; y < source.height; ++y)
            std::memcpy(destination.rowData(y), source.rowData(y), std::size_t(source.width) * 4);
        return;
    }
    const Taps columns = makeTaps(source.width, destination.width, 0, destination.width);
    parallelBands(destination.height, grain, [&](int from, int to) {
        if (destination.height > source.height)
            growRows(source, destination, columns, from, to);
        else
            shrinkRows(source, destination, columns, from, to);
    });
}

} // namespace zp
