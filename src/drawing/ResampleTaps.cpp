// SPDX-License-Identifier: GPL-3.0-or-later
/// Shares as fixed-point numbers, and rows with room at their ends.
#include "drawing/ResampleRows.h"
#include <algorithm>
#include <cmath>
#include <cstring>

namespace zp::resampling
{

Taps TapsBuilder::build() const
{
    std::size_t most = 1;
    for (const Place& place : mPlaces) most = std::max(most, place.shares.size());
    Taps taps;
    taps.perPlace = int(most + kTapGroup - 1) / kTapGroup * kTapGroup;
    taps.first.reserve(mPlaces.size());
    taps.count.reserve(mPlaces.size());
    taps.shares.reserve(mPlaces.size() * std::size_t(taps.perPlace));
    for (const Place& place : mPlaces) {
        taps.first.push_back(place.first);
        taps.count.push_back(int(place.shares.size()));
        double reached = 0;
        int before = 0;
        for (const double share : place.shares) {
            reached += share;
            const int now = int(std::lround(reached * kShareOne));
            taps.shares.push_back(std::int16_t(now - before));
            before = now;
        }
        taps.shares.resize(taps.first.size() * std::size_t(taps.perPlace), 0);
    }
    // Shares are loaded eight at a time.
    taps.shares.resize(taps.shares.size() + 8, 0);
    return taps;
}

void PaddedRow::repeatEnds()
{
    Wide* begin = samples();
    Wide* end = begin + std::ptrdiff_t{4} * mPixels;
    for (int i = 0; i < kPadding; ++i) {
        std::memcpy(begin - 4 * (i + 1), begin, 4 * sizeof(Wide));
        std::memcpy(end + 4 * i, end - 4, 4 * sizeof(Wide));
    }
}

} // namespace zp::resampling
