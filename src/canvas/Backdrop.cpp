// SPDX-License-Identifier: GPL-3.0-or-later
/// Chequerboard and pixel grid.
#include "canvas/Backdrop.h"
#include <algorithm>
#include <cmath>

namespace zp
{

namespace
{

/// The two greys of the squares, and the side of a square in screen points.
constexpr std::uint32_t kLight = 255, kDark = 204;
constexpr double kSquare = 8;

/// A premultiplied channel over an opaque grey.
std::uint8_t over(std::uint8_t channel, std::uint32_t clear, std::uint32_t grey)
{
    return std::uint8_t(std::min<std::uint32_t>(255, channel + (clear * grey + 127) / 255));
}

/// Half the way to mid grey, which shows on dark and on light.
std::uint32_t faded(std::uint32_t word) { return ((word >> 1) & 0x007F7F7F) + 0xFF404040; }

} // namespace

void layChequerboardUnder(BitmapView pixels, int x, int y, double zoom)
{
    const int square = std::max(1, int(std::lround(kSquare / zoom)));
    for (int row = 0; row < pixels.height; ++row)
        for (int column = 0; column < pixels.width; ++column) {
            std::uint8_t* p = pixels.pixel(column, row);
            if (p[0] == 255) continue;
            const bool dark = ((x + column) / square + (y + row) / square) % 2;
            const std::uint32_t clear = 255u - p[0];
            for (int c = 1; c < 4; ++c) p[c] = over(p[c], clear, dark ? kDark : kLight);
            p[0] = 255;
        }
}

void drawPixelGrid(const ScreenTarget& target, double deviceScale)
{
    const PixelBox& box = target.box;
    const auto lines = [deviceScale](int from, int to, auto&& draw) {
        for (int i = int(std::ceil(from / deviceScale)); i * deviceScale < to; ++i)
            if (const int at = int(std::lround(i * deviceScale)); i > 0 && at >= from && at < to) draw(at);
    };
    lines(box.x0, box.x1, [&](int x) {
        for (int y = box.y0; y < box.y1; ++y) {
            std::uint32_t& word = target.pixels[target.stride * (y - box.y0) + (x - box.x0)];
            word = faded(word);
        }
    });
    lines(box.y0, box.y1, [&](int y) {
        std::uint32_t* row = target.pixels + target.stride * (y - box.y0);
        for (int x = box.x0; x < box.x1; ++x) row[x - box.x0] = faded(row[x - box.x0]);
    });
}

} // namespace zp
