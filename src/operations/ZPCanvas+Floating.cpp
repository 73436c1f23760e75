// SPDX-License-Identifier: GPL-3.0-or-later
/// The floating selection: lifted, scaled and turned, anchored.
#include "base/Log.h"
#include "canvas/ZPCanvas.h"
#include "desktop/Sounds.h"
#include "drawing/BitmapContext.h"
#include "imageops/Adjustment.h"
#include "selection/FloatingImage.h"

using namespace zp;

namespace
{

/// What a picture of several representations is drawn from, for the log.
void logRepresentations(const Image& image)
{
    if (image.representations().size() < 2) return;
    logLine("more than one rep");
    for (const ImageRepresentation& r : image.representations())
        if (r.filtered) return logLine("CIImageRep drawn");
}

} // namespace

AffineTransform ZPCanvas::floatingPlacement() const { return zp::floatingPlacement(mTransformRecord); }

void ZPCanvas::floatSelection()
{
    if (!mSelectionPath || !mBitmapRep) return;
    finishStroke(); // what is lifted must be painted to the end
    const Rect box = mSelectionPath->bounds();
    std::shared_ptr<Image> lifted = liftFloatingImage(std::as_const(*mBitmapRep).view(), box);
    if (!lifted) return beep(); // an outline without area, or no memory
    mSelectionImage = std::move(lifted);
    playSound("Pop");
    mTransformRecord = floatingRecord(box);
}

void ZPCanvas::anchorSelection()
{
    if (!mSelectionPath || !mSelectionImage) return;
    waitForWorkers();
    if (mImage && !mImage->representations().empty()) {
        finishPendingAdjustment(*this);
        logRepresentations(*mSelectionImage);
        BitmapContext context(mImage->representations().front().bitmap->view());
        context.addClip(*mSelectionPath);
        if (mPasteIntoSelectionPath) context.addClip(*mPasteIntoSelectionPath);
        drawFloating(context, *mSelectionImage, mTransformRecord, mColor.alpha);
    }
    mSelectionImage.reset();
    if (!(currentKeyModifiers() & kShiftKey)) {
        mSelectionPath.reset();
        ++mSelectionPathVersion;
        if (!mSelectionMaskClear) clearSelectionMask();
        stopSelectionTimer();
    }
    mPasteIntoSelectionPath.reset();
    showSelectionInfo();
    setNeedsDisplay();
    playSound("Pop");
    takeSnapshot();
}

void ZPCanvas::anchorOrFloatSelection() { mSelectionImage ? anchorSelection() : floatSelection(); }

ZPCanvas::TransformValues ZPCanvas::transform()
{
    if (!mSelectionImage) floatSelection();
    mTransform = false;
    return {mTransformRecord.scale, mTransformRecord.rotate};
}

void ZPCanvas::transform_set(float scale, float rotate)
{
    if (scale == -1 && rotate == -1) scale = 1, rotate = 0;
    // A scale of nothing would flatten the outline for good: no later step could bring it back.
    if (scale == 0 || !std::isfinite(scale) || !std::isfinite(rotate)) return;
    const AffineTransform step = floatingStep(mTransformRecord, scale, rotate);
    mTransformRecord.scale = scale;
    mTransformRecord.rotate = rotate;
    if (mSelectionPath) {
        mSelectionPath->transform(step);
        ++mSelectionPathVersion;
    }
    setNeedsDisplay();
    displayNow();
    showSelectionInfo();
}

void ZPCanvas::applyTransform() { mTransform = false; }

void ZPCanvas::dontApplyTransform()
{
    if (!mTransform) mTransform = false; // a free transform in progress goes on
}

void ZPCanvas::applyTransform_2() {}
