// SPDX-License-Identifier: GPL-3.0-or-later
/// Gaussian blur and unsharp mask: columns of a few hundred pixels run down the picture with their last rows in cache.
#include "drawing/FiltersBlur.h"
#include "base/WorkPool.h"
#include "drawing/FiltersRing.h"
#include <algorithm>
#include <cmath>
#include <cstring>
#include <vector>

namespace zp::filters
{

namespace
{

/// Pixels across a strip: with the rows a kernel of usual width needs, its samples fit the second cache with room to
/// spare, and the pixels computed twice at its sides are few.
constexpr int kStrip = 256;

void blurStrip(ConstBitmapView source, BitmapView destination, const BlurJob& job, const BlurWeights& weights,
               PixelBox box, bool stream)
{
    const int radius = weights.radius(), taps = 2 * radius + 1, width = blocks(box.width());
    const int last = source.height - 1;
    // The unsharp mask meets a row again when the rows below it have passed.
    Ring fetched(job.sharpen ? radius + 1 : 1, width + 2 * radius), blurred(taps, width);
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
        if (job.sharpen)
            sharpenAcross(rows.data(), fetched.row(y) + std::ptrdiff_t{4} * radius, out, box.width(), weights,
                          job.amount, stream);
        else
            blurAcrossToPixels(rows.data(), out, box.width(), weights, stream);
    }
}

} // namespace

void fetchRow(ConstBitmapView source, int y, int x0, int x1, const BlurJob& job, Wide* out)
{
    const int in0 = std::clamp(x0, 0, source.width - 1), in1 = std::clamp(x1, in0 + 1, source.width);
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

BlurWeights gaussianWeights(double sigma)
{
    sigma = std::min(sigma, kWidestSigma);
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

int blurReach(double sigma) { return int(std::ceil(5 * std::min(sigma, kWidestSigma))) + 2; }

void blurPart(ConstBitmapView source, BitmapView destination, const BlurJob& job, PixelBox part)
{
    if (job.sigma > kWidestDirect && !job.sharpen) return wideBlurPart(source, destination, job, part);
    const BlurWeights weights = gaussianWeights(job.sigma);
    const int radius = weights.radius();
    // Bands share the machine's cores; the rows above each band are computed twice, so a band is many times their
    // number.
    parallelBands(part.height(), std::max(64, 8 * radius), [&](int from, int to) {
        const int strip = std::max(kStrip, blocks(8 * radius));
        for (int x = part.x0; x < part.x1; x += strip)
            blurStrip(source, destination, job, weights,
                      {x, part.y0 + from, std::min(part.x1, x + strip), part.y0 + to}, false);
    });
}

} // namespace zp::filters
