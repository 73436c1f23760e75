// SPDX-License-Identifier: GPL-3.0-or-later
/// The nearest known pixels: a short walk where they are dense, rings of tiles where they are rare.
#include "smartfill/KnownPixels.h"
#include <algorithm>
#include <bit>
#include <cmath>
#include <cstring>

namespace zp
{
namespace
{

struct Offset {
    int dx, dy;
    int length() const { return dx * dx + dy * dy; }
};

std::vector<Offset> offsetsWithin(int reach)
{
    std::vector<Offset> offsets;
    for (int dy = -reach; dy <= reach; ++dy)
        for (int dx = -reach; dx <= reach; ++dx)
            if (dx * dx + dy * dy <= reach * reach) offsets.push_back({dx, dy});
    std::stable_sort(offsets.begin(), offsets.end(), [](Offset a, Offset b) { return a.length() < b.length(); });
    return offsets;
}

} // namespace

/// The nearest so far, sorted; a key holds length, dy and dx in the order they count.
struct KnownPixels::Ranked {
    std::uint64_t keys[kNeighbours];
    int count = 0;

    static constexpr int kBias = 1 << 15;
    static std::uint64_t key(std::int64_t dx, std::int64_t dy)
    {
        return std::uint64_t(dx * dx + dy * dy) << 32 | std::uint64_t(dy + kBias) << 16 | std::uint64_t(dx + kBias);
    }
    static int dx(std::uint64_t key) { return int(key & 0xFFFF) - kBias; }
    static int dy(std::uint64_t key) { return int(key >> 16 & 0xFFFF) - kBias; }
    /// Squared length beyond which nothing is wanted any more.
    std::int64_t limit() const { return count < kNeighbours ? INT64_MAX : std::int64_t(keys[kNeighbours - 1] >> 32); }
    void add(std::uint64_t key)
    {
        if (count == kNeighbours && key >= keys[count - 1]) return;
        int place = count < kNeighbours ? count++ : count - 1;
        for (; place > 0 && keys[place - 1] > key; --place) keys[place] = keys[place - 1];
        keys[place] = key;
    }
};

KnownPixels::KnownPixels(const MatchLayout& layout)
    : mLayout(layout),
      mColumns((layout.width + kTile - 1) / kTile),
      mRows((layout.height + kTile - 1) / kTile),
      mBytes(layout.size()),
      mTiles(std::size_t(mColumns) * std::size_t(mRows)),
      mCounts(mTiles.size())
{
    for (const Offset o : offsetsWithin(kWalkReach)) {
        mWalkDelta.push_back(o.dy * layout.stride + o.dx);
        mWalkReach.push_back(std::uint8_t(std::ceil(std::sqrt(double(o.length())))));
        for (int reach = 0; reach <= kWalkReach; ++reach)
            if (o.length() <= reach * reach) ++mWalkLength[std::size_t(reach)];
    }
}

void KnownPixels::set(int x, int y)
{
    std::uint8_t& byte = mBytes[std::size_t(mLayout.index(x, y))];
    if (byte) return;
    byte = 1;
    const std::size_t tile = std::size_t(y / kTile) * std::size_t(mColumns) + std::size_t(x / kTile);
    mTiles[tile].rows[y % kTile] |= std::uint16_t(1u << (x % kTile));
    ++mCounts[tile];
}

void KnownPixels::collect(int x, int y, Neighbourhood& out) const
{
    if (!walk(x, y, out)) search(x, y, out);
}

bool KnownPixels::walk(int x, int y, Neighbourhood& out) const
{
    const int room = std::min({x, y, mLayout.width - 1 - x, mLayout.height - 1 - y, kWalkReach});
    const int length = mWalkLength[std::size_t(room)];
    const std::int32_t here = mLayout.index(x, y);
    const std::uint8_t* const bytes = mBytes.data() + here;
    // Every delta is stored and only the count depends on the byte: a branch on it would be a coin toss.
    int count = 0, i = 0;
    while (i < length && count < kNeighbours) {
        const std::int32_t delta = mWalkDelta[std::size_t(i++)];
        out.delta[count] = delta;
        count += bytes[delta];
    }
    if (count < kNeighbours) return false;
    out.count = count;
    out.reach = mWalkReach[std::size_t(i - 1)];
    out.far = false;
    for (int k = 0; k < kNeighbours; ++k) out.index[k] = here + out.delta[k];
    return true;
}

int KnownPixels::wrapped(int number, int tiles)
{
    if (unsigned(number) < unsigned(tiles)) return number;
    while (number < 0) number += tiles;
    while (number >= tiles) number -= tiles;
    return number;
}

int KnownPixels::tileStart(int number, int tiles, int size)
{
    int shift = 0;
    for (; number < 0; number += tiles) shift -= size;
    for (; number >= tiles; number -= tiles) shift += size;
    return shift + number * kTile;
}

void KnownPixels::searchTile(int column, int row, int x, int y, Ranked& ranked) const
{
    const int tileX = wrapped(column, mColumns), tileY = wrapped(row, mRows);
    const std::size_t tile = std::size_t(tileY) * std::size_t(mColumns) + std::size_t(tileX);
    if (!mCounts[tile]) return;
    const int left = tileStart(column, mColumns, mLayout.width) - x;
    const int top = tileStart(row, mRows, mLayout.height) - y;
    const auto gap = [](int low, int extent) { return low > 0 ? low : low + extent < 0 ? -(low + extent) : 0; };
    const std::int64_t gapX = gap(left, kTile - 1), gapY = gap(top, kTile - 1);
    if (gapX * gapX + gapY * gapY > ranked.limit()) return;
    for (int j = 0; j < kTile; ++j) {
        const std::int64_t dy = top + j;
        if (dy <= -mLayout.height || dy >= mLayout.height || dy * dy + gapX * gapX > ranked.limit()) continue;
        for (unsigned bits = mTiles[tile].rows[j]; bits; bits &= bits - 1) {
            const std::int64_t dx = left + std::countr_zero(bits);
            if (dx > -mLayout.width && dx < mLayout.width && dx * dx + dy * dy <= ranked.limit())
                ranked.add(Ranked::key(dx, dy));
        }
    }
}

void KnownPixels::search(int x, int y, Neighbourhood& out) const
{
    Ranked ranked;
    const int column = x / kTile, row = y / kTile;
    for (int ring = 0;; ++ring) {
        const int first = column - ring, last = column + ring, top = row - ring, bottom = row + ring;
        // What lies outside the rings so far is at least this far away; a side at the end of its range has nothing
        // left.
        const int left = tileStart(first, mColumns, mLayout.width),
                  right = tileStart(last + 1, mColumns, mLayout.width);
        const int above = tileStart(top, mRows, mLayout.height), below = tileStart(bottom + 1, mRows, mLayout.height);
        // From the middle of each side outwards: what is found first is near, and the rest of the side can be passed
        // over. One turn round the torus either way is all there is.
        if (ring <= mRows) {
            for (int d = 0; d <= std::min(ring, mColumns); ++d)
                for (const int c : {column - d, column + d}) {
                    searchTile(c, top, x, y, ranked);
                    if (ring > 0) searchTile(c, bottom, x, y, ranked);
                    if (d == 0) break;
                }
        }
        if (ring > 0 && ring <= mColumns) {
            for (int d = 0; d <= std::min(ring - 1, mRows); ++d)
                for (const int r : {row - d, row + d}) {
                    searchTile(first, r, x, y, ranked);
                    searchTile(last, r, x, y, ranked);
                    if (d == 0) break;
                }
        }
        std::int64_t gap = INT32_MAX;
        if (x - left + 1 < mLayout.width) gap = std::min<std::int64_t>(gap, x - left + 1);
        if (right - x < mLayout.width) gap = std::min<std::int64_t>(gap, right - x);
        if (y - above + 1 < mLayout.height) gap = std::min<std::int64_t>(gap, y - above + 1);
        if (below - y < mLayout.height) gap = std::min<std::int64_t>(gap, below - y);
        if (gap == INT32_MAX || gap * gap > ranked.limit()) break;
    }
    out.count = ranked.count;
    out.reach = 0;
    for (int k = 0; k < ranked.count; ++k) {
        const int dx = Ranked::dx(ranked.keys[k]), dy = Ranked::dy(ranked.keys[k]);
        const auto wrap = [](int v, int size) { return v < 0 ? v + size : v >= size ? v - size : v; };
        out.dx[k] = dx;
        out.dy[k] = dy;
        out.delta[k] = dy * mLayout.stride + dx;
        out.index[k] = mLayout.index(wrap(x + dx, mLayout.width), wrap(y + dy, mLayout.height));
        out.reach = std::max({out.reach, std::abs(dx), std::abs(dy)});
    }
    out.far = out.reach > mLayout.border;
}

} // namespace zp
