// SPDX-License-Identifier: GPL-3.0-or-later
/// Quarter turns and flips of the whole picture, and the 2x retina mode.
#include "base/Log.h"
#include "canvas/ZPCanvas.h"
#include "desktop/Panels.h"
#include "imageops/RotateFlip.h"
#include <QAction>
#include <utility>

using namespace zp;

namespace
{

/// What every geometric command ends with: no selection, nothing floating, a fresh mask of the new size, one snapshot.
void finishGeometry(ZPCanvas& canvas, std::shared_ptr<BitmapRep> rep)
{
    canvas.installBitmap(std::move(rep), ImageCacheMode::Default, true, true);
    canvas.releaseSelectionMask();
    canvas.createSelectionMask();
    canvas.mSelectionPath.reset();
    ++canvas.mSelectionPathVersion;
    canvas.mSelectionImage.reset();
    canvas.stopSelectionTimer();
    canvas.takeSnapshot();
}

template <class Rotate>
void turn(ZPCanvas& canvas, Rotate rotate)
{
    if (!canvas.mBitmapRep) return;
    canvas.waitForWorkers();
    const BitmapRep& old = *canvas.mBitmapRep;
    auto rep = BitmapRep::createUninitialized(old.pixelsHigh(), old.pixelsWide());
    if (!rep) return logLine("rotate: not enough memory");
    rotate(old.view(), rep->view());
    rep->properties = old.properties;
    finishGeometry(canvas, std::move(rep));
}

/// A flip needs no second bitmap: the same one is installed again.
template <class Mirror>
void flip(ZPCanvas& canvas, Mirror mirror)
{
    if (!canvas.mBitmapRep) return;
    canvas.waitForWorkers();
    mirror(canvas.mBitmapRep->view());
    finishGeometry(canvas, canvas.mBitmapRep);
}

} // namespace

void ZPCanvas::rotateCCW()
{
    turn(*this, [](ConstBitmapView from, BitmapView to) { rotateCounterClockwise(from, to); });
}

void ZPCanvas::rotateCW()
{
    turn(*this, [](ConstBitmapView from, BitmapView to) { rotateClockwise(from, to); });
}

void ZPCanvas::flipH()
{
    flip(*this, [](BitmapView pixels) { flipHorizontally(pixels); });
}

void ZPCanvas::flipV() { flip(*this, flipVertically); }

void ZPCanvas::retina(QAction* sender)
{
    // The menu item's state decides, not the flag; it is handed over as it was before the item was chosen.
    const bool on = sender ? !sender->isChecked() : !m2xRetina;
    if (sender) sender->setChecked(on);
    m2xRetina = on;
    updateViewGeometry();
    setNeedsDisplay();
    emit zoomChanged();
    runAlert(on ? tr("You have enabled 2x retina display mode.") : tr("You have disabled 2x retina display mode."),
             QString(), {tr("OK")});
}
