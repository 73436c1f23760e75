// SPDX-License-Identifier: GPL-3.0-or-later
/// Single pixels and mask bytes, and the tolerance that fills and wands compare with.
#include "canvas/ZPCanvas.h"
#include "tools/PixelCompare.h"
#include <QSlider>

using namespace zp;

namespace
{
int cachedTolerance = 0; ///< what the slider said when a fill or wand last asked
}

// None of these checks bounds: callers keep their coordinates inside the image.

std::uint32_t ZPCanvas::colorAtPoint(Point point) const { return mBitmapRep->view().row(int(point.y))[int(point.x)]; }

std::uint32_t ZPCanvas::colorAtPoint(Point point, bool) const { return colorAtPoint(point); }

void ZPCanvas::setColor(std::uint32_t word, Point point) { setColor(word, point, false); }

void ZPCanvas::setColor(std::uint32_t word, Point point, bool)
{
    mBitmapRep->view().row(int(point.y))[int(point.x)] = word;
}

int ZPCanvas::tol2(bool refresh)
{
    if (refresh && mToleranceSlider) cachedTolerance = toleranceForSlider(mToleranceSlider->value());
    return cachedTolerance;
}

bool ZPCanvas::compareColor(std::uint32_t a, std::uint32_t b) { return wordsMatch(a, b, tol2(false)); }

std::uint8_t ZPCanvas::maskPixelAtPoint(Point point) const
{
    return mSelectionMaskData[std::size_t(int(point.y)) * std::size_t(mBitmapRep->pixelsWide()) +
                              std::size_t(int(point.x))];
}

void ZPCanvas::setMaskPixel(Point point)
{
    mSelectionMaskData[std::size_t(int(point.y)) * std::size_t(mBitmapRep->pixelsWide()) + std::size_t(int(point.x))] =
        0;
}

void ZPCanvas::inverseMask()
{
    if (!mSelectionMaskData || !mBitmapRep) return;
    const std::size_t count = std::size_t(mBitmapRep->pixelsWide()) * std::size_t(mBitmapRep->pixelsHigh());
    std::uint8_t* mask = mSelectionMaskData.get();
    for (std::size_t i = 0; i < count; ++i) mask[i] = mask[i] ? 0 : 255;
}
