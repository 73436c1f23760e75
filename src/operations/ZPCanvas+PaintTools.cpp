// SPDX-License-Identifier: GPL-3.0-or-later
/// The mouse with the tools that change or read pixels at once: pencil, eraser, paint bucket, eyedropper, clone stamp.
#include "base/PixelMemory.h"
#include "desktop/ColorWell.h"
#include "desktop/KeyModifiers.h"
#include "drawing/BitmapContext.h"
#include "operations/ToolActions.h"
#include "tools/BrushTip.h"
#include "tools/PixelCompare.h"
#include "tools/StrokeGeometry.h"
#include <cstring>

using namespace zp;

namespace
{

BezierPath roundStroke(float width)
{
    BezierPath path;
    path.setLineWidth(width);
    path.setLineJoin(LineJoin::Round);
    path.setLineCap(LineCap::Round);
    return path;
}

/// What the finished gesture draws: the path that was drawn, or the straight line of a press with Shift.
BezierPath finishedStroke(ZPCanvas& canvas, Point released)
{
    if (std::optional<BezierPath> drawn = std::exchange(canvas.mPencilPath, std::nullopt)) {
        // The release is a position like any other; a click without a drag becomes a dot.
        if (drawn->elementCount() == 1 || drawn->currentPoint() != released) drawn->lineTo(released);
        return std::move(*drawn);
    }
    BezierPath line = roundStroke(canvas.mSize);
    line.moveTo(canvas.mPt1);
    line.lineTo(canvas.mPt2);
    return line;
}

/// Makes what @p path strokes transparent. Only the stroke's own box is worked on.
void eraseStroke(BitmapView pixels, BezierPath path)
{
    const PixelBox box = pixelBoxOf(strokeBounds(path).inset(-1), pixels.width, pixels.height);
    if (box.isEmpty()) return;
    const std::size_t bytes = std::size_t(box.width()) * std::size_t(box.height());
    const PixelMemory keep = allocatePixelsUninitialized(bytes);
    if (!keep) return;
    std::memset(keep.get(), 0xFF, bytes);
    const MaskView mask{keep.get(), box.width(), box.height(), box.width()};
    AffineTransform toBox;
    toBox.translate(-box.x0, -box.y0);
    path.transform(toBox);
    strokePathInMask(mask, path, 0);
    eraseThroughMask(pixels.part(box), mask);
}

} // namespace

// ---- pencil and eraser ----------------------------------------------------------------------------------------------

void ZPToolActions::pressPencil(ZPCanvas& canvas, Point point)
{
    canvas.mPt1 = canvas.mPt2 = point;
    canvas.mPencilPath.reset();
    if (currentKeyModifiers() & kShiftKey) return; // a straight line, from here to the release
    canvas.mPencilPath = roundStroke(canvas.mSize);
    canvas.mPencilPath->moveTo(point);
}

void ZPToolActions::dragPencil(ZPCanvas& canvas, Point point)
{
    const auto dirty = [&](Point a, Point b) {
        canvas.setNeedsDisplayInRect(rectFromCorners(a, b).inset(-(canvas.mSize * 0.5f + 1.0f)));
    };
    if (canvas.mPencilPath) {
        // Only the new piece: the older ones stand on screen, and a long stroke would be drawn again and again.
        dirty(canvas.mPencilPath->currentPoint(), point);
        canvas.mPencilPath->lineTo(point);
    } else {
        dirty(canvas.mPt1, toolState(canvas).previousPt2);
        dirty(canvas.mPt1, point);
    }
}

void ZPToolActions::releasePencil(ZPCanvas& canvas, Point point)
{
    const BezierPath path = finishedStroke(canvas, point);
    if (const std::shared_ptr<BitmapRep> bitmap = drawingBitmap(canvas)) {
        BitmapContext context(bitmap->view());
        if (canvas.mSelectionPath) context.addClip(*canvas.mSelectionPath);
        context.setColor(canvas.mColor);
        context.stroke(path);
    }
    canvas.takeSnapshot();
}

