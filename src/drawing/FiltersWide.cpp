// SPDX-License-Identifier: GPL-3.0-or-later
/// Wide Gaussian blurs: the picture is halved a few times, blurred there by a short kernel, and doubled again.
///
/// Variances add up: halving n times adds (4^n - 1) / 12 of a pixel's square, doubling n times (4^n - 1) / 4, and the
/// short kernel is given what is left of the wanted variance. All grids are counted from the picture's corner, so a
/// part comes out as in the whole.
#include "base/WorkPool.h"
#include "drawing/FiltersBlur.h"
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

/// Pixels of the reduced picture across a strip.
constexpr int kReducedStrip = 512;

inline int floorHalf(int v) { return v >> 1; }

/// One strip of the destination and the rows it keeps on every level.
class WideStrip
{
public:
    WideStrip(ConstBitmapView source, const BlurJob& job, const BlurWeights& weights, int levels, int x0, int x1)
        : mSource(source), mJob(job), mWeights(weights), mLevels(levels)
    {
        // Columns each level must give for the one above: a neighbour on either side.
        mUp.resize(std::size_t(levels) + 1);
        mUp[0].x0 = x0, mUp[0].x1 = x1;
        for (int l = 1; l <= levels; ++l) {
            mUp[std::size_t(l)].x0 = floorHalf(mUp[std::size_t(l) - 1].x0) - 1;
            mUp[std::size_t(l)].x1 = floorHalf(mUp[std::size_t(l) - 1].x1 - 1) + 2;
        }
        for (int l = 0; l <= levels; ++l) {
            Level& level = mUp[std::size_t(l)];
            // Doubling gives whole pairs: the rows of a doubled level start at an even column.
            level.base = l == levels ? level.x0 : 2 * (mUp[std::size_t(l) + 1].x0 + 1);
            const int end = l == levels ? level.x1 : 2 * (mUp[std::size_t(l) + 1].x1 - 1);
            level.rows = Ring(kKept, blocks(end - level.base));
            std::ranges::fill(level.holds, kNone);
            level.mixed.resize(std::size_t(blocks(end - level.base)) * 4 + 64);
        }
        // What the short kernel reads, and under it what halving reads.
        const int radius = weights.radius();
        mDown.resize(std::size_t(levels) + 1);
        mDown[std::size_t(levels)].x0 = mUp[std::size_t(levels)].x0 - radius;
        mDown[std::size_t(levels)].x1 =
            mUp[std::size_t(levels)].x0 + blocks(mUp[std::size_t(levels)].x1 - mUp[std::size_t(levels)].x0) + radius;
        for (int l = levels - 1; l >= 0; --l) {
            mDown[std::size_t(l)].x0 = 2 * mDown[std::size_t(l) + 1].x0;
            mDown[std::size_t(l)].x1 = 2 * mDown[std::size_t(l) + 1].x1;
        }
        for (Level& level : mDown) level.rows = Ring(2, level.x1 - level.x0);
        mBlurred = Ring(2 * radius + 1, blocks(mUp[std::size_t(levels)].x1 - mUp[std::size_t(levels)].x0));
        mTaps.resize(std::size_t(2 * radius) + 1);
    }

    void writeRow(int y, std::uint32_t* pixels)
    {
        const Level& level = mUp[0];
        narrowRow(upRow(0, y) + std::ptrdiff_t{4} * (level.x0 - level.base), pixels, level.x1 - level.x0);
    }

private:
    static constexpr int kKept = 4;
    static constexpr int kNone = -(1 << 30);
    struct Level {
        int x0 = 0, x1 = 0, base = 0;
        Ring rows{1, 1};
        int holds[kKept] = {};
        std::vector<Wide> mixed;
    };

    /// Row @p y of the picture halved @p l times, from column mDown[l].x0 on; valid until the next but one is asked
    /// for.
    const Wide* downRow(int l, int y)
    {
        Level& level = mDown[std::size_t(l)];
        Wide* out = level.rows.row(y & 1);
        if (l == 0) {
            fetchRow(mSource, std::clamp(y, 0, mSource.height - 1), level.x0, level.x1, mJob, out);
            return out;
        }
        const Wide* a = downRow(l - 1, 2 * y);
        const Wide* b = downRow(l - 1, 2 * y + 1);
        halveRows(a, b, out, level.x1 - level.x0);
        return out;
    }

    /// Row @p y of the reduced picture, blurred along; rows are asked for in order, none is computed twice.
    const Wide* alongRow(int y)
    {
        if (mNext == kNone) mNext = y;
        for (; mNext <= y; ++mNext) {
            const Wide* row = downRow(mLevels, mNext);
            blurAlong(row + std::ptrdiff_t{4} * mWeights.radius(), mBlurred.row(mNext),
                      mUp[std::size_t(mLevels)].x1 - mUp[std::size_t(mLevels)].x0, mWeights);
        }
        return mBlurred.row(y);
    }

    /// Row @p y of the blurred picture at level @p l, from column mUp[l].base on.
    const Wide* upRow(int l, int y)
    {
        Level& level = mUp[std::size_t(l)];
        const int slot = y & (kKept - 1);
        Wide* out = level.rows.row(slot);
        if (level.holds[slot] == y) return out;
        level.holds[slot] = y;
        if (l == mLevels) {
            const int radius = mWeights.radius();
            for (int k = -radius; k <= radius; ++k) mTaps[std::size_t(k + radius)] = alongRow(y + k);
            blurAcross(mTaps.data(), out, level.x1 - level.x0, mWeights);
            return out;
        }
        const Level& below = mUp[std::size_t(l) + 1];
        const int own = floorHalf(y);
        const Wide* near;
        const Wide* far;
        // The upper one first, so that the rows below are asked for in order.
        if (y & 1) {
            near = upRow(l + 1, own);
            far = upRow(l + 1, own + 1);
        } else {
            far = upRow(l + 1, own - 1);
            near = upRow(l + 1, own);
        }
        const std::ptrdiff_t start = std::ptrdiff_t{4} * (below.x0 - below.base);
        mixRows(near + start, far + start, level.mixed.data(), below.x1 - below.x0);
        doubleRow(level.mixed.data() + 4, out, below.x1 - below.x0 - 2);
        return out;
    }

    ConstBitmapView mSource;
    const BlurJob& mJob;
    const BlurWeights& mWeights;
    int mLevels;
    std::vector<Level> mUp, mDown;
    Ring mBlurred{1, 1};
    std::vector<const Wide*> mTaps;
    int mNext = kNone;
};

} // namespace

void wideBlurPart(ConstBitmapView source, BitmapView destination, const BlurJob& job, PixelBox part)
{
    const double sigma = std::min(job.sigma, kWidestSigma);
    int levels = 1;
    while (sigma / (1 << levels) > kWidestDirect) ++levels;
    const double square = double(1 << levels) * double(1 << levels);
    const BlurWeights weights = gaussianWeights(std::sqrt((sigma * sigma - (square - 1) / 3) / square));
    const int strip = kReducedStrip << levels;
    parallelBands(part.height(), std::max(64, (8 * weights.radius()) << levels), [&](int from, int to) {
        for (int x = part.x0; x < part.x1; x += strip) {
            const int x1 = std::min(part.x1, x + strip);
            WideStrip rows(source, job, weights, levels, x, x1);
            for (int y = part.y0 + from; y < part.y0 + to; ++y) rows.writeRow(y, destination.row(y) + x);
        }
    });
}

} // namespace zp::filters
