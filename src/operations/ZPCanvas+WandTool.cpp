// SPDX-License-Identifier: GPL-3.0-or-later
/// The mouse with the magic wand: the press selects, and where it explains itself, a drag changes the tolerance.
#include "base/Log.h"
#include "desktop/KeyModifiers.h"
#include "document/Document.h"
#include "document/Gesture.h"
#include "document/Paint.h"
#include "document/Picture.h"
#include "document/Selection.h"
#include "document/View.h"
#include "operations/PixelAccess.h"
#include "operations/SelectedPixels.h"
#include "operations/ToolActions.h"
#include "operations/WandPreview.h"
#include "tools/FillSeed.h"

namespace zp
{

namespace
{

void selectByWand(Edit& edit, Point point, bool adding)
{
    Selection& selection = edit.selection();
    markByWand(edit, pixelUnder(point), adding);
    logLine("magicWand done");
    selection.selectTraced(tracedMask(selection));
    logLine("ZPPathBuilder done");
    edit.redraw();
}

std::optional<WandPress> pressAt(Edit& edit, Point point, bool adding)
{
    const std::optional<PixelPoint> seed = fillSeed(pixelUnder(point), edit.picture().box());
    if (!edit.view().explainsWand() || !seed) return std::nullopt;
    const Selection& selection = edit.selection();
    const SelectionMask& mask = selection.mask();
    const bool joins = selection.parked() != nullptr;
    const int setting = edit.paint().toleranceSetting();
    return WandPress{.at = point,
                     .target = wordUnder(edit.picture().pixels(), pixelUnder(point)),
                     .settingBefore = setting,
                     .setting = setting,
                     .adding = adding,
                     .joins = joins,
                     // Marks in the mask that belong to no outline count for Shift, once.
                     .repeatable = !adding || joins || (mask.isClear() && mask.at(seed->x, seed->y) != 0)};
}

} // namespace

void tool::pressWand(Edit& edit, Point point)
{
    Selection& selection = edit.selection();
    if (selection.contains(point)) return startMoving(edit, point);
    edit.gesture().openPolygon(false);
    const bool adding = currentKeyModifiers() & kShiftKey;
    if (!adding && !selection.parked()) selection.beginShape();
    edit.gesture().setWandPress(pressAt(edit, point, adding));
    selectByWand(edit, point, adding);
}

void tool::dragWand(Edit& edit, Point point)
{
    Gesture& gesture = edit.gesture();
    if (gesture.isMoving() || !gesture.wandPress()) return moveSelection(edit, point);
    WandPress press = *gesture.wandPress();
    const double points = double(point.x - press.at.x) * double(edit.view().effectiveZoom());
    const int setting = toleranceOfDrag(press.settingBefore, points);
    if (setting == press.setting || !press.repeatable) return;
    press.setting = setting;
    gesture.setWandPress(press);
    edit.document().setToleranceSetting(setting);
    selectByWand(edit, press.at, press.adding && press.joins);
}

void tool::releaseWand(Edit& edit, Point)
{
    // Joined with what was selected before, the outline is no longer what the wand marked.
    Selection& selection = edit.selection();
    Gesture& gesture = edit.gesture();
    if (gesture.isMoving() || selection.isNil()) return;
    selection.renderedMask();
    if (std::optional<WandPress> press = gesture.wandPress()) {
        // Cut from what was there before: what lies outside need not be what the wand left out.
        if (press->joins && !(currentKeyModifiers() & kShiftKey)) return gesture.setWandPress(std::nullopt);
        press->result = selection.version();
        press->pixels = edit.picture().writes();
        gesture.setWandPress(press);
    }
}

} // namespace zp
