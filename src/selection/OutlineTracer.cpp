// SPDX-License-Identifier: GPL-3.0-or-later
/// The border as corners linked across and down: found by exclusive or of neighbouring rows, walked without a search.
#include "selection/OutlineTracer.h"
#include <bit>
#include <new>

namespace zp
{

namespace
{

// Corners stand in one array in reading order. Each is one end of a straight horizontal piece of border, so that they
// come in pairs and the other end of corner i is i ^ 1, the left end always even. The other end of its vertical piece
// is its link. A crossing, where two pixels touch only diagonally, takes two entries, one for each horizontal piece:
// the first (odd) also has the vertical piece above it, the second the one below.
constexpr std::uint32_t kCrossing = 0x80000000; ///< flag of a link: this corner is half of a crossing
constexpr std::uint32_t kWalked = 0x40000000;   ///< flag of an even corner's link: its horizontal piece is used up
constexpr std::uint32_t kIndex = 0x3fffffff;    ///< the link proper
constexpr std::uint32_t kNone = kIndex;         ///< crossings only: the vertical piece is used up

/// Coordinates packed to 32 bits, or, for pictures larger than that allows, to 64.
struct SmallCorner {
    std::uint32_t place, link;
    void set(std::uint32_t x, std::uint32_t y) { place = x | y << 16; }
    std::uint32_t x() const { return place & 0xffff; }
    std::uint32_t y() const { return place >> 16; }
};
struct LargeCorner {
    std::uint32_t px, py, link;
    void set(std::uint32_t x, std::uint32_t y) { px = x, py = y; }
    std::uint32_t x() const { return px; }
    std::uint32_t y() const { return py; }
};

/// Calls f(word index, corners, crossings, vertical lines above) for every word of the line between two rows that has
/// any corner. Bit x of each belongs to the point at the left border of pixel x.
template <class F>
inline void forEachCornerWord(const std::uint64_t* above, const std::uint64_t* below, std::size_t words, F&& f)
{
    std::uint64_t lastAbove = 0, lastLine = 0; // the bit left of the word, in bit 0
    for (std::size_t w = 0; w < words; ++w) {
        const std::uint64_t line = above[w] ^ below[w];
        const std::uint64_t lineLeft = line << 1 | lastLine;
        const std::uint64_t vertical = above[w] ^ (above[w] << 1 | lastAbove);
        lastLine = line >> 63;
        lastAbove = above[w] >> 63;
        const std::uint64_t ends = line ^ lineLeft, crossings = line & lineLeft & vertical;
        if (ends | crossings) f(w, ends, crossings, vertical);
    }
}

class RowPairs
{
public:
    explicit RowPairs(const BitRows& bits) : mBits(bits), mEmpty(bits.wordsPerRow()) {}
    const std::uint64_t* above(int y) const { return y > 0 ? mBits.row(y - 1) : mEmpty.data(); }
    const std::uint64_t* below(int y) const { return y < mBits.height() ? mBits.row(y) : mEmpty.data(); }

private:
    const BitRows& mBits;
    std::vector<std::uint64_t> mEmpty;
};

template <class Corner>
void collectCorners(const BitRows& bits, Corner* corners)
{
    const RowPairs rows(bits);
    // Per column, the corner whose vertical piece is open downwards.
    std::vector<std::uint32_t> open(std::size_t(bits.width()) + 1);
    Corner spare{}; // takes the writes of corners that close nothing, so that no branch is needed
    std::uint32_t count = 0;
    for (int y = 0; y <= bits.height(); ++y) {
        forEachCornerWord(rows.above(y), rows.below(y), bits.wordsPerRow(),
                          [&](std::size_t w, std::uint64_t ends, std::uint64_t crossings, std::uint64_t vertical) {
                              for (std::uint64_t todo = ends | crossings; todo; todo &= todo - 1) {
                                  const int bit = std::countr_zero(todo);
                                  const std::size_t x = w * 64 + std::size_t(bit);
                                  if (crossings >> bit & 1) [[unlikely]] {
                                      corners[count].set(std::uint32_t(x), std::uint32_t(y));
                                      corners[count].link = open[x] | kCrossing;
                                      corners[open[x]].link = (corners[open[x]].link & kCrossing) | count;
                                      ++count;
                                      corners[count].set(std::uint32_t(x), std::uint32_t(y));
                                      corners[count].link = kCrossing;
                                      open[x] = count++;
                                      continue;
                                  }
                                  const bool closes = vertical >> bit & 1;
                                  corners[count].set(std::uint32_t(x), std::uint32_t(y));
                                  corners[count].link = open[x];
                                  Corner& partner = closes ? corners[open[x]] : spare;
                                  partner.link = (partner.link & kCrossing) | count;
                                  open[x] = count++;
                              }
                          });
    }
}

template <class Corner>
class Walk
{
public:
    Walk(const BitRows& bits, Corner* corners, Point offset) : mBits(bits), mCorners(corners), mOffset(offset) {}

