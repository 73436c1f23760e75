// SPDX-License-Identifier: GPL-3.0-or-later
/// The border as corners linked across and down: found between neighbouring rows, walked without a search.
#include "selection/OutlineTracer.h"
#include "base/CpuHints.h"
#include "base/Simd.h"
#include "base/WorkPool.h"
#include "selection/OutlineCorners.h"
#include <algorithm>
#include <cstring>
#include <new>

namespace zp
{

namespace
{

// Corners stand in one array in reading order. Each is one end of a straight horizontal piece of border, so that they
// come in pairs and the other end of corner i is i ^ 1, the left end always even. The other end of its vertical piece
// is its link. A crossing, where two pixels touch only diagonally, takes two entries, one for each horizontal piece:
// the first (odd) also has the vertical piece above it, the second the one below.
constexpr std::uint32_t kWalked = 0x80000000; ///< flag of an even corner's link: its horizontal piece is used up
constexpr std::uint32_t kIndex = 0x7fffffff;  ///< the link proper
constexpr std::uint32_t kNone = kIndex;       ///< no vertical piece, or, of a crossing, one that is used up
constexpr std::uint32_t kMostCorners = 1 << 30;
constexpr std::uint32_t kAhead = 65536; ///< corners that a loop may be expected to reach below where it starts
constexpr std::size_t kCacheLine = 64;  ///< bytes, and in corners more than that: no line is written by two bands

/// Column in the low half, row in the high half, the crossing's flag on top: for pictures of up to 32,767 a side.
struct SmallPlace {
    using Value = std::uint32_t;
    static constexpr int kLargest = 0x7fff;
    static constexpr Value kCrossing = 0x80000000;
    static Value row(int y) { return Value(y) << 16; }
    static Value column(FoundCorner found) { return (found.x & 0x7fff) | (found.x & FoundCorner::kCrossing) << 1; }
    static int x(Value place) { return int(place & 0x7fff); }
    static int y(Value place) { return int(place >> 16 & 0x7fff); }
};
struct LargePlace {
    using Value = std::uint64_t;
    static constexpr int kLargest = 0x3ffffffe;
    static constexpr Value kCrossing = Value{1} << 63;
    static Value row(int y) { return Value(unsigned(y)) << 32; }
    static Value column(FoundCorner found)
    {
        return (found.x & FoundCorner::kColumn) | Value(found.x & FoundCorner::kCrossing) << 33;
    }
    static int x(Value place) { return int(std::uint32_t(place)); }
    static int y(Value place) { return int(place >> 32 & 0x7fffffff); }
};

template <class Place>
struct Corner {
    typename Place::Value place;
    std::uint32_t link;
};

/// The rows above and below each line of a picture, empty ones outside it.
class RowPairs
{
public:
    explicit RowPairs(const BitRows& bits) : mBits(bits), mEmpty(bits.wordsPerRow() + 1) {}
    const std::uint64_t* above(int y) const { return y > 0 ? mBits.row(y - 1) : mEmpty.data() + 1; }
    const std::uint64_t* below(int y) const { return y < mBits.height() ? mBits.row(y) : mEmpty.data() + 1; }

private:
    const BitRows& mBits;
    std::vector<std::uint64_t> mEmpty;
};

/// The corners of some lines, and beyond those of the whole picture an area of the band's own.
struct Band {
    int firstRow, endRow;
    std::uint32_t next; ///< the band's first corner
    /// Takes the links of corners that end no piece: which these are cannot be foreseen. From the one behind it on, a
    /// corner for each column stands for the piece that comes from the bands above, and is linked to its end.
    std::uint32_t spare;
    std::vector<std::uint32_t> open; ///< per column, the corner whose vertical piece is open downwards

