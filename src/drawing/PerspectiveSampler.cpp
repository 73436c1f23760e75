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
constexpr double kCrisp = 0.25, kCrispSquared = 1.4142135623730951; // 2^(2 * 0.25)
/// How much the divisor may change along a run, in parts of itself, for what is reckoned at its beginning to hold.
constexpr double kStraight = 0.1;
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
    for (int x = x0; x < x1;) {
        std::uint32_t* const out = room.pixels.data() + (x - x0);
        const int run = runAt({x + 0.5, y + 0.5}, std::min(kLongestRun, x1 - x));
        if (run > 0)
            fill({x + 0.5, y + 0.5}, run, out, room.coarser.data());
        else
            *out = 0; // beyond the horizon
        x += std::max(1, run);
    }
    return room.pixels.data();
}

int PerspectiveSampler::runAt(CurvePoint first, int most) const
{
    // Along a row x' = (a x + c) / (g x + w): its second derivative is -2 g / w times its first, and the middle of a
    // run of n is off by an eighth of that times n squared.
    const auto& m = mFromTarget.m;
    const double w = mFromTarget.divisor(first);
    if (!(w > 0)) return 0;
    const CurvePoint from = mFromTarget.apply(first);
    const double slope = std::max(std::abs(m[0] - from.x * m[6]), std::abs(m[3] - from.y * m[6])) / w;
    const double bend = std::abs(m[6]) / w;
    if (!(bend * most < kStraight)) most = std::max(1, int(kStraight / bend));
    if (double(most) * most * bend * slope > 4 * kStray)
        most = std::max(1, int(std::sqrt(4 * kStray / (bend * slope))));
    return most;
}

void PerspectiveSampler::fill(CurvePoint first, int count, std::uint32_t* pixels, std::uint32_t* coarser) const
{
    const CurvePoint last{first.x + count - 1, first.y}, middle{(first.x + last.x) / 2, first.y};
    const CurvePoint from = within(mFromTarget.apply(first)), to = within(mFromTarget.apply(last));

    // How many image pixels a step along and a step down make, in the middle of the run; squared.
    const auto& m = mFromTarget.m;
    const double w = mFromTarget.divisor(middle);
    const CurvePoint between{(from.x + to.x) / 2, (from.y + to.y) / 2};
    const auto squared = [](double a, double b) { return a * a + b * b; };
    const double along = squared(m[0] - between.x * m[6], m[3] - between.y * m[6]);
    const double down = squared(m[1] - between.x * m[7], m[4] - between.y * m[7]);
    const double reduced = std::max(along, down) / (w * w);
    const double coarseness =
        reduced > kCrispSquared ? std::min(std::log2(reduced) / 2 - kCrisp, mLevels.count() - 1.0) : 0;
    const int level = int(coarseness), share = int((coarseness - level) * 256);

    const auto take = [&](int n, std::uint32_t* out) {
        const ConstBitmapView image = mLevels.level(n);
        const double scale = 1.0 / double(std::int64_t{1} << n), steps = std::max(1, count - 1);
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
