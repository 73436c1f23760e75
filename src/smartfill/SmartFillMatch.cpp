// SPDX-License-Identifier: GPL-3.0-or-later
/// The robust distance, the memory layout, and the plain version of the comparison.
#include "smartfill/SmartFillMatch.h"
#include "smartfill/SmartFill.h"
#include "smartfill/SmartFillRandom.h"
#include <algorithm>
#include <array>
#include <cmath>

namespace zp
{

std::int32_t robustDistance(int difference)
{
    constexpr double kScale = 0.117;                  // a difference of about 30 of 256 counts as "different"
    constexpr double kFullScale = 4.3047588403794155; // ln(1 + 1 / kScale²): 65,536 for a difference of 256
    const double v = difference * (1.0 / 256) / kScale;
    return std::int32_t(65536 * std::log(1 + v * v) / kFullScale);
}

const std::int32_t* robustDistanceTable()
{
    static const auto table = [] {
        std::array<std::int32_t, 256> values{};
        for (int d = 0; d < 256; ++d) values[std::size_t(d)] = robustDistance(d);
        return values;
    }();
    return table.data();
}

MatchLayout::MatchLayout(int w, int h) : width(w), height(h)
{
    // Holds the neighbourhoods of all but the first few thousandths of the steps; a small rectangle needs less, since
    // no neighbour is further away than its sides.
    border = std::min(48, std::max({w, h, 1}));
    stride = width + 2 * border;
}

namespace
{

std::int32_t pixelDistance(const std::int32_t* table, std::uint32_t a, std::uint32_t b)
{
    std::int32_t sum = 0;
    for (int shift = 0; shift < 32; shift += 8) sum += table[std::abs(int(a >> shift & 255) - int(b >> shift & 255))];
    return sum;
}

/// The error of one candidate, or some number not below @p limit. isSource(k): neighbour k has a counterpart there.
template <class IsSource>
std::int32_t errorOf(const MatchSource& source, const Neighbourhood& near, std::int32_t candidate, std::int32_t limit,
                     IsSource isSource)
{
    const std::int32_t* const table = robustDistanceTable();
    std::int32_t error = 0;
    for (int k = 1; k < near.count; ++k) {
        error += isSource(k) ? pixelDistance(table, near.value[k], source.pixels[candidate + near.delta[k]])
                             : kMissingPenalty;
        if (error >= limit) break;
    }
    return error;
}

} // namespace

namespace
{

void compare(const MatchSource& source, const Neighbourhood& near, std::int32_t c, BestMatch& best)
{
    std::int32_t error;
    if (source.clear[c] > near.reach) {
        error = errorOf(source, near, c, best.error, [](int) { return true; });
    } else if (!near.far) {
        error = errorOf(source, near, c, best.error, [&](int k) { return source.clear[c + near.delta[k]] != 0; });
    } else {
        const MatchLayout& layout = source.layout;
        const int x = layout.x(c), y = layout.y(c);
        error = errorOf(source, near, c, best.error, [&](int k) {
            const int qx = x + near.dx[k], qy = y + near.dy[k];
            return qx >= 0 && qy >= 0 && qx < layout.width && qy < layout.height &&
                   source.clear[layout.index(qx, qy)] != 0;
        });
    }
    if (error < best.error) best = {error, c};
}

} // namespace

void searchPortable(const MatchSource& source, const Neighbourhood& near, const std::int32_t* candidates, int count,
                    BestMatch& best)
{
    for (int i = 0; i < count && best.error; ++i) compare(source, near, candidates[i], best);
}

void searchRandomPortable(const MatchSource& source, const Neighbourhood& near, std::uint32_t key, int tries,
                          BestMatch& best)
{
    // All are drawn first, so that their cache misses overlap.
    constexpr int kBatch = 256;
    std::int32_t candidates[kBatch];
    for (int start = 0; start < tries && best.error; start += kBatch) {
        const int count = std::min(kBatch, tries - start);
        for (int i = 0; i < count; ++i) {
            const std::uint32_t number = SmartFillRandom::mix(key, std::uint32_t(start + i));
            candidates[i] = source.list[SmartFillRandom::scaled(number, source.listLength)];
        }
        searchPortable(source, near, candidates, count, best);
    }
}

} // namespace zp
