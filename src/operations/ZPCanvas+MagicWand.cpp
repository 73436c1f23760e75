// SPDX-License-Identifier: GPL-3.0-or-later
/// The magic wand in its three forms, over the canvas's fields.
#include "canvas/ZPCanvas.h"
#include "tools/FillSeed.h"
#include "tools/MagicWand.h"
#include "tools/PixelCompare.h"
#include "tools/TileRegion.h"

using namespace zp;

namespace
{

MaskView maskOf(ZPCanvas& canvas)
{
    const int width = canvas.mBitmapRep->pixelsWide();
    return {canvas.mSelectionMaskData.get(), width, canvas.mBitmapRep->pixelsHigh(), width};
}

std::optional<PixelPoint> wandSeed(const ZPCanvas& canvas, Point point)
{
    if (!canvas.mBitmapRep || !canvas.mSelectionMaskData) return std::nullopt;
    return fillSeed(point, canvas.mBitmapRep->view().box());
}

/// The colour is read where the point is, not at the rounded start; a point just before the first pixel reads that.
std::uint32_t wordUnder(const ZPCanvas& canvas, Point point)
{
    return canvas.colorAtPoint({std::max(0.0f, point.x), std::max(0.0f, point.y)});
}

} // namespace

void ZPCanvas::magicWandFast(Point point)
{
    mNewColor = mColor;
    const std::optional<PixelPoint> seed = wandSeed(*this, point);
    if (!seed) return;
    const std::uint32_t target = wordUnder(*this, point);
    const ColumnFillResult result = zp::magicWand(std::as_const(*mBitmapRep).view(), maskOf(*this), *seed, target,
                                                  tol2(true), sharedFillStack(), sharedTileRegion());
    if (result.completed) mSelectionMaskClear = false;
}

void ZPCanvas::magicWand(Point point)
{
    mNewColor = mColor;
    const std::optional<PixelPoint> seed = wandSeed(*this, point);
    if (!seed) return;
    const std::uint32_t target = wordUnder(*this, point);
    // One operation per pixel and mask byte, and the tolerance of whoever asked the slider last.
    const ColumnFillResult result = columnFill(
        mBitmapRep->pixelsWide(), mBitmapRep->pixelsHigh(), *seed, sharedFillStack(),
        [&](int x, int y) {
            const Point pixel{float(x), float(y)};
            return maskPixelAtPoint(pixel) != 0 && compareColor(colorAtPoint(pixel), target);
        },
        [&](int x, int y) {
            setMaskPixel({float(x), float(y)});
        });
    if (result.completed) mSelectionMaskClear = false;
}

void ZPCanvas::magicWandOver(Point point)
{
    const std::optional<PixelPoint> seed = wandSeed(*this, point);
    if (!seed || ColorsWithinTolerance(mNewColor, mOldColor, int(mSize - 1))) return;
    // The two words are packed in different byte orders, and that is how this form has always looked for its target.
    const ColumnFillResult result =
        magicWandPainting(mBitmapRep->view(), maskOf(*this), *seed, packColorRedFirst(mOldColor),
                          packPremultiplied(mNewColor), tol2(false), sharedFillStack());
    if (result.completed) mSelectionMaskClear = false;
}
