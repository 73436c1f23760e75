// SPDX-License-Identifier: GPL-3.0-or-later
/// Filling, inverting and tinting by the selection mask.
#include "selection/MaskOps.h"
#include "drawing/BitmapContext.h"
#include "selection/SelectionRows.h"
#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>

namespace zp
{

namespace
{

std::array<std::uint8_t, 256> tintTable(double add)
{
    std::array<std::uint8_t, 256> table;
    for (int old = 0; old < 256; ++old) table[std::size_t(old)] = std::uint8_t(std::round(old * 0.7 + add));
    return table;
}

} // namespace

void fillMask(MaskView mask, std::uint8_t value)
{
    if (mask.isEmpty()) return;
    if (mask.stride == mask.width) {
        std::memset(mask.data, value, std::size_t(mask.width) * std::size_t(mask.height));
        return;
    }
    for (int y = 0; y < mask.height; ++y) std::memset(mask.row(y), value, std::size_t(mask.width));
}

void invertMask(MaskView mask)
{
    if (mask.isEmpty()) return;
    for (int y = 0; y < mask.height; ++y) invertRow(mask.row(y), mask.width);
}

void renderPathInMask(MaskView mask, const BezierPath& path, std::uint8_t value)
{
    if (mask.isEmpty() || path.isEmpty()) return;
    if (path.windingRule() == WindingRule::EvenOdd) return fillPathInMask(mask, path, value);
    BezierPath evenOdd = path;
    evenOdd.setWindingRule(WindingRule::EvenOdd);
    fillPathInMask(mask, evenOdd, value);
}

void tintUnselected(BitmapView pixels, ConstMaskView mask)
{
    if (pixels.isEmpty() || mask.isEmpty()) return;
    static const std::array<std::array<std::uint8_t, 256>, 3> kTables{tintTable(5.7), tintTable(73.5), tintTable(39.6)};
    const int width = std::min(pixels.width, mask.width), height = std::min(pixels.height, mask.height);
    for (int y = 0; y < height; ++y) {
        const std::uint8_t* m = mask.row(y);
        std::uint8_t* p = pixels.rowData(y);
        for (int x = 0; x < width; ++x, p += 4) {
            if (m[x] != kNotSelected) continue;
            for (std::size_t sample = 0; sample < 3; ++sample) p[sample] = kTables[sample][p[sample]];
        }
    }
}

} // namespace zp
