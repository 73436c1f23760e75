// SPDX-License-Identifier: GPL-3.0-or-later
/// Perspective by short straight runs: each is interpolated as any turned image is.
#include "drawing/PerspectiveSampler.h"
#include "drawing/ImageDrawingSampler.h"
#include <algorithm>
#include <cmath>

namespace zp
{

namespace
{

/// Pixels of the longest run that is taken for straight and evenly spaced.
constexpr int kLongestRun = 64;
/// Image pixels by which a run's middle may be off its place: less cannot be told from nothing in 8 bits.
constexpr double kStray = 1.0 / 128;
/// Reductions by less than this (as a power of two) are left to interpolation alone: it keeps them crisp, and what it
/// skips cannot be told from grain.
constexpr double kCrisp = 0.25;
/// Far outside every image, yet safely a whole number of 2^-32 pixels.
constexpr double kFar = 1e8;

CurvePoint within(CurvePoint p) { return {std::clamp(p.x, -kFar, kFar), std::clamp(p.y, -kFar, kFar)}; }

std::int64_t fixed32(double v) { return std::llround(v * 4294967296.0); }

/// @p share of 256 parts of @p other into the pixels, two channels at a time.
void mix(std::uint32_t* pixels, const std::uint32_t* other, int count, std::uint32_t share)
{
    constexpr std::uint32_t kEven = 0x00FF00FF, kHalf = 0x00800080;
    const std::uint32_t rest = 256 - share;
    for (int i = 0; i < count; ++i) {
        const std::uint32_t a = pixels[i], b = other[i];
        const std::uint32_t low = ((a & kEven) * rest + (b & kEven) * share + kHalf) >> 8 & kEven;
        const std::uint32_t high = (((a >> 8) & kEven) * rest + ((b >> 8) & kEven) * share + kHalf) & ~kEven;
        pixels[i] = low | high;
    }
}

} // namespace

const std::uint32_t* PerspectiveSampler::generate(int y, int x0, int x1, Room& room) const
{
    const std::size_t count = std::size_t(std::max(0, x1 - x0));
    if (room.pixels.size() < count) room.pixels.resize(count);
    room.coarser.resize(kLongestRun);
    for (int x = x0; x < x1; x += kLongestRun)
        fill(y, x, std::min(kLongestRun, x1 - x), room.pixels.data() + (x - x0), room.coarser.data());
    return room.pixels.data();
}

void PerspectiveSampler::fill(int y, int x0, int count, std::uint32_t* pixels, std::uint32_t* coarser) const
{
    const CurvePoint first{x0 + 0.5, y + 0.5}, last{x0 + count - 0.5, y + 0.5};
    const auto halve = [&] {
        const int half = count / 2;
        fill(y, x0, half, pixels, coarser);
        fill(y, x0 + half, count - half, pixels + half, coarser);
    };
    if (!(mFromTarget.divisor(first) > 0 && mFromTarget.divisor(last) > 0)) {
        if (count > 1) return halve();
        *pixels = 0;
        return;
    }
    const CurvePoint from = within(mFromTarget.apply(first)), to = within(mFromTarget.apply(last));
    const CurvePoint middle{(first.x + last.x) / 2, first.y}, between = within(mFromTarget.apply(middle));
    const double stray = std::max(std::abs(between.x - (from.x + to.x) / 2), std::abs(between.y - (from.y + to.y) / 2));
    if (count > 1 && !(stray <= kStray)) return halve();

    // How many image pixels a step along and a step down make, in the middle of the run.
    const auto& m = mFromTarget.m;
    const double w = mFromTarget.divisor(middle);
    const double along = std::hypot(m[0] - between.x * m[6], m[3] - between.y * m[6]) / w;
    const double down = std::hypot(m[1] - between.x * m[7], m[4] - between.y * m[7]) / w;
    const double coarseness = std::clamp(std::log2(std::max({along, down, 1.0})) - kCrisp, 0.0, mLevels.count() - 1.0);
    const int level = int(coarseness), share = int((coarseness - level) * 256);

    const auto take = [&](int n, std::uint32_t* out) {
        const ConstBitmapView image = mLevels.level(n);
        const double scale = std::ldexp(1.0, -n), steps = std::max(1, count - 1);
        const SampleLine line{fixed32(from.x * scale - 0.5), fixed32(from.y * scale - 0.5),
                              fixed32((to.x - from.x) * scale / steps), fixed32((to.y - from.y) * scale / steps)};
        interpolateLine(image, image.box(), line, out, count);
    };
    take(level, pixels);
    if (share == 0) return;
    take(level + 1, coarser);
    mix(pixels, coarser, count, std::uint32_t(share));
}

} // namespace zp
