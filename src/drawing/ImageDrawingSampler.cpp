// SPDX-License-Identifier: GPL-3.0-or-later
/// Chooses how an image is sampled: in place, averaged down first, by smooth interpolation, or the nearest pixel.
#include "drawing/ImageDrawingSampler.h"
#include "base/WorkPool.h"
#include <algorithm>
#include <cmath>

namespace zp
{

namespace
{
/// Pixels; less cannot be told from nothing in 8 bits.
constexpr double kInvisible = 1.0 / 128;
/// Scales from here to 1 are left to interpolation.
constexpr double kHardlyReduced = 0.9985;
/// Source pixels below which another worker is not worth waking.
constexpr double kPixelsPerBand = 300'000;
/// Interpolation looks this many pixels around.
constexpr int kReach = 3;

std::int64_t fixed32(double v)
{
    constexpr double kLimit = double(std::int64_t{1} << 29);
    return std::llround(std::clamp(v, -kLimit, kLimit) * 4294967296.0);
}
} // namespace

bool ImageSampler::isNearlyShift(const AffineTransform& m, PixelBox part, int& dx, int& dy)
{
    if (!(std::abs(m.tX) < 1e9 && std::abs(m.tY) < 1e9)) return false;
    const double x = std::nearbyint(m.tX), y = std::nearbyint(m.tY);
    for (const int cx : {part.x0, part.x1})
        for (const int cy : {part.y0, part.y1}) {
            const double ex = m.m11 * cx + m.m21 * cy + m.tX - cx - x, ey = m.m12 * cx + m.m22 * cy + m.tY - cy - y;
            if (!(std::abs(ex) <= kInvisible && std::abs(ey) <= kInvisible)) return false;
        }
    dx = int(x), dy = int(y);
    return true;
}

ImageSampler::ImageSampler(ConstBitmapView image, PixelBox part, const AffineTransform& toTarget, PixelBox target,
                           bool nearest)
    : mSource(image), mPart(part), mNearest(nearest)
{
    if (isNearlyShift(toTarget, part, mShiftX, mShiftY)) {
        mShift = true;
        return;
    }
    AffineTransform residual = toTarget;
    if (!nearest) {
        const double scaleX = std::hypot(toTarget.m11, toTarget.m12), scaleY = std::hypot(toTarget.m21, toTarget.m22);
        if (std::min(scaleX, scaleY) < kHardlyReduced) reduce(scaleX, scaleY, residual, target);
    }
    mToImage = residual.inverted();
}

void ImageSampler::reduce(double scaleX, double scaleY, AffineTransform& toTarget, PixelBox target)
{
    AveragingGrid grid;
    const AffineTransform before = toTarget;
    const bool straight = toTarget.m12 == 0 && toTarget.m21 == 0 && toTarget.m11 > 0 && toTarget.m22 > 0;
    if (straight && scaleX <= 1 && scaleY <= 1) {
        // The target's own pixels are the cells: nothing is left to interpolate.
        grid.stepX = 1 / toTarget.m11, grid.stepY = 1 / toTarget.m22;
        grid.left = (target.x0 - toTarget.tX) * grid.stepX, grid.top = (target.y0 - toTarget.tY) * grid.stepY;
        grid.columns = target.width(), grid.rows = target.height();
        mAverager = std::make_unique<const GridAverager>(mSource, mPart, grid);
        mTarget = target;
        return;
    }
    // Cells of about a target pixel, the image's extent a whole number of them; only those that can be seen.
    const auto divide = [](int extent, double scale) {
        return double(extent) / std::max(1.0, std::min(double(extent), std::nearbyint(extent * scale)));
    };
    grid.stepX = divide(mPart.width(), std::min(scaleX, 1.0));
    grid.stepY = divide(mPart.height(), std::min(scaleY, 1.0));
    const Rect seen = toTarget.inverted().apply(target.rect());
    const auto cell = [](double v, double step, int extent) {
        return int(std::clamp(std::floor(v / step), 0.0, std::nearbyint(extent / step)));
    };
    const int c0 = cell(double(seen.minX()) - mPart.x0, grid.stepX, mPart.width()) - kReach;
    const int c1 = cell(double(seen.maxX()) - mPart.x0, grid.stepX, mPart.width()) + 1 + kReach;
    const int r0 = cell(double(seen.minY()) - mPart.y0, grid.stepY, mPart.height()) - kReach;
    const int r1 = cell(double(seen.maxY()) - mPart.y0, grid.stepY, mPart.height()) + 1 + kReach;
    grid.columns = c1 - c0, grid.rows = r1 - r0;
    grid.left = mPart.x0 + c0 * grid.stepX, grid.top = mPart.y0 + r0 * grid.stepY;
    toTarget.translate(grid.left, grid.top);
    toTarget.scale(grid.stepX, grid.stepY);
    const std::ptrdiff_t rowBytes = (std::ptrdiff_t{4} * grid.columns + 63) / 64 * 64;
    mReduced = allocatePixelsUninitialized(std::size_t(rowBytes) * std::size_t(grid.rows));
    if (!mReduced) {
        toTarget = before; // interpolated from the full image instead: coarse, but drawn
        return;
    }
    const GridAverager averager(mSource, mPart, grid);
    const double perRow = double(mPart.width()) * std::max(1.0, grid.stepY);
    parallelBands(grid.rows, std::max(1, int(kPixelsPerBand / perRow)), [&](int first, int last) {
        for (int row = first; row < last; ++row)
            averager.average(row, 0, grid.columns, reinterpret_cast<std::uint32_t*>(mReduced.get() + rowBytes * row));
    });
    mSource = {mReduced.get(), grid.columns, grid.rows, rowBytes};
    mPart = mSource.box();
    mDirect = isNearlyShift(toTarget, mPart, mShiftX, mShiftY);
}

bool ImageSampler::drawOver(int y, int x0, int x1, std::uint32_t* to) const
{
    if (!mAverager) return false;
    mAverager->drawOver(y - mTarget.y0, x0 - mTarget.x0, x1 - mTarget.x0, to);
    return true;
}

const std::uint32_t* ImageSampler::generate(int y, int x0, int x1, std::uint32_t* room) const
{
    if (mShift || mDirect) return mSource.row(y - mShiftY) + (x0 - mShiftX);
    if (mAverager) {
        mAverager->average(y - mTarget.y0, x0 - mTarget.x0, x1 - mTarget.x0, room);
        return room;
    }
    // The middle of the first pixel, in image pixels.
    const double u = mToImage.m11 * (x0 + 0.5) + mToImage.m21 * (y + 0.5) + mToImage.tX;
    const double v = mToImage.m12 * (x0 + 0.5) + mToImage.m22 * (y + 0.5) + mToImage.tY;
    SampleLine line{fixed32(u), fixed32(v), fixed32(mToImage.m11), fixed32(mToImage.m12)};
    if (mNearest) {
        for (int x = x0; x < x1; ++x, line.x += line.dx, line.y += line.dy)
            room[x - x0] = mSource.row(std::clamp(int(line.y >> 32), mPart.y0,
                                                  mPart.y1 - 1))[std::clamp(int(line.x >> 32), mPart.x0, mPart.x1 - 1)];
        return room;
    }
    const std::int64_t half = std::int64_t{1} << 31;
    line.x -= half, line.y -= half;
    interpolateLine(mSource, mPart, line, room, x1 - x0);
    return room;
}

} // namespace zp
