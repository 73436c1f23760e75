// SPDX-License-Identifier: GPL-3.0-or-later
/// The mouse with the remove brush: what it was drawn over is filled from its surroundings when the button is let go.
#include "document/Document.h"
#include "document/Gesture.h"
#include "document/Paint.h"
#include "document/Picture.h"
#include "document/Selection.h"
#include "drawing/BitmapContext.h"
#include "operations/DrawnStroke.h"
#include "operations/SmartFillHook.h"
#include "operations/ToolActions.h"
#include <memory>

namespace zp
{

namespace
{

/// Over the picture while it is drawn; what is beneath can still be seen.
constexpr Color kMark{0.9f, 0.1f, 0.1f, 0.5f};

} // namespace

void tool::pressRemove(Edit& edit, Point point)
{
    // One fill at a time: what the last stroke fills may be what this one has to look at.
    if (edit.document().isComputing() || !smartFillHook()) {
        edit.gesture().refuse();
        return edit.refuse();
    }
    pressPencil(edit, point);
}

void tool::releaseRemove(Edit& edit, Point point)
{
    const Picture& picture = edit.picture();
    auto mask = std::make_shared<StrokeMask>(
        maskOfStroke(finishedStroke(edit, point), edit.selection().outline(), picture.width(), picture.height()));
    // The box of what is covered: a clip may leave little of the stroke's. A pixel that is partly covered is part of
    // the thing: were it left as a source, the thing's edge would grow back.
    PixelBox covered;
    for (int y = 0; y < mask->box.height(); ++y) {
        std::uint8_t* const row = mask->view().row(y);
        for (int x = 0; x < mask->box.width(); ++x) {
            row[x] = row[x] == 255 ? 0 : 255;
            if (row[x]) covered.include(mask->box.x0 + x, mask->box.y0 + y);
        }
    }
    if (covered.isEmpty()) return edit.refuse();
    edit.afterwards([&document = edit.document(), mask, covered] {
        smartFillHook()(document, {.mask = mask->view(),
                                   .maskOrigin = {mask->box.x0, mask->box.y0},
                                   .bounds = covered.rect(),
                                   .atOnce = true});
    });
}

void tool::previewRemove(const Document& document, BitmapView pixels, int x, int y)
{
    AffineTransform shift;
    shift.translate(-x, -y);
    BitmapContext context(pixels);
    context.concat(shift);
    if (document.selection().outline()) context.addClip(*document.selection().outline());
    context.setColor(kMark);
    context.stroke(strokeSoFar(document));
}

} // namespace zp
