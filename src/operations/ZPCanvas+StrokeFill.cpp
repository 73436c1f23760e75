// SPDX-License-Identifier: GPL-3.0-or-later
/// The two commands that paint the selection's outline or its inside.
#include "canvas/ZPCanvas.h"
#include "desktop/Sounds.h"
#include "drawing/BitmapContext.h"
#include "operations/ToolActions.h"

using namespace zp;

void ZPCanvas::stroke()
{
    if (!mSelectionPath) return beep();
    waitForWorkers(); // a brush stroke still being drawn would write the same pixels
    const float z = effectiveZoom();
    const int width = int(mSelectionPath->lineWidth()); // cut to a whole number on purpose: that is what comes back
    mSelectionPath->setLineWidth(mSize);
    mSelectionPath->setLineDash(std::array{0.0f, 0.0f}, 0);
    if (const std::shared_ptr<BitmapRep> bitmap = drawingBitmap(*this)) {
        BitmapContext context(bitmap->view());
        context.setColor(mColor);
        context.stroke(*mSelectionPath);
    }
    mSelectionPath->setLineWidth(float(width));
    mSelectionPath->setLineDash(std::array{5 / z, 5 / z}, mSelectionPhase / z);
    setNeedsDisplay();
    takeSnapshot();
}

void ZPCanvas::fill()
{
    if (!mSelectionPath) return beep();
    waitForWorkers();
    mSelectionPath->setWindingRule(WindingRule::EvenOdd); // stays, so that later fills leave the same holes
    if (const std::shared_ptr<BitmapRep> bitmap = drawingBitmap(*this)) {
        BitmapContext context(bitmap->view());
        context.setColor(mColor);
        context.fill(*mSelectionPath);
    }
    setNeedsDisplay();
    takeSnapshot();
}
