// SPDX-License-Identifier: GPL-3.0-or-later
/// The brush: a shape in one colour at one size, and stamping it into a picture.
#pragma once
#include "base/BitmapView.h"
#include "base/Color.h"
#include "base/PixelMemory.h"
#include <vector>

namespace zp
{

/// A brush shape scaled to a side and filled with a colour. Immutable once made: any thread may stamp with it.
class BrushTip
{
public:
    /// @param shape  a picture whose alpha is the shape; scaled to @p size by @p size, its own colours do not count.
    ///               Empty: a round tip with a soft border.
    /// @param size   diameter in pixels; the tip's side is the nearest whole number. Below 0.5 or not finite: no pixels
    /// @param color  red, green and blue; its alpha does not count
    BrushTip(ConstBitmapView shape, float size, Color color);

    int side() const { return mSide; }
    /// side() by side(), premultiplied.
    ConstBitmapView pixels() const { return {mPixels.data(), mSide, mSide, std::ptrdiff_t{4} * mSide}; }

private:
    int mSide = 0;
    std::vector<std::uint8_t> mPixels;
};

/// A tip at one opacity, laid out for blending: what a stroke stamps with.
class BrushStamp
{
public:
    /// @param fraction  opacity, 0 to 1
    BrushStamp(const BrushTip& tip, float fraction);

    int side() const { return mSide; }
    /// Draws the tip source-over with its upper left corner at pixel (x, y), cut to the picture. Colour stays at most
    /// alpha. Time: the tip's covered area. Any thread that owns the pixels.
    void drawAt(BitmapView pixels, int x, int y) const;

private:
    struct Span {
        int first, last; ///< pixels of the row that are not fully transparent: [first, last)
    };
    int mSide = 0;
    std::size_t mStride = 0; ///< bytes a row of the two planes
    PixelMemory mSource;     ///< premultiplied bytes at the opacity
    PixelMemory mKeep;       ///< 255 minus alpha, once for each byte of the pixel: what stays of what is there
    std::vector<Span> mSpans;
};

/// Makes pixels transparent by a mask: 0 clears, 255 keeps, between in proportion. Colour stays at most alpha.
/// @param mask  the size of @p pixels
void eraseThroughMask(BitmapView pixels, ConstMaskView mask);

} // namespace zp