void ZPToolActions::releaseEraser(ZPCanvas& canvas, Point point)
{
    BezierPath path = finishedStroke(canvas, point);
    if (const std::shared_ptr<BitmapRep> bitmap = drawingBitmap(canvas)) eraseStroke(bitmap->view(), std::move(path));
    canvas.takeSnapshot();
}

// ---- paint bucket and eyedropper ------------------------------------------------------------------------------------

void ZPToolActions::pressBucket(ZPCanvas& canvas, Point point)
{
    if (!canvas.bounds().contains(point)) return;
    if (canvas.mSelectionPath) {
        // The fill takes its walls from the mask.
        canvas.clearSelectionMask();
        canvas.selectionPathToMask();
    }
    canvas.floodFillScanlineStackFast(point);
    canvas.setNeedsDisplay();
    canvas.takeSnapshot();
}

void ZPToolActions::pickColor(ZPCanvas& canvas, Point point)
{
    const std::shared_ptr<BitmapRep> bitmap = drawingBitmap(canvas);
    if (!bitmap || !canvas.bounds().contains(point)) return;
    const int x = std::min(int(point.x), bitmap->pixelsWide() - 1),
              y = std::min(int(point.y), bitmap->pixelsHigh() - 1);
    canvas.setPaintColor(unpackPremultiplied(std::as_const(*bitmap).view().row(y)[x]));
}

void ZPCanvas::setPaintColor(Color color)
{
    mColor = color;
    if (mColorWell) mColorWell->setColor(color);
    emit paintColorChanged();
}

// ---- clone stamp ----------------------------------------------------------------------------------------------------

void ZPToolActions::pressCloneStamp(ZPCanvas& canvas, Point point)
{
    ToolState& state = toolState(canvas);
    state.referenceClick = currentKeyModifiers() & kOptionKey;
    (state.referenceClick ? canvas.mCloneStampRefPt : canvas.mPt1) = point;
}

void ZPToolActions::dragCloneStamp(ZPCanvas& canvas, Point point)
{
    ToolState& state = toolState(canvas);
    const std::shared_ptr<BitmapRep> bitmap = drawingBitmap(canvas);
    if (state.referenceClick || !bitmap) return; // a hand that trembles on a reference click must not paint
    const BitmapView pixels = bitmap->view();
    const float radius = canvas.mSize * 0.5f;
    const Rect tip = makeRect(point.x - radius, point.y - radius, canvas.mSize, canvas.mSize);
    const PixelBox box = pixelBoxOf(tip, pixels.width, pixels.height);
    // By whole pixels: a fraction would blur what is copied a little more with each stamp.
    const Point way = canvas.mPt1 - canvas.mCloneStampRefPt;
    const float dx = std::round(way.x), dy = std::round(way.y);
    const PixelBox source = pixelBoxOf(box.rect().offset(-dx, -dy), pixels.width, pixels.height);
    if (box.isEmpty() || source.isEmpty()) return;

    // The source as it is now: tip and source may overlap.
    std::shared_ptr<BitmapRep>& copy = state.cloneSource;
    if (!copy || copy->pixelsWide() < source.width() || copy->pixelsHigh() < source.height())
        copy = BitmapRep::createUninitialized(source.width(), source.height());
    if (!copy) return;
    BitmapView from = copy->view();
    from.width = source.width(), from.height = source.height();
    for (int y = 0; y < from.height; ++y)
        std::memcpy(from.rowData(y), pixels.pixel(source.x0, source.y0 + y), std::size_t(from.width) * 4);

    BitmapContext context(pixels);
    context.addClip(BezierPath::withOvalInRect(tip));
    if (canvas.mSelectionPath) context.addClip(*canvas.mSelectionPath);
    context.drawImageAt(from, {float(source.x0) + dx, float(source.y0) + dy}, CompositingOperation::SourceOver,
                        canvas.mColor.alpha);
    canvas.setNeedsDisplayInRect(tip.inset(-canvas.mSize));
}

void ZPToolActions::releaseCloneStamp(ZPCanvas& canvas, Point)
{
    if (!(currentKeyModifiers() & kOptionKey)) canvas.takeSnapshot();
}
