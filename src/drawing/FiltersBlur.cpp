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

/// Pixels across a strip: whole rows of any ordinary picture, for memory likes long rows best, even where a strip's
/// last rows do not stay in the first cache. Those of a strip this wide stay in the second.
constexpr int kStrip = 8192;
/// A part of this many bytes does not stay in the cache: stores that go past it save reading the lines first.
constexpr std::int64_t kStreamFrom = std::int64_t{8} << 20;

/// Repeats the ends of a wide row over the places beside it.
void extendRow(Wide* row, int count, int before, int behind)
{
    for (int i = 1; i <= before; ++i) std::memcpy(row - std::ptrdiff_t{4} * i, row, 4 * sizeof(Wide));
    const Wide* const last = row + std::ptrdiff_t{4} * (count - 1);
    for (int i = 0; i < behind; ++i) std::memcpy(row + std::ptrdiff_t{4} * (count + i), last, 4 * sizeof(Wide));
}

/// A blur without halving, down the columns first: the pixels' own rows are what it needs of the rows above and below.
void blurStrip(ConstBitmapView source, BitmapView destination, const BlurJob& job, const BlurWeights& weights,
               PixelBox box, bool stream)
{
    const int radius = weights.radius(), taps = 2 * radius + 1, width = blocks(box.width() + 2 * radius) + kBlock;
    const int in0 = std::max(0, box.x0 - radius), in1 = std::min(source.width, box.x1 + radius);
    // Only pixels that change colour first are kept as wide rows.
    Ring coloured(job.colour ? taps : 1, width), line(2, width);
    std::vector<const Wide*> rows(std::size_t(taps), nullptr);
    std::vector<const std::uint32_t*> pixels(std::size_t(taps), nullptr);
    Wide* const down = line.row(0) + std::ptrdiff_t{4} * radius; // the strip's first pixel
    Wide* const inside = down + std::ptrdiff_t{4} * (in0 - box.x0);
    int next = std::max(0, box.y0 - radius);
    for (int y = box.y0; y < box.y1; ++y) {
        const auto rowAt = [&](int k) { return std::clamp(y + k - radius, 0, source.height - 1); };
        if (job.colour) {
            for (; next <= rowAt(2 * radius); ++next)
                colourRowWide(source.row(next) + in0, coloured.row(next), in1 - in0, job.matrix);
            for (int k = 0; k < taps; ++k) rows[std::size_t(k)] = coloured.row(rowAt(k));
            blurAcross(rows.data(), inside, in1 - in0, weights);
        } else {
            for (int k = 0; k < taps; ++k) pixels[std::size_t(k)] = source.row(rowAt(k)) + in0;
            blurPixelsAcross(pixels.data(), inside, in1 - in0, weights);
        }
        extendRow(inside, in1 - in0, in0 - (box.x0 - radius), box.x1 + radius - in1);
        std::uint32_t* const out = destination.row(y) + box.x0;
        if (!job.sharpen) {
            blurAlongToPixels(down, out, box.width(), weights, stream);
            continue;
        }
        Wide* const soft = line.row(1);
        blurAlong(down, soft, box.width(), weights);
        Wide* own = line.row(0);
        if (job.colour)
            own = coloured.row(y) + std::ptrdiff_t{4} * (box.x0 - in0);
        else
            widenRow(source.row(y) + box.x0, own, box.width());
        sharpenRow(soft, own, out, box.width(), job.amount, stream);
    }
}

} // namespace

void fetchRow(ConstBitmapView source, int y, int x0, int x1, const BlurJob& job, Wide* out)
{
    y = std::clamp(y, 0, source.height - 1);
    const int in0 = std::clamp(x0, 0, source.width - 1), in1 = std::clamp(x1, in0 + 1, source.width);
    const std::uint32_t* pixels = source.row(y) + in0;
    Wide* inside = out + std::ptrdiff_t{4} * (in0 - x0);
    if (job.colour)
        colourRowWide(pixels, inside, in1 - in0, job.matrix);
    else
        widenRow(pixels, inside, in1 - in0);
    extendRow(inside, in1 - in0, in0 - x0, x1 - in1);
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
    // Bands share the machine's cores; the rows above each band are computed twice, so a band is many times their
    // number.
    parallelBands(part.height(), std::max(64, (8 * radius) << plan.levels), [&](int from, int to) {
        for (int x = part.x0; x < part.x1; x += kStrip) {
            const PixelBox box{x, part.y0 + from, std::min(part.x1, x + kStrip), part.y0 + to};
            if (plan.levels == 0)
                blurStrip(source, destination, job, weights, box, stream);
            else
                blurHalvedStrip(source, destination, job, weights, plan.levels, box, stream);
        }
        if (stream) finishStreaming();
    });
}

} // namespace zp::filters
