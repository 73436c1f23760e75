// SPDX-License-Identifier: GPL-3.0-or-later
/// The nearest known pixels: a short walk where they are dense, discs of bits where they are rare, rings of tiles
/// beyond.
#include "smartfill/KnownPixels.h"
#include "smartfill/SmartFillRows.h"
#include <algorithm>
#include <bit>
#include <cmath>
#include <cstring>

namespace zp
{

MatchLayout::MatchLayout(int w, int h) : width(w), height(h)
{
    // Holds the neighbourhoods of all but the first few thousandths of the steps; a small rectangle needs less, since
    // no neighbour is further away than its sides.
    border = std::min(48, std::max({w, h, 2}));
    stride = width + 2 * border;
}

std::vector<NearOffset> nearOffsets(int reach)
{
    std::vector<NearOffset> offsets;
    for (int dy = -reach; dy <= reach; ++dy)
        for (int dx = -reach; dx <= reach; ++dx)
            if (dx * dx + dy * dy <= reach * reach) offsets.push_back({dx, dy});
    std::stable_sort(offsets.begin(), offsets.end(),
                     [](NearOffset a, NearOffset b) { return a.length() < b.length(); });
    return offsets;
}

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
      mCounts(std::size_t(mColumns) * std::size_t(mRows)),
      mStripPitch(layout.height + 32),
      mStrips(std::size_t((layout.width + kStripMargin) / 8 + 5) * std::size_t(mStripPitch)),
      mRowPitch((layout.width + kRowMargin) / 8 + 9),
      mRowBits(std::size_t(mRowPitch) * std::size_t(layout.height))
{
    for (const NearOffset o : nearOffsets(kWalkReach)) {
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
    ++mCounts[std::size_t(y / kTile) * std::size_t(mColumns) + std::size_t(x / kTile)];
    const int column = x + kStripMargin;
    mStrips[std::size_t((column >> 3) * mStripPitch + y + kWindowReach)] |= std::uint8_t(1u << (column & 7));
    mRowBits[std::size_t(y * mRowPitch + (x + kRowMargin) / 8)] |= std::uint8_t(1u << (x & 7));
}

void KnownPixels::setRow(int y, const std::uint8_t* mask)
{
    std::uint8_t* const bytes = mBytes.data() + mLayout.index(0, y);
    for (int x = 0; x < mLayout.width; ++x) bytes[x] = mask[x] == 0;
    const std::size_t tiles = std::size_t(y / kTile) * std::size_t(mColumns);
    for (int x = 0; x < mLayout.width; x += 8) {
        unsigned bits = 0;
        for (int i = 0; i < std::min(8, mLayout.width - x); ++i) bits |= unsigned(bytes[x + i]) << i;
        mStrips[std::size_t(((x + kStripMargin) >> 3) * mStripPitch + y + kWindowReach)] = std::uint8_t(bits);
        mRowBits[std::size_t(y * mRowPitch + (x + kRowMargin) / 8)] = std::uint8_t(bits);
        std::uint16_t& count = mCounts[tiles + std::size_t(x / kTile)];
        count = std::uint16_t(count + std::popcount(bits));
    }
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
    const int rows = std::min(kTile, mLayout.height - tileY * kTile);
    const std::uint8_t* bytes = mRowBits.data() + tileY * kTile * mRowPitch + (tileX * kTile + kRowMargin) / 8;
    for (int j = 0; j < rows; ++j, bytes += mRowPitch)
        for (unsigned bits = bytes[0] | unsigned(bytes[1]) << 8; bits; bits &= bits - 1) {
            const std::int64_t dx = left + std::countr_zero(bits), dy = top + j;
            if (dx * dx + dy * dy <= ranked.limit() && std::abs(dx) < mLayout.width && std::abs(dy) < mLayout.height)
                ranked.add(Ranked::key(dx, dy));
        }
}

void KnownPixels::search(int x, int y, Neighbourhood& out) const
{
    if (!searchDisc(x, y, out)) searchTiles(x, y, out);
}

const KnownPixels::DiscRows& KnownPixels::disc(int radius)
{
    static const auto discs = [] {
        std::array<DiscRows, kDiscReach + 1> made{};
        for (const NearOffset o : nearOffsets(kDiscReach))
            for (int r = 0; r <= kDiscReach; ++r)
                if (o.length() <= r * r)
                    made[std::size_t(r)][std::size_t(o.dy + kDiscReach)] |= std::uint64_t{1} << (o.dx + kDiscReach);
        return made;
    }();
    return discs[std::size_t(radius)];
}

int KnownPixels::leastDisc(const DiscRows& rows, int most)
{
    const auto holdsEnough = [&](int radius) {
        const int first = kDiscReach - radius;
        return commonBits(rows.data() + first, disc(radius).data() + first, 2 * radius + 1) >= kNeighbours;
    };
    if (!holdsEnough(most)) return 0;
    for (int less = 0; most - less > 1;) {
        const int radius = (less + most) / 2;
        (holdsEnough(radius) ? most : less) = radius;
    }
    return most;
}

bool KnownPixels::searchDisc(int x, int y, Neighbourhood& out) const
{
    const int room = std::min({x, y, mLayout.width - 1 - x, mLayout.height - 1 - y, kDiscReach, mLayout.border});
    DiscRows rows;
    for (int dy = -room; dy <= room; ++dy) rows[std::size_t(dy + kDiscReach)] = row(x, y + dy);
    const int radius = leastDisc(rows, room);
    if (!radius) return false;
    const DiscRows& within = disc(radius);
    // All of it, then in order. One disc smaller held fewer than thirty; a ring has room for no more than that.
    constexpr int kBias = 32;
    std::uint32_t keys[kNeighbours + 8 * kDiscReach], ranks[kNeighbours + 8 * kDiscReach];
    int count = 0;
    for (int dy = -radius; dy <= radius; ++dy) {
        const auto number = std::size_t(dy + kDiscReach);
        for (std::uint64_t bits = rows[number] & within[number]; bits; bits &= bits - 1) {
            const int dx = std::countr_zero(bits) - kDiscReach;
            keys[count++] = std::uint32_t((dx * dx + dy * dy) << 12 | (dy + kBias) << 6 | (dx + kBias));
        }
    }
    rankKeys(keys, count, ranks);
    const std::int32_t here = mLayout.index(x, y);
    for (int i = 0; i < count; ++i) {
        if (ranks[i] >= kNeighbours) continue;
        const int dy = int(keys[i] >> 6 & 63) - kBias, dx = int(keys[i] & 63) - kBias;
        out.delta[ranks[i]] = dy * mLayout.stride + dx;
        out.index[ranks[i]] = here + out.delta[ranks[i]];
    }
    out.count = kNeighbours;
    out.reach = radius;
    out.far = false;
    return true;
}

void KnownPixels::searchTiles(int x, int y, Neighbourhood& out) const
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
