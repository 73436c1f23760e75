// SPDX-License-Identifier: GPL-3.0-or-later
/// Quarter turns, flips and crop of the whole picture.
#include "document/Picture.h"
#include "document/Selection.h"
#include "imageops/RotateFlip.h"
#include "operations/Commands.h"
#include "selection/FloatingImage.h"
#include <new>
#include <utility>

namespace zp
{

namespace
{

/// Smaller crops are refused on purpose.
constexpr float kLeastCrop = 4;

template <class Rotate>
void turn(Edit& edit, Rotate rotate)
{
    const std::shared_ptr<const BitmapRep> old = edit.picture().bitmap();
    if (!old) return edit.refuse();
    auto turned = BitmapRep::createUninitialized(old->pixelsHigh(), old->pixelsWide());
    if (!turned) throw std::bad_alloc();
    rotate(old->view(), turned->view());
    turned->properties = old->properties;
    edit.replacePicture(std::move(turned), kRebuiltPicture);
}

/// A flip needs no second bitmap: the same one is installed again.
template <class Mirror>
void flip(Edit& edit, Mirror mirror)
{
    if (!edit.picture().bitmap()) return edit.refuse();
    mirror(edit.writeAll());
    edit.replacePicture(edit.picture().writableBitmap(), kRebuiltPicture);
}

} // namespace

void operations::rotateCCW(Edit& edit, const Arguments&)
{
    turn(edit, [](ConstBitmapView from, BitmapView to) { rotateCounterClockwise(from, to); });
}

void operations::rotateCW(Edit& edit, const Arguments&)
{
    turn(edit, [](ConstBitmapView from, BitmapView to) { rotateClockwise(from, to); });
}

void operations::flipH(Edit& edit, const Arguments&)
{
    flip(edit, [](BitmapView pixels) { flipHorizontally(pixels); });
}

void operations::flipV(Edit& edit, const Arguments&)
{
    flip(edit, [](BitmapView pixels) { flipVertically(pixels); });
}

void operations::cropToSelection(Edit& edit, const Arguments&)
{
    const std::shared_ptr<const BitmapRep> old = edit.picture().bitmap();
    const Rect box = edit.selection().bounds();
    if (!old || !(box.size.width >= kLeastCrop && box.size.height >= kLeastCrop)) return edit.refuse();
    std::shared_ptr<BitmapRep> cropped = croppedImage(*old, box);
    if (!cropped) throw std::bad_alloc();
    edit.replacePicture(std::move(cropped), kRebuiltPicture);
}

} // namespace zp
