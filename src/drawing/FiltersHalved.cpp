// SPDX-License-Identifier: GPL-3.0-or-later
/// Gaussian blurs on a halved picture: it is halved a few times, blurred there by a short kernel, and doubled again.
///
/// Variances add up: each halving and each doubling adds the filter's, in pixels of the larger picture of the two, and
/// the short kernel is given what is left of the wanted variance. All grids are counted from the picture's corner, so a
/// part comes out as in the whole.
#include "drawing/FiltersBlur.h"
#include "drawing/FiltersRing.h"
#include "drawing/FiltersScaling.h"
#include <algorithm>
#include <vector>

namespace zp::filters
{

namespace
{

/// The larger number of rows of the two that halving and doubling keep.
constexpr int kKept = 8;
constexpr int kNone = -(1 << 30);

inline int floorHalf(int v) { return v >> 1; }

/// One strip of the destination and the rows it keeps on every level. Level 0 is the picture itself.
class HalvedStrip
{
public:
    HalvedStrip(ConstBitmapView source, const BlurJob& job, const BlurWeights& weights, int levels, int x0, int x1)
        : mSource(source),
          mJob(job),
          mWeights(weights),
          mLevels(std::size_t(levels)),
          mUp(mLevels + 1),
          mDown(mLevels + 1)
    {
        // Columns each level must give for the one above: a neighbour on either side.
        mUp[0].x0 = x0, mUp[0].x1 = x1;
        for (std::size_t l = 1; l <= mLevels; ++l) {
            mUp[l].x0 = floorHalf(mUp[l - 1].x0) - 1;
            mUp[l].x1 = floorHalf(mUp[l - 1].x1 - 1) + 2;
        }
        for (std::size_t l = 0; l <= mLevels; ++l) {
            Level& level = mUp[l];
            // Doubling gives whole pairs: the rows of a doubled level start at an even column.
            level.base = l == mLevels ? level.x0 : 2 * (mUp[l + 1].x0 + 1);
            const int end = l == mLevels ? level.x1 : 2 * (mUp[l + 1].x1 - 1);
            level.prepare(kKept, blocks(end - level.base) + kBlock); // blocks may begin anywhere
        }
        // What the short kernel reads, and under it what halving reads.
        const int radius = weights.radius(), read = blocks(mUp[mLevels].x1 - mUp[mLevels].x0);
        mDown[mLevels].x0 = mUp[mLevels].x0 - radius;
        mDown[mLevels].x1 = mUp[mLevels].x0 + read + radius;
        for (std::size_t l = mLevels; l-- > 0;) {
            mDown[l].x0 = 2 * mDown[l + 1].x0 - kHalvingReach;
            mDown[l].x1 = 2 * mDown[l + 1].x1 + kHalvingReach;
        }
        for (std::size_t l = 0; l <= mLevels; ++l) {
            Level& level = mDown[l];
            level.base = level.x0;
            // The unsharp mask meets the picture's rows again when those below them have been blurred.
            const int met = l == 0 && job.sharpen ? (radius + 2 * kHalvingReach + 1) << levels : 0;
            level.prepare(kKept + met, blocks(level.x1 - level.x0));
        }
        mBlurred = Ring(2 * radius + 1, read);
        mTaps.resize(std::size_t(2 * radius) + 1);
    }

    void writeRow(int y, std::uint32_t* pixels, bool stream)
    {
        const Level& level = mUp[0];
        const Wide* const row = upRow(0, y) + std::ptrdiff_t{4} * (level.x0 - level.base);
        const int count = level.x1 - level.x0;
        if (!mJob.sharpen) return narrowRow(row, pixels, count, stream);
        const Wide* const own = mDown[0].rows.row(y) + std::ptrdiff_t{4} * (level.x0 - mDown[0].base);
        sharpenRow(row, own, pixels, count, mJob.amount, stream);
    }

private:
    struct Level {
        int x0 = 0, x1 = 0; ///< columns that are asked for
        int base = 0;       ///< column that rows begin with
        int next = kNone;   ///< the first row that is not there yet
        Ring rows{1, 1};
        std::vector<Wide> line; ///< a row halved or doubled one way only

