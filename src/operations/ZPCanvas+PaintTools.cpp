// SPDX-License-Identifier: GPL-3.0-or-later
/// The mouse with pencil and eraser: a path while the button is down, drawn at the release by what also shows it
/// before.
#include "desktop/KeyModifiers.h"
#include "document/Document.h"
#include "document/Gesture.h"
#include "document/Paint.h"
#include "document/Picture.h"
#include "document/Selection.h"
#include "drawing/BitmapContext.h"
#include "operations/DrawnStroke.h"
#include "operations/ToolActions.h"
#include "tools/BrushTip.h"
#include "tools/StrokeGeometry.h"

namespace zp
{

namespace
{

void drawPencil(BitmapView pixels, int x, int y, const BezierPath& path, const BezierPath* clip, Color color)
{
    AffineTransform shift;
    shift.translate(-x, -y);
    BitmapContext context(pixels);
    context.concat(shift);
    if (clip) context.addClip(*clip);
    context.setColor(color);
    context.stroke(path);
}

/// Makes what @p path strokes transparent, as far as the selection lets it. Only the stroke's own box is worked on.
void erase(BitmapView pixels, int x, int y, const BezierPath& path, const BezierPath* clip)
{
    const BezierPath outline = clip ? inPart(*clip, x, y) : BezierPath();
    const StrokeMask mask = maskOfStroke(inPart(path, x, y), clip ? &outline : nullptr, pixels.width, pixels.height);
    if (!mask.box.isEmpty()) eraseThroughMask(pixels.part(mask.box), mask.view());
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