    std::uint32_t fromAbove(std::size_t column) const { return spare + 1 + std::uint32_t(column); }
};

template <class Place>
void collectBand(const BitRows& bits, const std::vector<std::uint32_t>& counts, Corner<Place>* corners, Band& band)
{
    const RowPairs rows(bits);
    std::vector<FoundCorner> found(2 * (std::size_t(bits.width()) + 1) + 16);
    band.open.resize(std::size_t(bits.width()) + 1);
    for (std::size_t x = 0; x < band.open.size(); ++x) {
        band.open[x] = band.fromAbove(x);
        corners[band.open[x]].link = kNone;
    }
    std::uint32_t* const open = band.open.data();
    std::uint32_t next = band.next;
    for (int y = band.firstRow; y < band.endRow; ++y) {
        const std::uint32_t count = counts[std::size_t(y)];
        if (count == 0) continue;
        findCorners(rows.above(y), rows.below(y), bits.wordsPerRow(), found.data());
        const typename Place::Value row = Place::row(y);
        for (std::uint32_t i = 0; i < count; ++i, ++next) {
            const FoundCorner f = found[i];
            std::uint32_t& opened = open[f.x & FoundCorner::kColumn];
            const std::uint32_t old = opened;
            opened = next;
            corners[next].place = row | Place::column(f);
            corners[next].link = old;
            const std::uint32_t ends = std::uint32_t(0) - (f.x >> 31);
            corners[(old & ends) | (band.spare & ~ends)].link = next;
        }
    }
}

/// Links the pieces that go on from one band into another. Goes through the columns once a band.
template <class Place>
void joinBands(std::span<Band> bands, Corner<Place>* corners)
{
    std::vector<std::uint32_t>& open = bands.front().open;
    for (const Band& band : bands.subspan(1))
        for (std::size_t x = 0; x < open.size(); ++x) {
            const std::uint32_t end = corners[band.fromAbove(x)].link;
            if (end != kNone) {
                corners[end].link = open[x];
                corners[open[x]].link = end;
            }
            if (band.open[x] != band.fromAbove(x)) open[x] = band.open[x];
        }
}

/// All corners of the picture, linked across and down; @p total of them, counted line by line.
template <class Place>
PixelMemory collectCorners(const BitRows& bits, const std::vector<std::uint32_t>& counts, std::uint32_t total)
{
    constexpr std::size_t kWorthIt = 50'000; // corners a band: some quarter of a millisecond
    const std::size_t area = std::size_t(bits.width()) + 2 + kCacheLine;
    const std::size_t count = std::clamp<std::size_t>(total / std::max(kWorthIt, area), 1, std::size_t(workersHere()));
    PixelMemory memory = allocatePixelsUninitialized((total + count * area) * sizeof(Corner<Place>));
    if (!memory) throw std::bad_alloc();
    auto* const corners = reinterpret_cast<Corner<Place>*>(memory.get());

    std::vector<Band> bands(count);
    std::uint32_t before = 0;
    int y = 0;
    for (std::size_t b = 0; b < count; ++b) {
        bands[b] = {y, y, before, std::uint32_t(total + b * area), {}};
        const std::size_t until = std::size_t(total) * (b + 1) / count;
        for (; y <= bits.height() && (before < until || b + 1 == count); ++y) before += counts[std::size_t(y)];
        bands[b].endRow = y;
    }
    parallelFor(int(count), [&](int b) { collectBand(bits, counts, corners, bands[std::size_t(b)]); });
    joinBands(std::span(bands), corners);
    return memory;
}

template <class Place>
class Walk
{
public:
    Walk(const BitRows& bits, Corner<Place>* corners) : mBits(bits), mCorners(corners), mLoop(1024) {}

    bool unused(std::uint32_t even) const { return !(mCorners[even].link & kWalked); }

