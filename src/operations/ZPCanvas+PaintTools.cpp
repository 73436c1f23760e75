// SPDX-License-Identifier: GPL-3.0-or-later
/// The mouse with pencil and eraser: a path while the button is down, drawn at the release by what also shows it
/// before.
#include "base/FixedPoint.h"
#include "base/PixelMemory.h"
#include "desktop/KeyModifiers.h"
#include "desktop/Sounds.h"
#include "document/Document.h"
#include "document/Gesture.h"
#include "document/Paint.h"
#include "document/Picture.h"
#include "document/Selection.h"
#include "drawing/BitmapContext.h"
#include "operations/ToolActions.h"
#include "selection/MaskOps.h"
#include "tools/BrushTip.h"
#include "tools/StrokeGeometry.h"
#include <cstring>
#include <new>

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

/// What has been drawn so far.
BezierPath strokeSoFar(const Document& document)
{
    const BezierPath* drawn = document.gesture().pencilPath();
    return drawn ? *drawn : straightStroke(document.gesture(), document.paint().size());
}

/// What the finished gesture draws.
BezierPath finishedStroke(Edit& edit, Point released)
{
    std::optional<BezierPath> drawn = edit.gesture().takePencil();
    if (!drawn) return straightStroke(edit.gesture(), edit.paint().size());
    // The release is a position like any other; a click without a drag becomes a dot.
    if (drawn->elementCount() == 1 || drawn->currentPoint() != released) drawn->lineTo(released);
    return std::move(*drawn);
}

/// Picture coordinates to those of a part whose corner is the picture's pixel (x, y).
AffineTransform toPart(int x, int y)
{
    AffineTransform shift;
    shift.translate(-x, -y);
    return shift;
}

void drawPencil(BitmapView pixels, int x, int y, const BezierPath& path, const BezierPath* clip, Color color)
{
    BitmapContext context(pixels);
    context.concat(toPart(x, y));
    if (clip) context.addClip(*clip);
    context.setColor(color);
    context.stroke(path);
}

/// Makes what @p path strokes transparent, as far as the selection lets it. Only the stroke's own box is worked on.
void erase(BitmapView pixels, int x, int y, BezierPath path, const BezierPath* clip)
{
    path.transform(toPart(x, y));
    const PixelBox box = pixelBoxOf(strokeBounds(path).inset(-1), pixels.width, pixels.height);
    if (box.isEmpty()) return;
    const std::size_t bytes = std::size_t(box.width()) * std::size_t(box.height());
    const PixelMemory keep = allocatePixelsUninitialized(bytes),
                      allowed = allocatePixelsUninitialized(clip ? bytes : 1);
    if (!keep || !allowed) throw std::bad_alloc();
    std::memset(keep.get(), kNotSelected, bytes);
    const MaskView mask{keep.get(), box.width(), box.height(), box.width()};
    path.transform(toPart(box.x0, box.y0));
    strokePathInMask(mask, path, 0);
    if (clip) {
        std::memset(allowed.get(), kNotSelected, bytes);
        BezierPath outline = *clip;
        outline.transform(toPart(x + box.x0, y + box.y0));
        renderPathInMask({allowed.get(), box.width(), box.height(), box.width()}, outline, kSelected);
        for (std::size_t i = 0; i < bytes; ++i)
            keep[i] = std::uint8_t(255 - divide255(std::uint32_t((255 - keep[i]) * (255 - allowed[i]))));
    }
    eraseThroughMask(pixels.part(box), mask);
}

/// The end of both tools: what the selection lets nothing through of is a beep and no step.
template <class Draw>
void finish(Edit& edit, Point point, Draw&& draw)
{
    const BezierPath path = finishedStroke(edit, point);
    const Rect area = strokeBounds(path).inset(-1);
    if (!edit.selection().isNil() && !intersects(area, edit.selection().bounds())) return edit.refuse();
    const BitmapView pixels = edit.write(pixelBoxOf(area, edit.picture().width(), edit.picture().height()));
    if (!pixels.isEmpty()) draw(pixels, path);
    edit.wantStep(true);
}

} // namespace

void tool::pressPencil(Edit& edit, Point point)
{
    edit.gesture().setBoth(point);
    edit.gesture().noPencil();
    if (currentKeyModifiers() & kShiftKey) return; // a straight line, from here to the release
    edit.gesture().startPencil(edit.paint().size(), point);
}

void tool::dragPencil(Edit& edit, Point point)
{
    const float margin = edit.paint().size() * 0.5f + 1.0f;
    const auto redraw = [&](Point a, Point b) { edit.redraw(rectFromCorners(a, b).inset(-margin)); };
    Gesture& gesture = edit.gesture();
    if (const BezierPath* path = gesture.pencilPath()) {
        // Only the new piece: the older ones stand on screen, and a long stroke would be drawn again and again.
        redraw(path->currentPoint(), point);
        gesture.extendPencil(point);
    } else {
        redraw(gesture.pt1(), gesture.previousPt2());
        redraw(gesture.pt1(), point);
    }
}

void tool::releasePencil(Edit& edit, Point point)
{
    finish(edit, point, [&edit](BitmapView pixels, const BezierPath& path) {
        drawPencil(pixels, 0, 0, path, edit.selection().outline(), edit.paint().color());
    });
}

void tool::releaseEraser(Edit& edit, Point point)
{
    finish(edit, point, [&edit](BitmapView pixels, const BezierPath& path) {
        erase(pixels, 0, 0, path, edit.selection().outline());
    });
}

void tool::previewPencil(const Document& document, BitmapView pixels, int x, int y)
{
    drawPencil(pixels, x, y, strokeSoFar(document), document.selection().outline(), document.paint().color());
}

void tool::previewEraser(const Document& document, BitmapView pixels, int x, int y)
{
    erase(pixels, x, y, strokeSoFar(document), document.selection().outline());
}

PixelBox tool::previewBox(const Document& document)
{
    return pixelBoxOf(strokeBounds(strokeSoFar(document)).inset(-1), document.picture().width(),
                      document.picture().height());
}

} // namespace zp
