// SPDX-License-Identifier: GPL-3.0-or-later
/// The border as corners linked across and down: found between neighbouring rows, walked without a search.
#include "selection/OutlineTracer.h"
#include "base/Simd.h"
#include "selection/OutlineCorners.h"
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
constexpr std::uint32_t kNone = kIndex;       ///< crossings only: the vertical piece is used up

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

/// @param counts  corners on each line
/// @param corners room for all of them and one more
template <class Place>
void collectCorners(const BitRows& bits, const std::vector<std::uint32_t>& counts, Corner<Place>* corners,
                    std::uint32_t total)
{
    const RowPairs rows(bits);
    std::vector<FoundCorner> found(2 * (std::size_t(bits.width()) + 1) + 16);
    // Per column, the corner whose vertical piece is open downwards.
    std::vector<std::uint32_t> open(std::size_t(bits.width()) + 1);
    std::uint32_t next = 0;
    for (int y = 0; y <= bits.height(); ++y) {
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
            // A corner that ends no piece links the spare one at the end instead: which it is cannot be foreseen.
            const std::uint32_t ends = std::uint32_t(0) - (f.x >> 31);
            corners[(old & ends) | (total & ~ends)].link = next;
        }
    }
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
    const PixelMemory memory = allocatePixelsUninitialized((std::size_t(total) + 1) * sizeof(Corner<Place>));
    if (!memory) throw std::bad_alloc();
    auto* corners = reinterpret_cast<Corner<Place>*>(memory.get());
    collectCorners(bits, counts, corners, total);
    Walk<Place> walk(bits, corners);
    std::vector<Point> points;
    for (std::uint32_t i = 0; i < total; i += 2) {
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
    if (total >= kIndex || bits.width() > LargePlace::kLargest || bits.height() > LargePlace::kLargest)
        throw std::bad_alloc();
    if (expect) expect(total);
    if (bits.width() <= SmallPlace::kLargest && bits.height() <= SmallPlace::kLargest)
        trace<SmallPlace>(bits, offset, counts, std::uint32_t(total), loop);
    else
        trace<LargePlace>(bits, offset, counts, std::uint32_t(total), loop);
}

} // namespace zp
