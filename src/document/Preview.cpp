// SPDX-License-Identifier: GPL-3.0-or-later
/// Laying a preview over pixels: the screen's copy of them, or the picture's own when it is taken.
#include "document/Preview.h"
#include <algorithm>

namespace zp
{

void layPreview(const Preview& preview, BitmapView part, int x, int y)
{
    const PixelBox shared = preview.box.intersected(PixelBox{x, y, x + part.width, y + part.height});
    const auto width = std::size_t(preview.box.width());
    for (int row = shared.y0; row < shared.y1; ++row) {
        const std::size_t first =
            std::size_t(row - preview.box.y0) * width + std::size_t(std::max(0, shared.x0 - preview.box.x0));
        std::uint32_t* const to = part.row(row - y) + (shared.x0 - x);
        for (std::size_t i = 0; i < std::size_t(shared.width()); ++i)
            if (preview.covers.empty() || preview.covers[first + i]) to[i] = preview.words[first + i];
    }
}

} // namespace zp
