// SPDX-License-Identifier: GPL-3.0-or-later
/// The two commands that paint the selection's outline or its inside.
#include "document/Paint.h"
#include "document/Picture.h"
#include "document/Selection.h"
#include "document/View.h"
#include "drawing/BitmapContext.h"
#include "operations/Commands.h"

namespace zp
{

void operations::stroke(Edit& edit, const Arguments&)
{
    Selection& selection = edit.selection();
    const float zoom = edit.view().effectiveZoom();
    const int width =
        int(selection.outline()->lineWidth()); // cut to a whole number on purpose: that is what comes back
    selection.setLineStyle(edit.paint().size(), 0, 0);
    const PixelBox box =
        pixelBoxOf(strokeBounds(*selection.outline()), edit.picture().width(), edit.picture().height());
    if (const BitmapView pixels = edit.write(box); !pixels.isEmpty()) {
        BitmapContext context(pixels);
        context.setColor(edit.paint().color());
        context.stroke(*selection.outline());
    }
    selection.setLineStyle(float(width), 5 / zoom, selection.phase() / zoom);
}

void operations::fill(Edit& edit, const Arguments&)
{
    Selection& selection = edit.selection();
    selection.setEvenOdd(); // stays, so that later fills leave the same holes
    const PixelBox box = pixelBoxOf(selection.bounds().inset(-1), edit.picture().width(), edit.picture().height());
    if (const BitmapView pixels = edit.write(box); !pixels.isEmpty()) {
        BitmapContext context(pixels);
        context.setColor(edit.paint().color());
        context.fill(*selection.outline());
    }
}

} // namespace zp
