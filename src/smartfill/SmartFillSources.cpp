// SPDX-License-Identifier: GPL-3.0-or-later
/// Marked pixels of the picture, in the terms of a work rectangle.
#include "smartfill/SmartFillSources.h"
#include <algorithm>

namespace zp
{

MarkedPixels markedPixels(ConstMaskView mask, PixelBox box, PixelPoint maskOrigin)
{
    const PixelBox there{maskOrigin.x, maskOrigin.y, maskOrigin.x + mask.width, maskOrigin.y + mask.height};
    MarkedPixels marked{box.intersected(there), {}};
    marked.bytes.reserve(std::size_t(marked.box.width()) * std::size_t(marked.box.height()));
    for (int y = marked.box.y0; y < marked.box.y1; ++y) {
        const std::uint8_t* const row = mask.row(y - maskOrigin.y) - maskOrigin.x;
        marked.bytes.insert(marked.bytes.end(), row + marked.box.x0, row + marked.box.x1);
    }
    return marked;
}

SmartFillArea areaWithSources(SmartFillArea area, const SmartFillSources& sources)
{
    PixelBox from = sources.from.box;
    // Even corners inside the marked box: it lies in the picture, which may end on an odd one.
    if (area.faster)
        from = {from.x0 + from.x0 % 2, from.y0 + from.y0 % 2, from.x1 - from.x1 % 2, from.y1 - from.y1 % 2};
    area.work = area.work.united(from.isEmpty() ? PixelBox{} : from);
    return area;
}

void limitSources(SmartFillPicture& picture, const SmartFillArea& area, const SmartFillSources& sources)
{
    picture.sources.clear();
    if (sources.from.isEmpty() && sources.never.isEmpty()) return;
    constexpr int kHalf = 128;
    const int pitch = area.faster ? 2 : 1;
    picture.sources.reserve(picture.mask.size());
    for (int j = 0; j < picture.height; ++j)
        for (int i = 0; i < picture.width; ++i) {
            const int x = area.work.x0 + pitch * i, y = area.work.y0 + pitch * j;
            const bool taken =
                (sources.from.isEmpty() || sources.from.at(x, y) >= kHalf) && sources.never.at(x, y) == 0;
            picture.sources.push_back(taken ? 255 : 0);
        }
}

} // namespace zp
