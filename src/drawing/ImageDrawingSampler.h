// SPDX-License-Identifier: GPL-3.0-or-later
/// Runs of an image's pixels as they look through an affine map: copied, averaged or interpolated.
#pragma once
#include "base/AffineTransform.h"
#include "base/BitmapView.h"
#include "base/PixelMemory.h"
#include "drawing/GridAverager.h"
#include <cstdint>
#include <memory>

namespace zp
{

/// An image seen through a map onto whole destination pixels. Beyond the image's borders its last pixels go on, so the
/// caller cuts the shape. Build once per drawing; generate() is then called from any number of threads.
class ImageSampler
{
public:
    /// @param image     read in place while the sampler lives
    /// @param part      the pixels of @p image that may be read, inside it and not empty
    /// @param toTarget  from image pixels to destination pixels; must have an inverse
    /// @param target    the destination pixels that will be asked for; those outside are not defined
    /// @param nearest   the nearest pixel instead of averages and smooth curves
    ImageSampler(ConstBitmapView image, PixelBox part, const AffineTransform& toTarget, PixelBox target, bool nearest);

    /// The pixels [x0, x1) of destination row @p y. @return them, in place where the map is a shift by whole pixels,
    /// else written to @p room (x1 - x0 words)
    const std::uint32_t* generate(int y, int x0, int x1, std::uint32_t* room) const;

    /// The same pixels drawn source-over onto @p to. @return false where that is no quicker: then nothing was drawn
    bool drawOver(int y, int x0, int x1, std::uint32_t* to) const;

    /// Whether the map is, to within what an eye could see, a shift by whole pixels.
    bool isShift() const { return mShift; }
    int shiftX() const { return mShiftX; }
    int shiftY() const { return mShiftY; }
    /// Whether @p m moves no corner of @p part by more than 1/128 pixel off a shift by whole pixels.
    static bool isNearlyShift(const AffineTransform& m, PixelBox part, int& dx, int& dy);

private:
    void reduce(double scaleX, double scaleY, AffineTransform& toTarget, PixelBox target);

    ConstBitmapView mSource;
    PixelBox mPart;
    AffineTransform mToImage;
    bool mNearest, mShift = false, mDirect = false;
    int mShiftX = 0, mShiftY = 0;
    PixelMemory mReduced;
    std::unique_ptr<const GridAverager>
        mAverager; ///< whose cells are the target's own pixels, from mTarget's corner on
    PixelBox mTarget;
};

/// Catmull-Rom interpolation along a line through the image: pixel k is taken at (x + k * dx, y + k * dy), 2^-32
/// pixels, where whole numbers are the middles of pixels. Positions beyond @p part take its border pixels. Alpha stays
/// within 0 and 255, colour within alpha.
struct SampleLine {
    std::int64_t x = 0, y = 0, dx = 0, dy = 0;
};
void interpolateLine(ConstBitmapView image, PixelBox part, SampleLine line, std::uint32_t* out, int count);

} // namespace zp
