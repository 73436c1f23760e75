// SPDX-License-Identifier: GPL-3.0-or-later
/// Copying between offscreen worlds.
#include "base/GWorld.h"
#include <cstring>
#include <vector>

namespace zp
{

void copyBits(const GWorld& source, GWorld& destination)
{
    const BitmapView from = source.pixels, to = destination.pixels;
    if (from.isEmpty() || to.isEmpty()) return;
    if (from.width == to.width && from.height == to.height) {
        if (from.data == to.data) return;
        for (int y = 0; y < to.height; ++y) std::memmove(to.rowData(y), from.rowData(y), std::size_t(to.width) * 4);
        return;
    }
    // The pixel under the middle of each destination pixel.
    std::vector<int> columns(static_cast<std::size_t>(to.width));
    for (int x = 0; x < to.width; ++x)
        columns[std::size_t(x)] = int((2 * std::int64_t{x} + 1) * from.width / (2 * std::int64_t{to.width}));
    for (int y = 0; y < to.height; ++y) {
        const std::uint32_t* const in =
            from.row(int((2 * std::int64_t{y} + 1) * from.height / (2 * std::int64_t{to.height})));
        std::uint32_t* const out = to.row(y);
        for (int x = 0; x < to.width; ++x) out[x] = in[columns[std::size_t(x)]];
    }
}

} // namespace zp
