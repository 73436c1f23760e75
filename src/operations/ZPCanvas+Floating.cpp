// SPDX-License-Identifier: GPL-3.0-or-later
/// The floating selection: lifted, scaled and turned, adjusted, anchored.
#include "base/ProjectiveTransform.h"
#include "desktop/KeyModifiers.h"
#include "desktop/Sounds.h"
#include "document/Gesture.h"
#include "document/Paint.h"
#include "document/Picture.h"
#include "document/Selection.h"
#include "document/View.h"
#include "operations/Commands.h"
#include "operations/SelectedPixels.h"
#include <QCoreApplication>
#include <array>
#include <cmath>
#include <new>

namespace zp
{

bool liftSelection(Edit& edit)
{
    // What floats is a shape that is done: a later click would be a corner of it.
    if (edit.gesture().polygonIsOpen()) operations::endPolygon(edit, {});
    if (!edit.selection().lift(edit.picture())) {
        const Rect box = edit.selection().bounds();
        if (!box.isEmpty() && intersects(box, edit.picture().bounds())) throw std::bad_alloc();
        edit.refuse(); // an outline without area
        return false;
    }
    playSound("Pop");
    edit.redraw();
    return true;
}

void operations::floatSelection(Edit& edit, const Arguments&)
{
    if (!edit.selection().isNil() && edit.picture().bitmap()) liftSelection(edit);
}

void operations::anchorSelection(Edit& edit, const Arguments&)
{
    Selection& selection = edit.selection();
    if (selection.isNil() || !selection.floating()) return edit.wantStep(false);
    const PixelBox box = pixelBoxOf(selection.bounds().inset(-1), edit.picture().width(), edit.picture().height());
    selection.anchor(edit.write(box), edit.paint().opacity());
    if (!(currentKeyModifiers() & kShiftKey)) selection.drop();
    edit.redraw();
    playSound("Pop");
}

void operations::anchorOrFloatSelection(Edit& edit, const Arguments& none)
{
    if (edit.selection().floating()) return anchorSelection(edit, none);
    floatSelection(edit, none);
    edit.wantStep(false);
}

void operations::transform(Edit& edit, const Arguments& none)
{
    if (!edit.selection().floating()) floatSelection(edit, none);
    edit.selection().setTransforming(false);
}

void operations::transform_set(Edit& edit, const Arguments& values)
{
    float scale = values.number(0), rotate = values.number(1);
    if (scale == -1 && rotate == -1) scale = 1, rotate = 0;
    if (!std::isfinite(scale) || !std::isfinite(rotate)) return edit.refuse();
    // A scale of nothing would flatten the outline for good: no later step could bring it back. The rotation holds.
    if (scale == 0) {
        scale = edit.selection().record().scale;
        edit.refuse();
    }
    edit.selection().transform(scale, rotate);
    edit.redraw();
}

void operations::transform_corners(Edit& edit, const Arguments& values)
{
    std::array<Point, 4> pulls;
    for (std::size_t i = 0; i < 4; ++i) pulls[i] = {values.number(2 * i), values.number(2 * i + 1)};
    edit.redraw(edit.selection().bounds().inset(-2));
    if (!edit.selection().pullCorners(pulls)) return edit.refuse();
    edit.redraw(edit.selection().bounds().inset(-2));
}

void operations::straightenCorners(Edit& edit, const Arguments& none)
{
    Selection& selection = edit.selection();
    if (edit.gesture().polygonIsOpen()) endPolygon(edit, none);
    if (!selection.hasFourCorners())
        return edit.refuse(
            QCoreApplication::translate("Corners", "The selection does not have four corners."),
            QCoreApplication::translate(
                "Corners",
                "With Polygon beside the lasso, click the corners of what is to become upright one by one."));
    const auto pulls = selection.straighteningPulls();
    if (pulls && !selection.floating()) floatSelection(edit, none);
    edit.redraw(selection.bounds().inset(-2));
    if (!pulls || !selection.pullCorners(*pulls))
        return edit.refuse(QCoreApplication::translate("Corners", "The selection could not be made upright."),
                           QCoreApplication::translate("Corners", "It is seen from too far aside."));
    edit.redraw(selection.bounds().inset(-2));
}

void operations::resetCorners(Edit& edit, const Arguments&) { transform_corners(edit, {}); }

void operations::adjust(Edit& edit, const Arguments& none)
{
    if (!edit.selection().floating()) floatSelection(edit, none);
}

void operations::adjust_set(Edit& edit, const Arguments& values)
{
    Floating* floating = edit.selection().floating();
    if (!floating) return edit.refuse();
    const auto whole = [&values](std::size_t i) { return std::int32_t(std::lround(values.number(i))); };
    switch (floating->adjust({whole(0), whole(1), whole(2), whole(3), whole(4)}, !edit.view().isOnScreen())) {
    case Floating::Adjusting::Done:
        break;
    case Floating::Adjusting::Impossible:
        return edit.refuse();
    case Floating::Adjusting::NoMemory:
        return edit.refuse(QCoreApplication::translate("Adjust", "The selection could not be adjusted."),
                           QCoreApplication::translate("Adjust", "There is not enough memory."));
    }
    edit.redraw(edit.selection().bounds().inset(-2));
}

} // namespace zp
