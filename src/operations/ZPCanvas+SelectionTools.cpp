// SPDX-License-Identifier: GPL-3.0-or-later
/// The mouse with the tools that select: rectangle and oval, lasso, magic wand; and moving what is selected.
#include "base/Log.h"
#include "desktop/KeyModifiers.h"
#include "desktop/Sounds.h"
#include "operations/ToolActions.h"
#include "selection/ZPPathBuilder.h"

using namespace zp;

namespace
{

/// Fewer elements than this enclose nothing.
constexpr int kLeastLassoElements = 3;

/// The press cannot act: a cue, no gesture, and the outline that was set aside comes back.
void refusePress(ZPCanvas& canvas)
{
    toolState(canvas).gestureTool = -1;
    if (canvas.mAuxSelectionPath) {
        canvas.mSelectionPath = std::exchange(canvas.mAuxSelectionPath, std::nullopt);
        ++canvas.mSelectionPathVersion;
    }
    beep();
}

} // namespace

void ZPToolActions::startMove(ZPCanvas& canvas, Point point)
{
    canvas.mPt1 = point;
    canvas.mMove = true;
    const std::uint32_t keys = currentKeyModifiers();
    if (!(keys & kCommandKey)) return;
    canvas.floatSelection();
    if (keys & kShiftKey) canvas.clearSelection();
}

void ZPToolActions::moveSelection(ZPCanvas& canvas, Point point)
{
    if (!canvas.mMove || !canvas.mSelectionPath) return;
    const Point step = point - canvas.mPt1;
    AffineTransform shift;
    shift.translate(step.x, step.y);
    canvas.mSelectionPath->transform(shift);
    ++canvas.mSelectionPathVersion;
    canvas.mTransformRecord.position = canvas.mTransformRecord.position + step;
    canvas.mPt1 = point;
    canvas.setNeedsDisplay();
}

void ZPToolActions::dropSelectionWithSound(ZPCanvas& canvas)
{
    canvas.mSelectionPath.reset();
    ++canvas.mSelectionPathVersion;
    if (!canvas.mSelectionMaskClear) canvas.clearSelectionMask();
    playSound("Frog");
}

// ---- rectangle, square, oval ----------------------------------------------------------------------------------------

void ZPToolActions::pressRectangle(ZPCanvas& canvas, Point point)
{
    if (hitsSelection(canvas, point)) return startMove(canvas, point);
    canvas.mSelectionImage.reset();
    canvas.mSelectionPath.reset();
    ++canvas.mSelectionPathVersion;
    canvas.mPt1 = canvas.mPt2 = point;
    canvas.mMove = false;
    canvas.mPolygonLasso = false;
    canvas.setNeedsDisplay();
}

void ZPToolActions::dragRectangle(ZPCanvas& canvas, Point point)
{
    if (canvas.mMove) return moveSelection(canvas, point);
    // Whether or not a redraw comes between two events, the outline is that of the last one.
    canvas.updateGestureOutlines();
    ++canvas.mSelectionPathVersion;
    canvas.setNeedsDisplay();
}

void ZPToolActions::releaseRectangle(ZPCanvas& canvas, Point)
{
    if (canvas.mMove) return;
    logLine("%f  %f", double(canvas.mPt1.x), double(canvas.mPt1.y));
    logLine("%f  %f", double(canvas.mPt2.x), double(canvas.mPt2.y));
    if (canvas.mPt1 == canvas.mPt2) dropSelectionWithSound(canvas);
    canvas.clearSelectionMask();
    canvas.selectionPathToMask();
}

// ---- lasso ----------------------------------------------------------------------------------------------------------

void ZPToolActions::pressLasso(ZPCanvas& canvas, Point point)
{
    if (!canvas.mDrawFinishedFlag) return refusePress(canvas);
    if (canvas.mSelectionPath) {
        if (canvas.mPolygonLasso) {
            // A click is a corner of the polygon whenever the outline that ends there holds it, and an outline holds
            // its own border: so every click is one, wherever it falls. Return or Escape ends the polygon.
            canvas.mSelectionPath->lineTo(point);
            ++canvas.mSelectionPathVersion;
            canvas.setNeedsDisplay();
            return startMove(canvas, point);
        }
        if (canvas.mSelectionPath->contains(point)) return startMove(canvas, point);
    }
    canvas.mSelectionImage.reset();
    if (!canvas.mSelectionMaskClear) canvas.clearSelectionMask();
    canvas.mSelectionPath = BezierPath();
    canvas.mSelectionPath->moveTo(point);
    canvas.mPolygonLasso = currentKeyModifiers() & kControlKey;
    if (canvas.mPolygonLasso) canvas.mSelectionPath->lineTo(point);
    ++canvas.mSelectionPathVersion;
    canvas.mMove = false;
    canvas.setNeedsDisplay();
}

void ZPToolActions::dragLasso(ZPCanvas& canvas, Point point)
{
    if (canvas.mMove) return moveSelection(canvas, point);
    if (!canvas.mSelectionPath) return;
    canvas.mSelectionPath->lineTo(point);
    ++canvas.mSelectionPathVersion;
    canvas.setNeedsDisplay();
}

void ZPToolActions::releaseLasso(ZPCanvas& canvas, Point)
{
    if (canvas.mMove || canvas.mPolygonLasso) return;
    if (canvas.mSelectionPath) canvas.mSelectionPath->closePath();
    const int count = canvas.mSelectionPath ? canvas.mSelectionPath->elementCount() : 0;
    logLine("%i", count);
    if (count < kLeastLassoElements) return dropSelectionWithSound(canvas);
    ++canvas.mSelectionPathVersion;
    canvas.clearSelectionMask();
    canvas.selectionPathToMask();
}

// ---- magic wand -----------------------------------------------------------------------------------------------------

void ZPToolActions::pressWand(ZPCanvas& canvas, Point point)
{
    if (hitsSelection(canvas, point)) return startMove(canvas, point);
    canvas.mPolygonLasso = false;
    canvas.mSelectionImage.reset();
    if (!(currentKeyModifiers() & kShiftKey)) canvas.clearSelectionMask();
    canvas.magicWandFast(point);
    logLine("magicWand done");
    ConstMaskView mask;
    if (canvas.mBitmapRep && canvas.mSelectionMaskData) {
        const int width = canvas.mBitmapRep->pixelsWide();
        mask = {canvas.mSelectionMaskData.get(), width, canvas.mBitmapRep->pixelsHigh(), width};
    }
    BezierPath outline = ZPPathBuilder(mask).path();
    AffineTransform upOne; // traced outlines lie one pixel low
    upOne.translate(0, -1);
    outline.transform(upOne);
    canvas.mSelectionPath = std::move(outline);
    ++canvas.mSelectionPathVersion;
    logLine("ZPPathBuilder done");
    canvas.mMove = false;
    canvas.setNeedsDisplay();
}
