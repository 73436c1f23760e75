// SPDX-License-Identifier: GPL-3.0-or-later
/// The mouse with the tools that select: rectangle and oval, lasso, magic wand; and moving what is selected.
#include "base/Log.h"
#include "desktop/KeyModifiers.h"
#include "desktop/Sounds.h"
#include "document/Document.h"
#include "document/Gesture.h"
#include "document/Picture.h"
#include "document/Selection.h"
#include "operations/SelectedPixels.h"
#include "operations/ToolActions.h"

namespace zp
{

namespace
{

/// Fewer elements than this, the closing one included, enclose nothing.
constexpr int kLeastLassoElements = 4;

/// Nothing was enclosed. @param reselectable  an outline that is there was one before the gesture
void dropWithSound(Edit& edit, bool reselectable)
{
    edit.selection().endWithoutShape(reselectable);
    playSound("Frog");
}

/// What a new shape leaves behind: its mask.
void renderMask(Edit& edit)
{
    edit.selection().rawMask().clear();
    edit.selection().renderedMask();
}

} // namespace

void startMoving(Edit& edit, Point point)
{
    edit.gesture().startMoving(point);
    const std::uint32_t keys = currentKeyModifiers();
    Selection& selection = edit.selection();
    // What floats already is moved: lifting again would take what lies under it.
    if (!(keys & kCommandKey) || selection.floating()) return;
    if (!liftSelection(edit) || !(keys & kShiftKey)) return;
    edit.keepBefore(pixelBoxOf(selection.bounds().inset(-1), edit.picture().width(), edit.picture().height()));
    clearInsideSelection(edit);
    selection.floating()->markChanged(); // the picture does not have these pixels any more
    edit.gesture().noteLiftedHole();
}

void tool::moveSelection(Edit& edit, Point point)
{
    Gesture& gesture = edit.gesture();
    if (!gesture.isMoving() || edit.selection().isNil()) return;
    edit.selection().move(point - gesture.pt1());
    gesture.setPress(point);
    edit.redraw();
}

// ---- rectangle, square, oval ----------------------------------------------------------------------------------------

void tool::pressRectangle(Edit& edit, Point point)
{
    if (edit.selection().contains(point)) return startMoving(edit, point);
    edit.selection().beginShape();
    edit.gesture().setBoth(point);
    edit.gesture().openPolygon(false);
    edit.redraw();
}

void tool::dragRectangle(Edit& edit, Point point)
{
    if (edit.gesture().isMoving()) return moveSelection(edit, point);
    // Whether or not a redraw comes between two events, the outline is that of the last one.
    edit.document().shapeMarquee();
    edit.redraw();
}

void tool::releaseRectangle(Edit& edit, Point)
{
    const Gesture& gesture = edit.gesture();
    if (gesture.isMoving()) return;
    logLine("%f  %f", double(gesture.pt1().x), double(gesture.pt1().y));
    logLine("%f  %f", double(gesture.pt2().x), double(gesture.pt2().y));
    if (gesture.pt1() == gesture.pt2()) dropWithSound(edit, true);
    renderMask(edit);
}

// ---- lasso ----------------------------------------------------------------------------------------------------------

void tool::pressLasso(Edit& edit, Point point)
{
    Selection& selection = edit.selection();
    Gesture& gesture = edit.gesture();
    if (gesture.polygonIsOpen() && !selection.isNil()) {
        // A click is a corner of the polygon whenever the outline that ends there holds it, and an outline holds its
        // own border: so every click is one, wherever it falls. Return or Escape ends the polygon.
        selection.extendShape(point);
        edit.redraw();
        return startMoving(edit, point);
    }
    if (selection.contains(point)) return startMoving(edit, point);
    selection.beginShape();
    BezierPath outline;
    outline.moveTo(point);
    gesture.openPolygon(currentKeyModifiers() & kControlKey);
    if (gesture.polygonIsOpen()) outline.lineTo(point);
    selection.shape(std::move(outline));
    edit.redraw();
}

void tool::dragLasso(Edit& edit, Point point)
{
    if (edit.gesture().isMoving()) return moveSelection(edit, point);
    edit.selection().extendShape(point);
    edit.redraw();
}

void tool::releaseLasso(Edit& edit, Point)
{
    Selection& selection = edit.selection();
    if (edit.gesture().isMoving() || edit.gesture().polygonIsOpen()) return;
    selection.closeShape();
    const int count = selection.isNil() ? 0 : selection.outline()->elementCount();
    logLine("%i", count);
    if (count < kLeastLassoElements) return dropWithSound(edit, false);
    renderMask(edit);
}

} // namespace zp