        void prepare(int kept, int width)
        {
            rows = Ring(kept, width);
            line.resize(std::size_t(width) * 4 + 64);
        }
    };

    /// Row @p y of the picture halved @p l times. Rows are asked for from above down, the last few also again.
    const Wide* downRow(std::size_t l, int y)
    {
        Level& level = mDown[l];
        if (level.next == kNone) level.next = y;
        for (; level.next <= y; ++level.next) {
            Wide* const out = level.rows.row(level.next);
            if (l == 0) {
                fetchRow(mSource, level.next, level.x0, level.x1, mJob, out);
                continue;
            }
            Level& larger = mDown[l - 1];
            const Wide* six[6];
            for (int k = 0; k < 6; ++k) six[k] = downRow(l - 1, 2 * level.next - kHalvingReach + k);
            halveDown(six, larger.line.data(), larger.x1 - larger.x0);
            halveAlong(larger.line.data() + 4 * kHalvingReach, out, level.x1 - level.x0);
        }
        return level.rows.row(y);
    }

    /// Row @p y of the most halved picture, blurred along.
    const Wide* alongRow(int y)
    {
        if (mNext == kNone) mNext = y;
        for (; mNext <= y; ++mNext)
            blurAlong(downRow(mLevels, mNext) + std::ptrdiff_t{4} * mWeights.radius(), mBlurred.row(mNext),
                      mUp[mLevels].x1 - mUp[mLevels].x0, mWeights);
        return mBlurred.row(y);
    }

    /// Row @p y of the blurred picture at level @p l, from column mUp[l].base on; asked for like downRow.
    const Wide* upRow(std::size_t l, int y)
    {
        Level& level = mUp[l];
        if (level.next == kNone) level.next = y;
        for (; level.next <= y; ++level.next) {
            const int row = level.next;
            Wide* const out = level.rows.row(row);
            if (l == mLevels) {
                const int radius = mWeights.radius();
                for (int k = -radius; k <= radius; ++k) mTaps[std::size_t(k + radius)] = alongRow(row + k);
                blurAcross(mTaps.data(), out, level.x1 - level.x0, mWeights);
                continue;
            }
            const Level& smaller = mUp[l + 1];
            const int own = floorHalf(row);
            // The upper one first, so that the rows are asked for in order.
            const std::ptrdiff_t start = std::ptrdiff_t{4} * (smaller.x0 - smaller.base);
            const Wide* const above = upRow(l + 1, own - 1) + start;
            const Wide* const middle = upRow(l + 1, own) + start;
            const Wide* const below = upRow(l + 1, own + 1) + start;
            doubleDown(row & 1 ? below : above, middle, row & 1 ? above : below, level.line.data(),
                       smaller.x1 - smaller.x0);
            doubleAlong(level.line.data() + 4, out, smaller.x1 - smaller.x0 - 2);
        }
        return level.rows.row(y);
    }

    ConstBitmapView mSource;
    const BlurJob& mJob;
    const BlurWeights& mWeights;
    std::size_t mLevels;
    std::vector<Level> mUp, mDown;
    Ring mBlurred{1, 1};
    std::vector<const Wide*> mTaps;
    int mNext = kNone;
};

} // namespace

void blurHalvedStrip(ConstBitmapView source, BitmapView destination, const BlurJob& job, const BlurWeights& weights,
                     int levels, PixelBox box, bool stream)
{
    HalvedStrip rows(source, job, weights, levels, box.x0, box.x1);
    for (int y = box.y0; y < box.y1; ++y) rows.writeRow(y, destination.row(y) + box.x0, stream);
}

} // namespace zp::filters
