// SPDX-License-Identifier: GPL-3.0-or-later
/// The stripes, blended into screen words.
#include "canvas/Shimmer.h"
#include "tools/TileRegion.h"
#include <algorithm>
#include <cmath>
#include <vector>

namespace zp
{

namespace
{

/// The most that a stripe takes of white, and of black, in 256ths: light is seen less on light than shade on dark.
constexpr double kLight = 100, kShade = 72;

struct Tint {
    std::uint32_t goal = 0, share = 0; ///< in 256ths
};

std::uint32_t blended(std::uint32_t word, Tint tint)
{
    const std::uint32_t rest = 256 - tint.share;
    const std::uint32_t redBlue = ((word & 0xFF00FF) * rest + (tint.goal & 0xFF00FF) * tint.share) >> 8 & 0xFF00FF,
                        green = ((word & 0xFF00) * rest + (tint.goal & 0xFF00) * tint.share) >> 8 & 0xFF00;
    return 0xFF000000 | redBlue | green;
}

/// One period of the stripes, a device pixel each: a wave from white over nothing to black and back.
std::vector<Tint> stripes(const ShimmerStyle& style)
{
    std::vector<Tint> tints(std::size_t(std::max(4L, std::lround(style.period))));
    for (std::size_t i = 0; i < tints.size(); ++i) {
        const double at = (double(i) - style.phase) / double(tints.size()), part = at - std::floor(at);
        const double wave = 4 * std::abs(part - 0.5) - 1; // 1 at both ends, -1 in the middle
        tints[i] = wave > 0 ? Tint{0xFFFFFF, std::uint32_t(wave * kLight)} : Tint{0, std::uint32_t(-wave * kShade)};
    }
    return tints;
}

} // namespace

void drawShimmer(const ScreenTarget& target, const TileRegion& region, PixelBox reach, double deviceScale,
                 const ShimmerStyle& style)
{
    const auto first = [&](int edge) { return int(std::floor(edge * deviceScale)); };
    const auto last = [&](int edge) { return int(std::ceil(edge * deviceScale)); };
    const PixelBox part =
        PixelBox{first(reach.x0), first(reach.y0), last(reach.x1), last(reach.y1)}.intersected(target.box);
    if (part.isEmpty()) return;
    const auto under = [&](int device) { return int(std::floor((device + 0.5) / deviceScale)); };
    std::vector<int> columns;
    for (int x = part.x0; x < part.x1; ++x) columns.push_back(under(x));
    const std::vector<Tint> tints = stripes(style);
    for (int y = part.y0; y < part.y1; ++y) {
        std::uint32_t* const row = target.pixels + target.stride * (y - target.box.y0) - target.box.x0;
        const int line = under(y);
        // The canvas begins at 0, so that a sum is never below it.
        std::size_t stripe = std::size_t(std::max(0, part.x0 + y)) % tints.size();
        int tile = -1;
        std::uint64_t bits = 0;
        for (int x = part.x0; x < part.x1; ++x) {
            const int column = columns[std::size_t(x - part.x0)];
            if (column / kTileSide != tile) {
                tile = column / kTileSide;
                bits = region.bitsOf(tile, line);
            }
            if (bits >> (column % kTileSide) & 1) row[x] = blended(row[x], tints[stripe]);
            if (++stripe == tints.size()) stripe = 0;
        }
    }
}

} // namespace zp
