// SPDX-License-Identifier: GPL-3.0-or-later
/// The canvas command that opens the smart fill window on the current selection.
#include "canvas/ZPCanvas.h"
#include "desktop/Sounds.h"
#include "operations/SmartFillHook.h"
#include <utility>

using namespace zp;

namespace
{
SmartFillHook registeredHook;
} // namespace

namespace zp
{
void setSmartFillHook(SmartFillHook hook) { registeredHook = std::move(hook); }
} // namespace zp

void ZPCanvas::smartFill()
{
    if (!mSelectionPath || !mBitmapRep || !registeredHook) return beep();
    clearSelectionMaskINVERT();
    selectionPathToMaskINVERT();
    if (!mSelectionMaskData) return beep();
    const int width = mBitmapRep->pixelsWide(), height = mBitmapRep->pixelsHigh();
    registeredHook(mBitmapRep, ConstMaskView{mSelectionMaskData.get(), width, height, width}, this,
                   mSelectionPath->bounds());
}
