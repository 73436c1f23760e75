// SPDX-License-Identifier: GPL-3.0-or-later
/// Gaussian blur and unsharp mask: strips run down the picture with their last rows in cache.
#include "drawing/FiltersBlur.h"
#include "base/CpuHints.h"
#include "base/WorkPool.h"
#include "drawing/FiltersRing.h"
#include "drawing/FiltersScaling.h"
#include <algorithm>
#include <cmath>
#include <cstring>
#include <vector>

namespace zp::filters
{

namespace
{

/// Bytes that a strip's last rows may take: they stay in the second cache beside what comes and goes. Narrower strips,
/// for the first cache's sake, were slower: memory likes long rows.
constexpr int kNearBytes = 256 << 10;
/// A part of this many bytes does not stay in the cache: stores that go past it save reading the lines first.
constexpr std::int64_t kStreamFrom = std::int64_t{8} << 20;
/// Rows by which memory is announced: a strip's next row is far away, and nothing else would fetch it in time.
constexpr int kRowsAhead = 4;

/// Pixels across a strip that keeps so many rows of the picture.
int stripWidth(int rows)
{
    return std::clamp(kNearBytes / (rows * 4 * int(sizeof(Wide))) / kBlock * kBlock, 4 * kBlock, 64 * kBlock);
}

void blurStrip(ConstBitmapView source, BitmapView destination, const BlurJob& job, const BlurWeights& weights,
               PixelBox box, bool stream)
{
    const int radius = weights.radius(), taps = 2 * radius + 1, width = blocks(box.width());
    const int last = source.height - 1;
    // The unsharp mask meets a row again when the rows below it have passed.
    Ring fetched(job.sharpen ? radius + 1 : 1, width + 2 * radius), blurred(taps, width), line(1, width);
    std::vector<const Wide*> rows(std::size_t(taps), nullptr);
    int next = std::max(0, box.y0 - radius);
    for (int y = box.y0; y < box.y1; ++y) {
        for (; next <= std::min(last, y + radius); ++next) {
            Wide* row = fetched.row(next);
            fetchRow(source, next, box.x0 - radius, box.x1 + radius, job, row);
            blurAlong(row + std::ptrdiff_t{4} * radius, blurred.row(next), box.width(), weights);
        }
        for (int k = -radius; k <= radius; ++k) rows[std::size_t(k + radius)] = blurred.row(std::clamp(y + k, 0, last));
        std::uint32_t* out = destination.row(y) + box.x0;
        if (job.sharpen) {
            blurAcross(rows.data(), line.row(0), box.width(), weights);
            const Wide* const middle = fetched.row(y) + std::ptrdiff_t{4} * radius;
            sharpenRow(line.row(0), middle, out, box.width(), job.amount, stream);
        } else {
            blurAcrossToPixels(rows.data(), out, box.width(), weights, stream);
        }
    }
}

} // namespace

void fetchRow(ConstBitmapView source, int y, int x0, int x1, const BlurJob& job, Wide* out)
{
    y = std::clamp(y, 0, source.height - 1);
    const int in0 = std::clamp(x0, 0, source.width - 1), in1 = std::clamp(x1, in0 + 1, source.width);
    const std::uint32_t* const ahead = source.row(std::min(y + kRowsAhead, source.height - 1));
    for (int x = in0; x < in1; x += 16) prefetch(ahead + x);
    prefetch(ahead + in1 - 1);
    const std::uint32_t* pixels = source.row(y) + in0;
    Wide* inside = out + std::ptrdiff_t{4} * (in0 - x0);
    if (job.colour)
        colourRowWide(pixels, inside, in1 - in0, job.matrix);
    else
        widenRow(pixels, inside, in1 - in0);
    for (Wide* p = inside - 4; p >= out; p -= 4) std::memcpy(p, inside, 4 * sizeof(Wide));
    const Wide* last = inside + std::ptrdiff_t{4} * (in1 - in0 - 1);
    for (Wide* p = inside + std::ptrdiff_t{4} * (in1 - in0); p < out + std::ptrdiff_t{4} * (x1 - x0); p += 4)
        std::memcpy(p, last, 4 * sizeof(Wide));
}

BlurPlan planBlur(double sigma)
{
    BlurPlan plan{0, std::min(sigma, kWidestSigma)};
    while (true) {
        // Halving and doubling add the filter's variance once each.
        const double left = (plan.sigma * plan.sigma - 2 * kHalvingVariance) / 4;
        if (left < kFinestHalved * kFinestHalved) return plan;
        plan = {plan.levels + 1, std::sqrt(left)};
    }
}

BlurWeights gaussianWeights(double sigma)
{
    // Three sigmas hold all but a quarter of a per cent, which the normalisation gives back.
    const int radius = std::max(0, int(std::ceil(3 * sigma)));
    std::vector<double> share;
    double sum = 1;
    for (int k = 1; k <= radius; ++k) {
        share.push_back(std::exp(-0.5 * (k / sigma) * (k / sigma)));
        sum += 2 * share.back();
    }
    BlurWeights weights;
    // Rounding the running sum instead of each share keeps the whole exact.
    double reached = 0;
    long before = 0;
    for (const double s : share) {
        reached += s / sum;
        const long now = std::lround(reached * 32768);
        weights.side.push_back(std::int16_t(now - before));
        before = now;
    }
    while (!weights.side.empty() && weights.side.back() == 0) weights.side.pop_back();
    // A sample is in 1/32768 of itself; the two sides take twice their shares from the middle.
    weights.taken = std::int16_t(std::min(32767L, 2 * before));
    return weights;
}

int blurReach(double sigma)
{
    const BlurPlan plan = planBlur(sigma);
    const int radius = gaussianWeights(plan.sigma).radius();
    // Each halving and each doubling looks at most so far in pixels of its own size, which double from level to level.
    return plan.levels == 0 ? radius : (radius + 2 * kHalvingReach + 1) << plan.levels;
}

void blurPart(ConstBitmapView source, BitmapView destination, const BlurJob& job, PixelBox part)
{
    const BlurPlan plan = planBlur(job.sigma);
    const BlurWeights weights = gaussianWeights(plan.sigma);
    const int radius = weights.radius();
    const bool aligned = reinterpret_cast<std::uintptr_t>(destination.row(part.y0) + part.x0) % 64 == 0;
    const bool stream = aligned && std::int64_t{4} * part.width() * part.height() >= kStreamFrom;
    const int strip = plan.levels == 0 ? stripWidth(2 * radius + 1) : stripWidth(2 * radius + 1) << plan.levels;
    // Bands share the machine's cores; the rows above each band are computed twice, so a band is many times their
    // number.
    parallelBands(part.height(), std::max(64, (8 * radius) << plan.levels), [&](int from, int to) {
        for (int x = part.x0; x < part.x1; x += strip) {
            const PixelBox box{x, part.y0 + from, std::min(part.x1, x + strip), part.y0 + to};
            if (plan.levels == 0)
                blurStrip(source, destination, job, weights, box, stream);
            else
                blurHalvedStrip(source, destination, job, weights, plan.levels, box, stream);
        }
        if (stream) finishStreaming();
    });
}

} // namespace zp::filters
