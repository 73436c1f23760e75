// SPDX-License-Identifier: GPL-3.0-or-later
/// The column-wise scan that all fills and wands are defined by: popped columns are followed up, then painted down.
#pragma once
#include "base/Geometry.h"
#include "tools/FillStack.h"

namespace zp
{

struct ColumnFillResult {
    PixelBox painted;      ///< box of all pixels marked
    bool completed = true; ///< false: the stack was full, and the scan ended where it was
};

/// Marks the 4-connected region of qualifying pixels around @p seed.
/// @param seed       inside width x height; when it does not qualify itself, nothing happens
/// @param qualifies  (x, y) -> bool; must turn false for a pixel once it is marked, or the scan would not end
/// @param mark       (x, y)
/// Every pixel is looked at a few times; a neighbouring run is pushed once per run, not per pixel.
template <class Qualifies, class Mark>
ColumnFillResult columnFill(int width, int height, PixelPoint seed, FillStack& stack, Qualifies&& qualifies,
                            Mark&& mark)
{
    ColumnFillResult result;
    stack.clear();
    if (!qualifies(seed.x, seed.y)) return result;
    if (!stack.push(seed.x, seed.y, height)) return {{}, false};
    int x = 0, y = 0;
    while (stack.pop(x, y, height)) {
        while (y >= 1 && qualifies(x, y - 1)) --y;
        bool spanLeft = false, spanRight = false;
        for (; y < height && qualifies(x, y); ++y) {
            mark(x, y);
            result.painted.include(x, y);
            if (x >= 1) {
                const bool open = qualifies(x - 1, y);
                if (!spanLeft && open && !stack.push(x - 1, y, height)) {
                    result.completed = false;
                    return result;
                }
                spanLeft = open;
            }
            if (x < width - 1) {
                const bool open = qualifies(x + 1, y);
                if (!spanRight && open && !stack.push(x + 1, y, height)) {
                    result.completed = false;
                    return result;
                }
                spanRight = open;
            }
        }
    }
    return result;
}

} // namespace zp
