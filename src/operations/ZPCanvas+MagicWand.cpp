// SPDX-License-Identifier: GPL-3.0-or-later
/// The magic wand in its three forms: by tiles, for the tool; a pixel at a time; and painting what it selects.
#include "document/Picture.h"
#include "document/Selection.h"
#include "operations/Commands.h"
#include "operations/PixelAccess.h"
#include "operations/SelectedPixels.h"
#include "selection/ZPPathBuilder.h"
#include "tools/FillSeed.h"
#include "tools/MagicWand.h"
#include "tools/TileRegion.h"
#include <new>

namespace zp
{

void markByWand(Edit& edit, Point point, bool adding)
{
    edit.paint().takeNewColor();
    const ConstBitmapView pixels = edit.picture().pixels();
    const std::optional<PixelPoint> seed = fillSeed(point, pixels.box());
    if (!seed) {
        if (!adding) edit.selection().rawMask().clear();
        return;
    }
    const MaskView mask = edit.selection().maskForWand(adding);
    if (mask.isEmpty()) throw std::bad_alloc();
    zp::magicWand(pixels, mask, !adding, *seed, wordUnder(pixels, point), edit.paint().refreshTolerance(),
                  sharedFillStack(), sharedTileRegion());
}

BezierPath tracedMask(Selection& selection)
{
    BezierPath outline = ZPPathBuilder(selection.rawMask().bytes()).path();
    AffineTransform up; // traced outlines lie one pixel low
    up.translate(0, -1);
    outline.transform(up);
    return outline;
}

void operations::magicWand(Edit& edit, const Arguments& at)
{
    const Point point{at.number(0), at.number(1)};
    edit.paint().takeNewColor();
    const ConstBitmapView pixels = edit.picture().pixels();
    const std::optional<PixelPoint> seed = fillSeed(point, pixels.box());
    if (!seed) return edit.refuse();
    const MaskView mask = edit.selection().rawMask().writable();
    if (mask.isEmpty()) throw std::bad_alloc();
    // One look per pixel and mask byte, and the tolerance of whoever asked the slider last.
    const std::uint32_t target = wordUnder(pixels, point);
    columnFill(
        pixels.width, pixels.height, *seed, sharedFillStack(),
        [&](int x, int y) {
            const Point pixel{float(x), float(y)};
            return maskPixelAtPoint(mask, pixel) != 0 &&
                   compareColor(edit.paint(), colorAtPoint(pixels, pixel), target);
        },
        [&](int x, int y) {
            setMaskPixel(mask, {float(x), float(y)});
        });
}

void operations::magicWandOver(Edit& edit, const Arguments& at)
{
    const Point point{at.number(0), at.number(1)};
    const std::optional<PixelPoint> seed = fillSeed(point, edit.picture().box());
    if (!seed) return edit.refuse();
    Paint& paint = edit.paint();
    paint.setFillColors(unpackPremultiplied(wordUnder(edit.picture().pixels(), point)), paint.color());
    if (ColorsWithinTolerance(paint.newColor(), paint.oldColor(), int(paint.size() - 1))) return;
    const MaskView mask = edit.selection().rawMask().writable();
    if (mask.isEmpty()) throw std::bad_alloc();
    // The two words are packed in different byte orders, and that is how this form has always looked for its target.
    magicWandPainting(edit.writeAll(), mask, *seed, packColorRedFirst(paint.oldColor()),
                      packPremultiplied(paint.newColor()), paint.tolerance(), sharedFillStack());
}

} // namespace zp