    bool unused(std::uint32_t even) const { return !(mCorners[even].link & kWalked); }

    /// The loop that starts with the horizontal piece of the even corner @p start.
    const std::vector<Point>& loopFrom(std::uint32_t start)
    {
        mLoop.clear();
        emit(start);
        std::uint32_t at = start;
        bool down = lowerRightIsSet(start);
        for (;;) {
            at = down ? alongVertical(at) : alongHorizontal(at);
            if (!(mCorners[at].link & kCrossing)) [[likely]] {
                if (at == start) return mLoop;
                emit(at);
                down = !down;
                continue;
            }
            const bool wasVertical = down;
            if (!leaveCrossing(at, down)) return mLoop; // only the start has nothing left when one comes back to it
            if (down != wasVertical) emit(at);
        }
    }

private:
    void emit(std::uint32_t i)
    {
        mLoop.push_back({float(mCorners[i].x()) + mOffset.x, float(mCorners[i].y()) + mOffset.y});
    }
    bool lowerRightIsSet(std::uint32_t i) const
    {
        const int x = int(mCorners[i].x()), y = int(mCorners[i].y());
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
        if (mCorners[i].link & kCrossing) mCorners[i].link |= kNone;
        if (mCorners[other].link & kCrossing) mCorners[other].link |= kNone;
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
    Corner* mCorners;
    Point mOffset;
    std::vector<Point> mLoop;
};

template <class Corner>
void trace(const BitRows& bits, Point offset, std::size_t count,
           const std::function<void(std::span<const Point>)>& loop)
{
    const PixelMemory memory = allocatePixelsUninitialized(count * sizeof(Corner));
    if (!memory) throw std::bad_alloc();
    Corner* corners = reinterpret_cast<Corner*>(memory.get());
    collectCorners(bits, corners);
    Walk<Corner> walk(bits, corners, offset);
    for (std::uint32_t i = 0; i < count; i += 2)
        if (walk.unused(i)) loop(walk.loopFrom(i));
}

} // namespace

void traceOutline(const BitRows& bits, Point offset, const std::function<void(std::span<const Point>)>& loop,
                  const std::function<void(std::size_t)>& expect)
{
    if (bits.height() == 0) return;
    const RowPairs rows(bits);
    std::size_t count = 0;
    for (int y = 0; y <= bits.height(); ++y)
        forEachCornerWord(rows.above(y), rows.below(y), bits.wordsPerRow(),
                          [&](std::size_t, std::uint64_t ends, std::uint64_t crossings, std::uint64_t) {
                              count += std::size_t(std::popcount(ends)) + 2 * std::size_t(std::popcount(crossings));
                          });
    if (count == 0) return;
    if (count >= kIndex) throw std::bad_alloc();
    if (expect) expect(count);
    if (bits.width() <= 0xffff && bits.height() <= 0xffff)
        trace<SmallCorner>(bits, offset, count, loop);
    else
        trace<LargeCorner>(bits, offset, count, loop);
}

} // namespace zp
