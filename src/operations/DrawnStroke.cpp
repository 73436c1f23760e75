// SPDX-License-Identifier: GPL-3.0-or-later
/// From the positions of a gesture to a path, and from a path to the pixels it covers.
#include "operations/DrawnStroke.h"
#include "base/FixedPoint.h"
#include "document/Document.h"
#include "document/Gesture.h"
#include "document/Paint.h"
#include "drawing/BitmapContext.h"
#include "selection/MaskOps.h"
#include "tools/StrokeGeometry.h"
#include <cstring>
#include <new>
#include <utility>

namespace zp
{

namespace
{

/// The straight line of a press with Shift.
BezierPath straightStroke(const Gesture& gesture, float width)
{
    BezierPath line;
    line.setLineWidth(width);
    line.setLineJoin(LineJoin::Round);
    line.setLineCap(LineCap::Round);
    line.moveTo(gesture.pt1());
    line.lineTo(gesture.pt2());
    return line;
}

} // namespace

BezierPath strokeSoFar(const Document& document)
{
    const BezierPath* drawn = document.gesture().pencilPath();
    return drawn ? *drawn : straightStroke(document.gesture(), document.paint().size());
}

BezierPath finishedStroke(Edit& edit, Point released)
{
    std::optional<BezierPath> drawn = edit.gesture().takePencil();
    if (!drawn) return straightStroke(edit.gesture(), edit.paint().size());
    // The release is a position like any other; a click without a drag becomes a dot.
    if (drawn->elementCount() == 1 || drawn->currentPoint() != released) drawn->lineTo(released);
    return std::move(*drawn);
}

BezierPath inPart(BezierPath path, int x, int y)
{
    AffineTransform shift;
    shift.translate(-x, -y);
    path.transform(shift);
    return path;
}

StrokeMask maskOfStroke(const BezierPath& path, const BezierPath* clip, int width, int height)
{
    StrokeMask mask{pixelBoxOf(strokeBounds(path).inset(-1), width, height), {}};
    const PixelBox box = mask.box;
    if (box.isEmpty()) return mask;
    const std::size_t bytes = std::size_t(box.width()) * std::size_t(box.height());
    mask.bytes = allocatePixelsUninitialized(bytes);
    const PixelMemory allowed = allocatePixelsUninitialized(clip ? bytes : 1);
    if (!mask.bytes || !allowed) throw std::bad_alloc();
    std::uint8_t* const keep = mask.bytes.get();
    std::memset(keep, kNotSelected, bytes);
    strokePathInMask(mask.view(), inPart(path, box.x0, box.y0), 0);
    if (!clip) return mask;
    std::memset(allowed.get(), kNotSelected, bytes);
    renderPathInMask({allowed.get(), box.width(), box.height(), box.width()}, inPart(*clip, box.x0, box.y0), kSelected);
    for (std::size_t i = 0; i < bytes; ++i)
        keep[i] = std::uint8_t(255 - divide255(std::uint32_t((255 - keep[i]) * (255 - allowed[i]))));
    return mask;
}

} // namespace zp
