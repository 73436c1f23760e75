// SPDX-License-Identifier: GPL-3.0-or-later
/// The paint bucket's fill and its two older relatives, over the canvas's fields.
#include "canvas/ZPCanvas.h"
#include "desktop/Sounds.h"
#include "tools/FillSeed.h"
#include "tools/FloodFill.h"
#include "tools/PixelCompare.h"
#include "tools/TileRegion.h"

using namespace zp;

void ZPCanvas::floodFillScanlineStackFast(Point point)
{
    const std::optional<PixelPoint> seed = mBitmapRep ? fillSeed(point, mBitmapRep->view().box()) : std::nullopt;
    if (!seed) return;
    ConstMaskView walls;
    if (mSelectionPath && mSelectionMaskData)
        walls = {mSelectionMaskData.get(), mBitmapRep->pixelsWide(), mBitmapRep->pixelsHigh(),
                 mBitmapRep->pixelsWide()};
    mNewColor = mColor;
    // As the canvas keeps pixels: a translucent colour is stored multiplied by its alpha.
    const std::uint32_t fillWord = packPremultiplied(mNewColor);
    const std::uint32_t target = mBitmapRep->view().row(seed->y)[seed->x];
    // On purpose before the tolerance is refreshed: what counts as "has this colour already" is the last fill's.
    if (compareColor(fillWord, target)) return beep();
    floodFill(mBitmapRep->view(), walls, *seed, fillWord, tol2(true), sharedFillStack(), sharedTileRegion());
}

void ZPCanvas::floodFillScanlineStack(Point point)
{
    const std::optional<PixelPoint> seed = mBitmapRep ? fillSeed(point, mBitmapRep->view().box()) : std::nullopt;
    if (!seed) return;
    // The brush size doubles as the tolerance here.
    floodFillColors(mBitmapRep->view(), *seed, mNewColor, mOldColor, int(mSize - 1), sharedFillStack());
}

void ZPCanvas::floodFill4Stack(Point point)
{
    const std::optional<PixelPoint> seed = mBitmapRep ? fillSeed(point, mBitmapRep->view().box()) : std::nullopt;
    if (!seed) return;
    const ColumnFillResult result =
        floodFillFourNeighbours(mBitmapRep->view(), *seed, mNewColor, mOldColor, int(mSize - 1), sharedFillStack());
    if (result.completed) playSound("Ping");
}
