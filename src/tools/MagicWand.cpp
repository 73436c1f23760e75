// SPDX-License-Identifier: GPL-3.0-or-later
/// The fast magic wand: the same search as the flood fill, marking mask bytes.
#include "tools/MagicWand.h"
#include "tools/StackProof.h"
#include "tools/TileRegion.h"

namespace zp
{

ColumnFillResult magicWand(ConstBitmapView pixels, MaskView mask, bool noWalls, PixelPoint seed, std::uint32_t target,
                           int tolerance, FillStack& stack, TileRegion& tiles)
{
    const TileQuery query{target, tolerance, false};
    stack.clear();
    const bool neverFull = stackNeverFills(pixels.width, pixels.height, stack);
    tiles.find(pixels, noWalls ? ConstMaskView{} : mask, seed, query, [&](PixelBox box) {
        if (!neverFull) return false;
        clearBox(mask.row(box.y0) + box.x0, mask.stride, box.width(), box.height());
        return true;
    });
    if (!neverFull && tiles.columnScanPushes() > std::size_t(stack.capacity()))
        return magicWandColumns(pixels, mask, seed, target, tolerance, stack);
    const PixelBox box = tiles.box();
    tiles.visit(box, [&](int x, int y, std::uint64_t bits) { clearBits(mask.row(y) + x, bits, mask.width - x); });
    return {box, true};
}

} // namespace zp
