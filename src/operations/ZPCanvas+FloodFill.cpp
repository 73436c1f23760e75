// SPDX-License-Identifier: GPL-3.0-or-later
/// The paint bucket's fill, the bucket and the eyedropper.
#include "desktop/Sounds.h"
#include "document/Document.h"
#include "document/Gesture.h"
#include "document/Paint.h"
#include "document/Picture.h"
#include "document/Selection.h"
#include "operations/Commands.h"
#include "operations/SelectedPixels.h"
#include "operations/ToolActions.h"
#include "tools/FillSeed.h"
#include "tools/FloodFill.h"
#include "tools/PixelCompare.h"
#include "tools/TileRegion.h"

namespace zp
{

namespace
{

/// Fills from the pixel nearest to the point, inside @p walls where there are any; a beep when the region has the
/// colour already.
void fillFrom(Edit& edit, Point point, ConstMaskView walls)
{
    const std::optional<PixelPoint> seed = fillSeed(point, edit.picture().box());
    if (!seed) return edit.refuse();
    Paint& paint = edit.paint();
    paint.takeNewColor();
    // As the canvas keeps pixels: a translucent colour is stored multiplied by its alpha.
    const std::uint32_t fillWord = packPremultiplied(paint.newColor());
    const std::uint32_t target = edit.picture().pixels().row(seed->y)[seed->x];
    // On purpose before the tolerance is refreshed: what counts as "has this colour already" is the last fill's.
    if (wordsMatch(fillWord, target, paint.tolerance())) return beep();
    const BitmapView pixels = edit.mayWrite(edit.picture().box());
    const ColumnFillResult filled =
        floodFill(pixels, walls, *seed, fillWord, paint.refreshTolerance(), sharedFillStack(), sharedTileRegion());
    if (!filled.painted.isEmpty()) edit.wrote(filled.painted);
}

/// Where the two older fills begin. They look for the colour that is there and write the paint colour.
std::optional<PixelPoint> beginColorFill(Edit& edit, const Arguments& at)
{
    const std::optional<PixelPoint> seed = fillSeed({at.number(0), at.number(1)}, edit.picture().box());
    if (!seed) {
        edit.refuse();
        return seed;
    }
    const std::uint32_t there = edit.picture().pixels().row(seed->y)[seed->x];
    edit.paint().setFillColors(unpackPremultiplied(there), edit.paint().color());
    return seed;
}

} // namespace

void operations::floodFillScanlineStackFast(Edit& edit, const Arguments& at)
{
    fillFrom(edit, {at.number(0), at.number(1)},
             edit.selection().isNil() ? ConstMaskView{} : edit.selection().rawMask().bytes());
}

void operations::floodFillScanlineStack(Edit& edit, const Arguments& at)
{
    const std::optional<PixelPoint> seed = beginColorFill(edit, at);
    // The brush size doubles as the tolerance here.
    const Paint& paint = edit.paint();
    if (seed)
        floodFillColors(edit.writeAll(), *seed, paint.newColor(), paint.oldColor(), int(paint.size() - 1),
                        sharedFillStack());
}

void operations::floodFill4Stack(Edit& edit, const Arguments& at)
{
    const std::optional<PixelPoint> seed = beginColorFill(edit, at);
    const Paint& paint = edit.paint();
    if (seed && floodFillFourNeighbours(edit.writeAll(), *seed, paint.newColor(), paint.oldColor(),
                                        int(paint.size() - 1), sharedFillStack())
                    .completed)
        playSound("Ping");
}

void tool::pressBucket(Edit& edit, Point point)
{
    Gesture& gesture = edit.gesture();
    gesture.refuse(); // the press is the whole gesture
    if (!edit.picture().bounds().contains(point)) return;
    fillFrom(edit, pixelUnder(point), edit.selection().clipMask());
    edit.wantStep(true);
}

void tool::pickColor(Edit& edit, Point point)
{
    const ConstBitmapView pixels = edit.picture().pixels();
    if (pixels.isEmpty() || !edit.picture().bounds().contains(point)) return;
    const int x = std::min(int(point.x), pixels.width - 1), y = std::min(int(point.y), pixels.height - 1);
    edit.document().movePaintColor(unpackPremultiplied(pixels.row(y)[x]));
}

} // namespace zp
