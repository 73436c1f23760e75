// SPDX-License-Identifier: GPL-3.0-or-later
/// Row passes of the resampler in 16-bit fixed point; the same result on every processor.
#pragma once
#include "base/BitmapView.h"
#include <cstdint>
#include <utility>
#include <vector>

namespace zp::resampling
{

/// A sample of a wide row: A, R, G, B of each pixel as 16-bit numbers with some bits after the point.
using Wide = std::int16_t;
/// Bits after the point in a source sample made wide, and after the first of the two passes. Each pass halves a
/// sample's scale, because a share of one must fit a signed word; cubics overshoot, so the room above 255 is needed.
inline constexpr int kSourceBits = 7, kFirstBits = 6;
/// A share of one.
inline constexpr int kShareOne = 16384;
/// Shares come in groups of this many: what one vector takes at once.
inline constexpr int kTapGroup = 4;
/// Up to this many shares to a place are summed as rounded products; more of them would add up their roundings to half
/// a level, and are summed exactly.
inline constexpr int kMostRounded = 16;
/// Pixels repeated before and behind a row: a cubic's reach, and what shares of zero may read.
inline constexpr int kPadding = kMostRounded + 4;

/// For each destination position: the first source position (it may lie outside), how many count, and their shares.
struct Taps {
    std::vector<int> first, count;
    std::vector<std::int16_t> shares; ///< perPlace of them a place, zeros behind those that count
    int perPlace = 0;
};

/// Collects the shares of one place after the other.
class TapsBuilder
{
public:
    /// @param shares what each source position from @p first on counts; they are one together
    void add(int first, std::vector<double> shares) { mPlaces.push_back({first, std::move(shares)}); }
    /// Shares as differences of their rounded running sum, so that they are exactly one together.
    Taps build() const;

private:
    struct Place {
        int first;
        std::vector<double> shares;
    };
    std::vector<Place> mPlaces;
};

/// A wide row with room before and behind, where its ends are repeated for kernels that reach beyond them.
class PaddedRow
{
public:
    explicit PaddedRow(int pixels) : mPixels(pixels), mSamples(std::size_t(pixels + 2 * kPadding) * 4 + 64) {}
    Wide* samples() { return mSamples.data() + 4 * kPadding; }
    void repeatEnds();

private:
    int mPixels;
    std::vector<Wide> mSamples;
};

/// Source pixels as wide samples with kSourceBits.
void widenRow(const std::uint32_t* pixels, Wide* out, int count);
/// The weighted sum of source rows for one destination row, with kFirstBits. @param longSums scratch
void sumRows(ConstBitmapView source, const Taps& rows, std::size_t place, Wide* out,
             std::vector<std::uint32_t>& longSums);
/// Weighted sums along a row, one bit less after the point than the row. @param row pixel 0; padded on both sides
void sumAlong(const Wide* row, const Taps& columns, Wide* out);
/// Weighted sum of four rows, one bit less after the point than theirs.
void sumFourRows(const Wide* const* rows, const std::int16_t* shares, Wide* out, int count);
/// To pixels, rounded, colour clamped to alpha.
void finishRow(const Wide* row, std::uint32_t* pixels, int count, int bits);

} // namespace zp::resampling