    /// The loop that starts with the horizontal piece of the even corner @p start.
    std::span<const typename Place::Value> loopFrom(std::uint32_t start)
    {
        std::size_t count = 0;
        std::uint32_t at = start;
        bool down = lowerRightIsSet(start);
        mLoop[count++] = mCorners[start].place;
        for (;;) {
            if (count + 2 > mLoop.size()) mLoop.resize(mLoop.size() * 2);
            at = down ? alongVertical(at) : alongHorizontal(at);
            const typename Place::Value place = mCorners[at].place;
            if (!(place & Place::kCrossing)) [[likely]] {
                if (at == start) break;
                mLoop[count++] = place;
                down = !down;
                continue;
            }
            const bool wasVertical = down;
            if (!leaveCrossing(at, down)) break; // only the start has nothing left when one comes back to it
            if (down != wasVertical) mLoop[count++] = place;
        }
        mLoop[count++] = mCorners[start].place;
        return {mLoop.data(), count};
    }

private:
    bool lowerRightIsSet(std::uint32_t i) const
    {
        const int x = Place::x(mCorners[i].place), y = Place::y(mCorners[i].place);
        return y < mBits.height() && mBits.at(x, y); // the bit right of the picture exists and is 0
    }
    std::uint32_t alongHorizontal(std::uint32_t i)
    {
        mCorners[i & ~1u].link |= kWalked;
        return i ^ 1;
    }
    std::uint32_t alongVertical(std::uint32_t i)
    {
        const std::uint32_t other = mCorners[i].link & kIndex;
        if (mCorners[i].place & Place::kCrossing) mCorners[i].link |= kNone;
        if (mCorners[other].place & Place::kCrossing) mCorners[other].link |= kNone;
        return other;
    }
    /// Chooses the half of the crossing and the direction to go on with. @return false when nothing is left
    bool leaveCrossing(std::uint32_t& at, bool& vertical) const
    {
        const std::uint32_t first = (at - 1) | 1, second = first + 1;
        const bool up = (mCorners[first].link & kIndex) != kNone, down = (mCorners[second].link & kIndex) != kNone;
        const bool left = unused(first & ~1u), right = unused(second);
        if (up) return at = first, vertical = true, true;
        // The pixel above the crossing had its own horizontal side in the scan before the row below began.
        const bool leftFirst = lowerRightIsSet(first);
        if (leftFirst ? left : right) return at = leftFirst ? first : second, vertical = false, true;
        if (down) return at = second, vertical = true, true;
        if (leftFirst ? right : left) return at = leftFirst ? second : first, vertical = false, true;
        return false;
    }

    const BitRows& mBits;
    Corner<Place>* mCorners;
    std::vector<typename Place::Value> mLoop;
};

template <class Place>
void toPoints(const typename Place::Value* places, std::size_t count, Point offset, Point* points)
{
    for (std::size_t i = 0; i < count; ++i)
        points[i] = {float(Place::x(places[i])) + offset.x, float(Place::y(places[i])) + offset.y};
}

template <class Place>
void trace(const BitRows& bits, Point offset, const std::vector<std::uint32_t>& counts, std::uint32_t total,
           const std::function<void(std::span<const Point>)>& loop)
{
    const PixelMemory memory = collectCorners<Place>(bits, counts, total);
    auto* const corners = reinterpret_cast<Corner<Place>*>(memory.get());
    Walk<Place> walk(bits, corners);
    std::vector<Point> points;
    for (std::uint32_t i = 0; i < total; i += 2) {
        // Loops go down through lines not read yet, corner after corner, and would wait for the memory at each.
        prefetchForWriting(corners + i + kAhead);
        if (!walk.unused(i)) continue;
        const auto places = walk.loopFrom(i);
        if (points.size() < places.size()) points.resize(places.size() * 2);
        toPoints<Place>(places.data(), places.size(), offset, points.data());
        loop({points.data(), places.size()});
    }
}

} // namespace

void traceOutline(const BitRows& bits, Point offset, const std::function<void(std::span<const Point>)>& loop,
                  const std::function<void(std::size_t)>& expect)
{
    if (bits.height() == 0) return;
    const RowPairs rows(bits);
    std::vector<std::uint32_t> counts(std::size_t(bits.height()) + 1);
    std::size_t total = 0;
    for (int y = 0; y <= bits.height(); ++y) {
        counts[std::size_t(y)] = std::uint32_t(countCorners(rows.above(y), rows.below(y), bits.wordsPerRow()));
        total += counts[std::size_t(y)];
    }
    if (total == 0) return;
    if (total >= kMostCorners || bits.width() > LargePlace::kLargest || bits.height() > LargePlace::kLargest)
        throw std::bad_alloc();
    if (expect) expect(total);
    if (bits.width() <= SmallPlace::kLargest && bits.height() <= SmallPlace::kLargest)
        trace<SmallPlace>(bits, offset, counts, std::uint32_t(total), loop);
    else
        trace<LargePlace>(bits, offset, counts, std::uint32_t(total), loop);
}

} // namespace zp
