// SPDX-License-Identifier: GPL-3.0-or-later
/// The mouse with the clone stamp: pixels from elsewhere under a round tip.
#include "desktop/KeyModifiers.h"
#include "document/Gesture.h"
#include "document/Paint.h"
#include "document/Picture.h"
#include "document/Selection.h"
#include "drawing/BitmapContext.h"
#include "operations/ToolActions.h"
#include <cmath>
#include <cstring>
#include <new>

namespace zp
{

void tool::pressCloneStamp(Edit& edit, Point point)
{
    if (currentKeyModifiers() & kOptionKey)
        edit.gesture().setReference(point);
    else
        edit.gesture().setStampOrigin(point);
}

void tool::dragCloneStamp(Edit& edit, Point point)
{
    Gesture& gesture = edit.gesture();
    if (gesture.isReferenceClick() || !edit.picture().bitmap()) return; // a hand that trembles must not paint
    const float size = edit.paint().size(), radius = size * 0.5f;
    const int width = edit.picture().width(), height = edit.picture().height();
    const Rect tip = makeRect(point.x - radius, point.y - radius, size, size);
    const PixelBox box = pixelBoxOf(tip, width, height);
    // By whole pixels: a fraction would blur what is copied a little more with each stamp.
    const Point way = gesture.pt1() - gesture.cloneReference();
    const float dx = std::round(way.x), dy = std::round(way.y);
    const PixelBox source = pixelBoxOf(box.rect().offset(-dx, -dy), width, height);
    if (box.isEmpty() || source.isEmpty()) return;
    if (!edit.selection().isNil() && !intersects(tip, edit.selection().bounds())) return;

    // The source as it is now: tip and source may overlap.
    std::shared_ptr<BitmapRep>& copy = gesture.cloneSource();
    if (!copy || copy->pixelsWide() < source.width() || copy->pixelsHigh() < source.height())
        copy = BitmapRep::createUninitialized(source.width(), source.height());
    if (!copy || !edit.keepBefore(box)) throw std::bad_alloc();
    const BitmapView pixels = edit.write(box);
    BitmapView from = copy->view();
    from.width = source.width(), from.height = source.height();
    for (int y = 0; y < from.height; ++y)
        std::memcpy(from.rowData(y), pixels.pixel(source.x0, source.y0 + y), std::size_t(from.width) * 4);

    BitmapContext context(pixels);
    context.addClip(BezierPath::withOvalInRect(tip));
    if (const BezierPath* outline = edit.selection().outline()) context.addClip(*outline);
    context.drawImageAt(from, {float(source.x0) + dx, float(source.y0) + dy}, CompositingOperation::SourceOver,
                        edit.paint().opacity());
    gesture.noteStamped();
    edit.redraw(tip.inset(-size));
}

void tool::releaseCloneStamp(Edit& edit, Point)
{
    // What the press was decides, not the keys that are held now: a step exactly when pixels were stamped.
    if (!edit.gesture().isReferenceClick() && edit.gesture().hasStamped()) edit.wantStep(true);
}

} // namespace zp
