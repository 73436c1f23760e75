// SPDX-License-Identifier: GPL-3.0-or-later
/// The fast flood fill: finds the region bit-parallel, then paints it, unless the stack's end would show.
#include "tools/FloodFill.h"
#include "tools/StackProof.h"
#include "tools/TileRegion.h"

namespace zp
{

ColumnFillResult floodFill(BitmapView pixels, ConstMaskView walls, PixelPoint seed, std::uint32_t fill, int tolerance,
                           FillStack& stack, TileRegion& tiles)
{
    const TileQuery query{pixels.row(seed.y)[seed.x], tolerance, true};
    stack.clear();
    const bool neverFull = stackNeverFills(pixels.width, pixels.height, stack);
    tiles.find(pixels, walls, seed, query, [&](PixelBox box) {
        if (!neverFull) return false;
        paintBox(pixels.row(box.y0) + box.x0, pixels.rowBytes, box.width(), box.height(), fill);
        return true;
    });
    if (!neverFull && tiles.columnScanPushes() > std::size_t(stack.capacity()))
        return floodFillColumns(pixels, walls, seed, fill, tolerance, stack);
    const PixelBox box = tiles.box();
    tiles.visit(box,
                [&](int x, int y, std::uint64_t bits) { paintBits(pixels.row(y) + x, bits, fill, pixels.width - x); });
    return {box, true};
}

} // namespace zp
