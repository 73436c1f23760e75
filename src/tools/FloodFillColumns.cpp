// SPDX-License-Identifier: GPL-3.0-or-later
/// The column-wise fills and wands, pixel by pixel: what the fast ones are held to, and what runs when the stack may
/// fill.
#include "tools/ColumnFill.h"
#include "tools/FloodFill.h"
#include "tools/MagicWand.h"
#include "tools/PixelBits.h"
#include "tools/PixelCompare.h"

namespace zp
{

namespace
{

/// Remembers painted pixels beside the picture. A fill needs it when its paint may still look like what it looks for.
class PaintedBits
{
public:
    explicit PaintedBits(ConstBitmapView pixels) : mHeight(std::size_t(pixels.height)), mBits(sharedPixelBits())
    {
        mBits.reset(std::size_t(pixels.width) * mHeight);
    }
    bool operator()(int x, int y) const { return mBits.test(index(x, y)); }
    void set(int x, int y) { mBits.set(index(x, y)); }

private:
    std::size_t index(int x, int y) const { return std::size_t(x) * mHeight + std::size_t(y); }
    std::size_t mHeight;
    PixelBits& mBits;
};

} // namespace

ColumnFillResult floodFillColumns(BitmapView pixels, ConstMaskView walls, PixelPoint seed, std::uint32_t fill,
                                  int tolerance, FillStack& stack)
{
    const std::uint32_t target = pixels.row(seed.y)[seed.x];
    const auto open = [&](int x, int y) {
        return (walls.isEmpty() || walls.row(y)[x] == 0) && wordsMatch(pixels.row(y)[x], target, tolerance);
    };
    if (!wordsMatch(fill, target, tolerance))
        return columnFill(pixels.width, pixels.height, seed, stack, open,
                          [&](int x, int y) { pixels.row(y)[x] = fill; });
    PaintedBits painted(pixels);
    return columnFill(
        pixels.width, pixels.height, seed, stack, [&](int x, int y) { return !painted(x, y) && open(x, y); },
        [&](int x, int y) {
            pixels.row(y)[x] = fill;
            painted.set(x, y);
        });
}

ColumnFillResult floodFillColors(BitmapView pixels, PixelPoint seed, Color fill, Color target, int t, FillStack& stack)
{
    if (ColorsWithinTolerance(fill, target, t)) return {{}, false};
    // The stored bytes are rounded, so paint just outside the tolerance may be read back inside it.
    PaintedBits painted(pixels);
    const std::uint32_t word = packPremultiplied(fill);
    return columnFill(
        pixels.width, pixels.height, seed, stack,
        [&](int x, int y) {
            return !painted(x, y) && ColorsWithinTolerance(unpackPremultiplied(pixels.row(y)[x]), target, t);
        },
        [&](int x, int y) {
            pixels.row(y)[x] = word;
            painted.set(x, y);
        });
}

ColumnFillResult floodFillFourNeighbours(BitmapView pixels, PixelPoint seed, Color fill, Color target, int t,
                                         FillStack& stack)
{
    ColumnFillResult result{{}, false};
    if (ColorsWithinTolerance(fill, target, t)) return result;
    stack.clear();
    if (!stack.push(seed.x, seed.y, pixels.height)) return result;
    PaintedBits painted(pixels);
    const std::uint32_t word = packPremultiplied(fill);
    int x = 0, y = 0;
    while (stack.pop(x, y, pixels.height)) {
        pixels.row(y)[x] = word;
        painted.set(x, y);
        result.painted.include(x, y);
        const PixelPoint neighbours[] = {{x + 1, y}, {x - 1, y}, {x, y + 1}, {x, y - 1}};
        for (const PixelPoint n : neighbours) {
            if (!pixels.box().contains(n.x, n.y) || painted(n.x, n.y)) continue;
            if (!ColorsWithinTolerance(unpackPremultiplied(pixels.row(n.y)[n.x]), target, t)) continue;
            if (!stack.push(n.x, n.y, pixels.height)) return result;
        }
    }
    result.completed = true;
    return result;
}

ColumnFillResult magicWandColumns(ConstBitmapView pixels, MaskView mask, PixelPoint seed, std::uint32_t target,
                                  int tolerance, FillStack& stack)
{
    return columnFill(
        pixels.width, pixels.height, seed, stack,
        [&](int x, int y) { return mask.row(y)[x] != 0 && wordsMatch(pixels.row(y)[x], target, tolerance); },
        [&](int x, int y) { mask.row(y)[x] = 0; });
}

ColumnFillResult magicWandPainting(BitmapView pixels, MaskView mask, PixelPoint seed, std::uint32_t target,
                                   std::uint32_t paint, int tolerance, FillStack& stack)
{
    PaintedBits painted(pixels);
    return columnFill(
        pixels.width, pixels.height, seed, stack,
        [&](int x, int y) { return !painted(x, y) && wordsMatch(pixels.row(y)[x], target, tolerance); },
        [&](int x, int y) {
            pixels.row(y)[x] = paint;
            mask.row(y)[x] = 0;
            painted.set(x, y);
        });
}

} // namespace zp
