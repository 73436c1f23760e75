// SPDX-License-Identifier: GPL-3.0-or-later
/// The selection as a whole: its mask, the commands all, none and inverse, combining, the ants' clock, menu rules.
#include "canvas/ZPCanvas.h"
#include "desktop/Pasteboard.h"
#include "desktop/Sounds.h"
#include "selection/MaskOps.h"
#include "selection/PathBooleans.h"
#include "selection/ZPPathBuilder.h"
#include <QLabel>
#include <chrono>

using namespace zp;

namespace
{

constexpr std::chrono::milliseconds kAntsStep{200};

MaskView maskOf(ZPCanvas& canvas)
{
    if (!canvas.mBitmapRep || !canvas.mSelectionMaskData) return {};
    const int width = canvas.mBitmapRep->pixelsWide();
    return {canvas.mSelectionMaskData.get(), width, canvas.mBitmapRep->pixelsHigh(), width};
}

} // namespace

void ZPCanvas::createSelectionMask()
{
    releaseSelectionMask();
    if (!mBitmapRep) return;
    const int width = mBitmapRep->pixelsWide(), height = mBitmapRep->pixelsHigh();
    mSelectionMaskData = allocatePixelsUninitialized(std::size_t(width) * std::size_t(height));
    if (!mSelectionMaskData) return;
    mSelectionMask = ConstMaskView{mSelectionMaskData.get(), width, height, width};
    clearSelectionMask();
}

void ZPCanvas::releaseSelectionMask()
{
    mSelectionMask.reset();
    mSelectionMaskData.reset();
}

void ZPCanvas::clearSelectionMask()
{
    fillMask(maskOf(*this), kNotSelected);
    mSelectionMaskClear = true;
}

void ZPCanvas::clearSelectionMaskINVERT()
{
    fillMask(maskOf(*this), kSelected);
    mSelectionMaskClear = true; // known to hold one value only, though the other one
}

void ZPCanvas::selectionPathToMask()
{
    if (!mSelectionPath) return;
    mSelectionPath->setWindingRule(WindingRule::EvenOdd); // and it stays so
    renderPathInMask(maskOf(*this), *mSelectionPath, kSelected);
}

void ZPCanvas::selectionPathToMaskINVERT()
{
    if (!mSelectionPath) return;
    mSelectionPath->setWindingRule(WindingRule::EvenOdd);
    renderPathInMask(maskOf(*this), *mSelectionPath, kNotSelected);
}

void ZPCanvas::selectAll()
{
    mPasteIntoSelectionPath.reset();
    mSelectionImage.reset();
    mSelectionPath.reset();
    if (!mSelectionMaskClear) clearSelectionMask();
    mSelectionPath = BezierPath::withRect(bounds());
    ++mSelectionPathVersion;
    restartSelectionTimer();
    setNeedsDisplay();
}

void ZPCanvas::selectNone()
{
    mPasteIntoSelectionPath.reset();
    mSelectionImage.reset();
    mSelectionPath.reset();
    ++mSelectionPathVersion;
    if (!mSelectionMaskClear) clearSelectionMask();
    stopSelectionTimer();
    showSelectionInfo();
    mPolygonLasso = false;
    setNeedsDisplay();
}

void ZPCanvas::selectNoneWithSound()
{
    selectNone();
    playSound("Frog");
}

void ZPCanvas::selectInverse()
{
    if (!mSelectionPath) return beep();
    clearSelectionMaskINVERT();
    selectionPathToMaskINVERT();
    BezierPath outline = ZPPathBuilder(mSelectionMask.value_or(ConstMaskView{})).path();
    AffineTransform up; // the tracer draws one pixel too low
    up.translate(0, -1);
    outline.transform(up);
    mSelectionPath = std::move(outline);
    ++mSelectionPathVersion;
    restartSelectionTimer();
    showSelectionInfo();
    setNeedsDisplay();
}

void ZPCanvas::restartSelectionTimer()
{
    mSelectionTimer = std::make_unique<QTimer>();
    connect(mSelectionTimer.get(), &QTimer::timeout, this, &ZPCanvas::selectionTimerFired);
    mSelectionTimer->start(kAntsStep);
}

void ZPCanvas::stopSelectionTimer() { mSelectionTimer.reset(); }

void ZPCanvas::makeSelection()
{
    if (!mBitmapRep) return;
    // The rows are those of the graphics world: the same memory as the bitmap, which stands in where there is none.
    tintUnselected(mGWorld ? mGWorld->pixels : mBitmapRep->view(), maskOf(*this));
    setNeedsDisplay();
}

void ZPCanvas::copyGWorld(const GWorld& source, GWorld& destination) { copyBits(source, destination); }

void ZPCanvas::showSelectionInfo(const char* none)
{
    if (!mInfoField) return;
    mInfoField->setText(mSelectionPath ? QString::fromStdString(stringFromRect(integralRect(mSelectionPath->bounds())))
                                       : QString::fromUtf8(none));
}

void ZPCanvas::combineWithAuxSelection()
{
    if (!mAuxSelectionPath || mPolygonLasso) return;
    BezierPath previous = std::move(*mAuxSelectionPath), shape = std::move(mSelectionPath).value_or(BezierPath{});
    mAuxSelectionPath.reset();
    mSelectionPath.reset();
    ++mSelectionPathVersion;
    // A selection is filled even-odd everywhere; a loop of the lasso that leaves its middle out does so here too.
    previous.setWindingRule(WindingRule::EvenOdd);
    shape.setWindingRule(WindingRule::EvenOdd);
    const std::uint32_t keys = currentKeyModifiers();
    if (keys & kShiftKey)
        mSelectionPath = pathFromUnionWithPath(shape, previous);
    else if (keys & kOptionKey)
        mSelectionPath = pathFromDifferenceWithPath(previous, shape);
}

bool ZPCanvas::validateMenuItem(const QString& action, QString* title)
{
    const bool selected = !selectionNil();
    if (action == "anchorSelection:") {
        if (title) *title = selectionImageNil() ? tr("Float Selection") : tr("Anchor Selection");
        return selected;
    }
    for (const char* needsSelection : {"selectNone:", "selectInverse:", "fill:", "stroke:", "smartFill:", "copy:",
                                       "cut:", "delete:", "cropToSelection:"})
        if (action == needsSelection) return selected;
    if (action == "paste:") return Pasteboard::general().hasImageData();
    if (action == "pasteInto:") return selected && Pasteboard::general().hasImageData();
    if (action == "undo:") return mUndoRedoIndex > 0;
    if (action == "redo:") return mUndoRedoIndex < mUndoIndex;
    return true;
}
