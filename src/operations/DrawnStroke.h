// SPDX-License-Identifier: GPL-3.0-or-later
/// What the hand has drawn with pencil, eraser or remove brush, and the pixels that it covers.
#pragma once
#include "base/BezierPath.h"
#include "base/BitmapView.h"
#include "base/PixelMemory.h"
#include "document/Edit.h"

namespace zp
{

/// What has been drawn so far, in image coordinates; a straight line where Shift was held at the press.
BezierPath strokeSoFar(const Document& document);
/// What the finished gesture draws; the hand holds nothing afterwards.
BezierPath finishedStroke(Edit& edit, Point released);
/// The path in the coordinates of a part whose corner is the pixel (x, y).
BezierPath inPart(BezierPath path, int x, int y);

/// The pixels that a stroke covers, as far as a clip lets it: 0 wholly, 255 not at all.
struct StrokeMask {
    PixelBox box; ///< empty: it covers none
    PixelMemory bytes;
    MaskView view() const { return {bytes.get(), box.width(), box.height(), box.width()}; }
};

/// @param clip  even-odd; null: no clip. Both paths in the coordinates of a picture of @p width by @p height.
/// Throws std::bad_alloc. Time and memory: O(the stroke's box).
StrokeMask maskOfStroke(const BezierPath& path, const BezierPath* clip, int width, int height);

} // namespace zp
