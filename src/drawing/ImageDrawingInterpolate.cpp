// SPDX-License-Identifier: GPL-3.0-or-later
/// Catmull-Rom interpolation in 16-bit fixed point: four rows of four pixels make one.
#include "drawing/ImageDrawingSampler.h"
#include <algorithm>
#include <array>
#include <cmath>

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "drawing/ImageDrawingInterpolate.cpp"
#include <hwy/foreach_target.h>
#include <hwy/highway.h>

#include "base/PixelVectors-inl.h"

#ifndef ZP_IMAGE_DRAWING_INTERPOLATE_ONCE
#define ZP_IMAGE_DRAWING_INTERPOLATE_ONCE
namespace zp::interpolation
{

constexpr int kPhases = 256;
/// Samples carry six bits below the point: with the curve's overshoot they just fit 16 bits.
constexpr int kSampleBits = 6;

/// Weights of four neighbours in 2^-15 for each of 256 positions between the middle two; they add up to one, but for
/// the one that cannot be held in 16 bits, which rounding makes good.
struct Weights {
    alignas(64) std::int16_t each[kPhases][4];
    alignas(64) std::int16_t spread[kPhases][16]; ///< each weight four times, once a channel

    Weights()
    {
        for (int phase = 0; phase < kPhases; ++phase) {
            const double t = double(phase) / kPhases;
            const double w[4] = {((-0.5 * t + 1) * t - 0.5) * t, (1.5 * t - 2.5) * t * t + 1,
                                 ((-1.5 * t + 2) * t + 0.5) * t, (0.5 * t - 0.5) * t * t};
            int rest = 32768;
            for (int k = 0; k < 4; ++k)
                rest -= each[phase][k] = std::int16_t(std::min(32767L, std::lround(w[k] * 32768)));
            std::int16_t& largest = each[phase][phase < kPhases / 2 ? 1 : 2];
            largest = std::int16_t(std::min(32767, largest + rest));
            for (int k = 0; k < 16; ++k) spread[phase][k] = each[phase][k / 4];
        }
    }
};

/// The pixel at or before a place, and how far behind it the place lies.
struct Position {
    int column, row, phaseX, phaseY;
};
inline Position positionAt(const SampleLine& line, std::int64_t k)
{
    // To the nearest of the 256 phases.
    const std::int64_t half = std::int64_t{1} << 23;
    const std::int64_t x = line.x + k * line.dx + half, y = line.y + k * line.dy + half;
    return {int(x >> 32), int(y >> 32), int((x >> 24) & 255), int((y >> 24) & 255)};
}

} // namespace zp::interpolation
#endif

