// SPDX-License-Identifier: GPL-3.0-or-later
/// Single pixels and mask bytes, by points whose coordinates are cut to whole ones. Nothing checks bounds: callers keep
/// their coordinates inside the picture.
#pragma once
#include "base/BitmapView.h"
#include "base/Geometry.h"
#include "document/Paint.h"
#include "tools/PixelCompare.h"
#include <algorithm>

namespace zp
{

inline std::uint32_t colorAtPoint(ConstBitmapView pixels, Point p) { return pixels.row(int(p.y))[int(p.x)]; }
/// What the wand looks for: read where the point is, not at the rounded start; a point just before the first pixel
/// reads that.
inline std::uint32_t wordUnder(ConstBitmapView pixels, Point p)
{
    return colorAtPoint(pixels, {std::max(0.0f, p.x), std::max(0.0f, p.y)});
}
inline void setColor(BitmapView pixels, std::uint32_t word, Point p) { pixels.row(int(p.y))[int(p.x)] = word; }
inline std::uint8_t maskPixelAtPoint(ConstMaskView mask, Point p) { return mask.row(int(p.y))[int(p.x)]; }
inline void setMaskPixel(MaskView mask, Point p) { mask.row(int(p.y))[int(p.x)] = 0; }
/// Whether a lies within the tolerance that the last fill or wand asked for of b.
inline bool compareColor(const Paint& paint, std::uint32_t a, std::uint32_t b)
{
    return wordsMatch(a, b, paint.tolerance());
}

} // namespace zp
