// SPDX-License-Identifier: GPL-3.0-or-later
/// The selection as a whole: all, none, inverse, back again, nudged; ending a polygon; and the mask by itself.
#include "base/PathText.h"
#include "desktop/Sounds.h"
#include "document/Document.h"
#include "document/Gesture.h"
#include "document/Picture.h"
#include "document/Selection.h"
#include "operations/Commands.h"
#include "operations/SelectedPixels.h"
#include "selection/MaskOps.h"

namespace zp
{

void operations::selectAll(Edit& edit, const Arguments&)
{
    edit.selection().select(BezierPath::withRect(edit.picture().bounds()));
    edit.redraw();
}

void operations::selectRectangle(Edit& edit, const Arguments& arguments)
{
    const Rect box = makeRect(arguments.number(0), arguments.number(1), arguments.number(2), arguments.number(3));
    if (!edit.picture().bitmap() || !(box.size.width > 0) || !(box.size.height > 0)) return edit.refuse();
    edit.selection().select(BezierPath::withRect(box));
    edit.gesture().openPolygon(false);
    edit.redraw();
    edit.reveal(box);
}

void operations::selectOutline(Edit& edit, const Arguments& arguments)
{
    std::optional<BezierPath> outline = pathOfText(arguments.path);
    if (!outline || !edit.picture().bitmap()) return edit.refuse();
    edit.selection().select(std::move(*outline));
    edit.gesture().openPolygon(false);
    edit.redraw();
}

void operations::marqueeRule(Edit& edit, const Arguments& arguments)
{
    const int kind = std::clamp(int(arguments.number(0)), 0, int(MarqueeRule::FixedSize));
    edit.document().setMarqueeRule({MarqueeRule::Kind(kind), arguments.number(1), arguments.number(2)});
}

void operations::selectNone(Edit& edit, const Arguments&)
{
    edit.selection().drop();
    edit.gesture().openPolygon(false);
    edit.redraw();
}

void operations::selectNoneWithSound(Edit& edit, const Arguments& none)
{
    selectNone(edit, none);
    playSound("Frog");
}

void operations::selectInverse(Edit& edit, const Arguments&)
{
    Selection& selection = edit.selection();
    SelectionMask& mask = selection.rawMask();
    mask.clearInverted();
    selection.setEvenOdd();
    mask.renderInverted(*selection.outline());
    selection.selectTraced(tracedMask(selection));
    // Pixels that were partly selected are inside the traced outline: the mask follows.
    mask.clear();
    selection.renderedMask();
    selection.marchAnts();
    edit.redraw();
}

void operations::reselect(Edit& edit, const Arguments&)
{
    edit.selection().reselect();
    edit.redraw();
}

void operations::nudge(Edit& edit, const Arguments& step)
{
    if (edit.selection().isNil()) return;
    edit.selection().move({step.number(0), step.number(1)});
    edit.redraw();
}

void operations::endPolygon(Edit& edit, const Arguments&)
{
    edit.gesture().openPolygon(false);
    edit.selection().closePolygon();
    edit.selection().combine(edit.selection().parkedFor());
    edit.redraw();
}

void operations::dropPolygon(Edit& edit, const Arguments&)
{
    edit.gesture().openPolygon(false);
    if (edit.selection().parked()) {
        edit.selection().unpark();
        edit.selection().marchAnts();
    } else {
        edit.selection().drop();
    }
    edit.redraw();
    playSound("Frog");
}

// ---- the mask by itself ---------------------------------------------------------------------------------------------

void operations::clearSelectionMask(Edit& edit, const Arguments&) { edit.selection().rawMask().clear(); }

void operations::clearSelectionMaskINVERT(Edit& edit, const Arguments&) { edit.selection().rawMask().clearInverted(); }

void operations::selectionPathToMask(Edit& edit, const Arguments&)
{
    Selection& selection = edit.selection();
    if (selection.isNil()) return;
    selection.setEvenOdd();
    selection.rawMask().render(*selection.outline());
}

void operations::selectionPathToMaskINVERT(Edit& edit, const Arguments&)
{
    Selection& selection = edit.selection();
    if (selection.isNil()) return;
    selection.setEvenOdd();
    selection.rawMask().renderInverted(*selection.outline());
}

void operations::inverseMask(Edit& edit, const Arguments&) { edit.selection().rawMask().invert(); }

void operations::makeSelection(Edit& edit, const Arguments&)
{
    // The rows are those of the graphics world: the same memory as the bitmap.
    tintUnselected(edit.writeAll(), edit.selection().rawMask().bytes());
}

} // namespace zp