HWY_BEFORE_NAMESPACE();
namespace zp::HWY_NAMESPACE
{
namespace
{

using namespace interpolation;
using Four = hn::CappedTag<std::int16_t, 16>; ///< the samples of four pixels, or of two where vectors are short
using Two = hn::FixedTag<std::int16_t, 8>;

/// Four rows from @p at on, weighed and summed, then weighed across: each pixel of the four its share of the result.
HWY_INLINE hn::Vec<Four> weighedColumns(const std::uint8_t* at, std::ptrdiff_t rowBytes, const std::int16_t* down,
                                        const std::int16_t* across)
{
    const Four d;
    const hn::Rebind<std::uint8_t, Four> bytes;
    auto columns = hn::Zero(d);
    for (int r = 0; r < 4; ++r) {
        const auto row = hn::ShiftLeft<kSampleBits>(hn::PromoteTo(d, hn::LoadU(bytes, at + r * rowBytes)));
        columns = hn::Add(columns, hn::MulFixedPoint15(row, hn::Set(d, down[r])));
    }
    return hn::MulFixedPoint15(columns, hn::Load(d, across));
}

/// The result at a position as two pixels' worth of samples whose sum it is.
HWY_INLINE hn::Vec<Two> twoParts(ConstBitmapView image, const SampleLine& line, std::int64_t k, const Weights& w)
{
    const Position p = positionAt(line, k);
    const std::uint8_t* const at = image.pixel(p.column - 1, p.row - 1);
    const std::int16_t* const down = w.each[p.phaseY];
    const std::int16_t* const across = w.spread[p.phaseX];
#if HWY_MAX_BYTES >= 32
    const auto four = weighedColumns(at, image.rowBytes, down, across);
    return hn::Add(hn::LowerHalf(Two(), four), hn::UpperHalf(Two(), four));
#else
    return hn::Add(weighedColumns(at, image.rowBytes, down, across),
                   weighedColumns(at + 8, image.rowBytes, down, across + 8));
#endif
}

/// Two results, rounded to whole levels.
HWY_INLINE hn::Vec<Two> twoPixels(ConstBitmapView image, const SampleLine& line, std::int64_t k, std::int64_t next,
                                  const Weights& w)
{
    const Two d;
    const hn::Repartition<std::uint64_t, Two> pixels;
    const auto a = hn::BitCast(pixels, twoParts(image, line, k, w));
    const auto b = hn::BitCast(pixels, twoParts(image, line, next, w));
    const auto sum =
        hn::Add(hn::BitCast(d, hn::InterleaveLower(pixels, a, b)), hn::BitCast(d, hn::InterleaveUpper(pixels, a, b)));
    return hn::ShiftRight<kSampleBits>(hn::Add(sum, hn::Set(d, 1 << (kSampleBits - 1))));
}

/// Positions [first, last) of the line, all of whose four by four pixels exist.
void interpolateInside(ConstBitmapView image, const SampleLine& line, const Weights& w, std::uint32_t* out,
                       std::int64_t first, std::int64_t last)
{
    const hn::FixedTag<std::uint32_t, 4> d;
    const hn::FixedTag<std::uint8_t, 8> half;
    const hn::FixedTag<std::uint8_t, 16> bytes;
    const auto four = [&](std::int64_t a, std::int64_t b, std::int64_t c, std::int64_t e) ZP_LANES {
        const auto low = hn::DemoteTo(half, twoPixels(image, line, a, b, w));
        const auto high = hn::DemoteTo(half, twoPixels(image, line, c, e, w));
        return withColourAtMostAlpha(d, hn::BitCast(d, hn::Combine(bytes, high, low)));
    };
    std::int64_t k = first;
    for (; k + 4 <= last; k += 4) hn::StoreU(four(k, k + 1, k + 2, k + 3), d, out + k);
    if (k >= last) return;
    HWY_ALIGN std::uint32_t rest[4];
    hn::Store(four(k, std::min(k + 1, last - 1), std::min(k + 2, last - 1), k), d, rest);
    std::copy_n(rest, last - k, out + k);
}

} // namespace
} // namespace zp::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace zp
{

HWY_EXPORT(interpolateInside);

namespace
{

using namespace interpolation;

const Weights& weights()
{
    static const Weights table;
    return table;
}

void interpolateInside(ConstBitmapView image, const SampleLine& line, std::uint32_t* out, std::int64_t first,
                       std::int64_t last)
{
    HWY_DYNAMIC_DISPATCH(interpolateInside)(image, line, weights(), out, first, last);
}

/// Near and beyond the border: the four by four pixels are gathered first, each from the nearest that exists.
void interpolateAtBorder(ConstBitmapView image, PixelBox part, const SampleLine& line, std::int64_t k,
                         std::uint32_t* out)
{
    const Position p = positionAt(line, k);
    std::uint32_t gathered[4][4];
    for (int row = 0; row < 4; ++row) {
        const std::uint32_t* const in = image.row(std::clamp(p.row - 1 + row, part.y0, part.y1 - 1));
        for (int column = 0; column < 4; ++column)
            gathered[row][column] = in[std::clamp(p.column - 1 + column, part.x0, part.x1 - 1)];
    }
    const ConstBitmapView around{reinterpret_cast<const std::uint8_t*>(gathered), 4, 4, sizeof gathered[0]};
    const auto within = [](int phase) { return (std::int64_t{1} << 32) + (std::int64_t{phase} << 24); };
    interpolateInside(around, {within(p.phaseX), within(p.phaseY), 0, 0}, out + k, 0, 1);
}

/// Narrows [first, last) to the k for which low <= start + k * step < high.
void narrow(std::int64_t start, std::int64_t step, std::int64_t low, std::int64_t high, std::int64_t& first,
            std::int64_t& last)
{
    if (step == 0) {
        if (start < low || start >= high) last = first;
        return;
    }
    if (step < 0) {
        // -high < -start + k * -step <= -low
        narrow(-start, -step, 1 - high, 1 - low, first, last);
        return;
    }
    const auto ceilDiv = [](std::int64_t a, std::int64_t b) { return a >= 0 ? (a + b - 1) / b : -((-a) / b); };
    first = std::max(first, ceilDiv(low - start, step));
    last = std::min(last, ceilDiv(high - start, step));
    if (last < first) last = first;
}

} // namespace

void interpolateLine(ConstBitmapView image, PixelBox part, SampleLine line, std::uint32_t* out, int count)
{
    // Where all four by four pixels exist, they are read straight from the rows.
    std::int64_t first = 0, last = count;
    const std::int64_t half = std::int64_t{1} << 23;
    const auto position = [](int v) { return std::int64_t{v} * (std::int64_t{1} << 32); };
    // Short lines lie inside as a whole, mostly: both ends tell.
    const auto isInside = [&](std::int64_t k) {
        const std::int64_t x = line.x + k * line.dx + half, y = line.y + k * line.dy + half;
        return x >= position(part.x0 + 1) && x < position(part.x1 - 2) && y >= position(part.y0 + 1) &&
               y < position(part.y1 - 2);
    };
    if (count > 0 && isInside(0) && isInside(count - 1)) return interpolateInside(image, line, out, 0, count);
    narrow(line.x + half, line.dx, position(part.x0 + 1), position(part.x1 - 2), first, last);
    narrow(line.y + half, line.dy, position(part.y0 + 1), position(part.y1 - 2), first, last);
    first = std::min<std::int64_t>(first, count);
    last = std::clamp<std::int64_t>(last, first, count);
    for (std::int64_t k = 0; k < first; ++k) interpolateAtBorder(image, part, line, k, out);
    interpolateInside(image, line, out, first, last);
    for (std::int64_t k = last; k < count; ++k) interpolateAtBorder(image, part, line, k, out);
}

} // namespace zp
#endif
