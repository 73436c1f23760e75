// SPDX-License-Identifier: GPL-3.0-or-later
/// Rows of pixels mixed by rows of a mask.
#include "tools/MaskMix.h"
#include "base/FixedPoint.h"
#include <algorithm>
#include <cstring>

namespace zp
{

bool maskReaches(ConstMaskView mask, PixelBox box)
{
    for (int y = box.y0; y < box.y1; ++y)
        if (std::any_of(mask.row(y) + box.x0, mask.row(y) + box.x1, [](std::uint8_t m) { return m != 255; }))
            return true;
    return false;
}

void mixThroughMask(BitmapView pixels, ConstBitmapView changed, ConstMaskView mask, PixelBox box)
{
    for (int y = box.y0; y < box.y1; ++y) {
        const std::uint8_t* const stays = mask.row(y) + box.x0;
        const std::uint8_t* from = changed.rowData(y - box.y0);
        std::uint8_t* to = pixels.pixel(box.x0, y);
        for (int x = 0; x < box.width(); ++x, to += 4, from += 4) {
            const unsigned m = stays[x];
            if (m == 255) continue;
            if (m == 0) {
                std::memcpy(to, from, 4);
                continue;
            }
            for (int c = 0; c < 4; ++c) to[c] = std::uint8_t(divide255(from[c] * (255 - m) + to[c] * m));
        }
    }
}

} // namespace zp
