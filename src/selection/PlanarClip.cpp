// SPDX-License-Identifier: GPL-3.0-or-later
/// From edges that no longer cross to the loops round the outcome: winding numbers spread over the edges' net.
#include "selection/PlanarClip.h"
#include "base/CpuHints.h"
#include "selection/PlanarEdges.h"
#include <algorithm>
#include <bit>
#include <cstdlib>

namespace zp
{

namespace
{

struct Winding {
    std::int32_t subject = 0, clip = 0;
};

/// Numbers for points or pairs, given out in order of first mention. Open addressing over a power of two.
template <class Key, class Hash>
class Numbering
{
public:
    explicit Numbering(std::size_t expected) : mSlots(std::bit_ceil(expected * 2 + 16), kFree), mMask(mSlots.size() - 1)
    {
        keys.reserve(expected);
    }
    std::uint32_t operator()(Key key)
    {
        for (std::size_t slot = Hash{}(key)&mMask;; slot = (slot + 1) & mMask) {
            if (mSlots[slot] == kFree) {
                mSlots[slot] = std::uint32_t(keys.size());
                keys.push_back(key);
                return mSlots[slot];
            }
            if (keys[mSlots[slot]] == key) return mSlots[slot];
        }
    }
    /// The key will be asked for soon.
    void expect(Key key) const { prefetch(&mSlots[Hash{}(key)&mMask]); }
    std::vector<Key> keys;

private:
    static constexpr std::uint32_t kFree = 0xffffffff;
    std::vector<std::uint32_t> mSlots;
    std::size_t mMask;
};

std::size_t mixed(std::uint64_t v)
{
    v *= 0x9e3779b97f4a7c15;
    return std::size_t(v ^ v >> 29);
}
struct PointHash {
    std::size_t operator()(GridPoint p) const { return mixed(std::uint64_t(p.x) * 0x8da6b343 + std::uint64_t(p.y)); }
};
struct PairHash {
    std::size_t operator()(std::uint64_t pair) const { return mixed(pair); }
};

/// The net of edges. Half-edge 2e runs along edge e, 2e + 1 against it.
class Net
{
public:
    Net(const std::vector<GridEdge>& edges, const EdgeGrid& grid, gpc_op operation, WindingRule subjectRule,
        WindingRule clipRule, Asking& asking)
        : mEdges(edges),
          mGrid(grid),
          mAsking(asking),
          mOperation(operation),
          mSubjectRule(subjectRule),
          mClipRule(clipRule),
          mPoints(edges.size() + 16),
          mPairs(edges.size())
    {
        numberEdges();
        buildFans();
        spreadWindings();
    }

    void collectLoops(std::vector<GridLoop>& result)
    {
        std::vector<std::uint8_t> used(mGains.size(), 0);
        for (std::uint32_t e = 0; e < mGains.size(); ++e) {
            const std::uint32_t start = boundary(e);
            if (start == kNothing || used[e]) continue;
            GridLoop loop;
            std::uint32_t h = start;
            do {
                mAsking.step();
                used[h / 2] = 1;
                loop.push_back(point(from(h)));
                h = nextOfBoundary(h);
            } while (h != start);
            dropStraight(loop);
            if (loop.size() > 2) result.push_back(std::move(loop));
        }
    }

private:
    static constexpr std::uint32_t kNothing = 0xffffffff;
    static constexpr std::size_t kAhead = 16;

    GridPoint point(std::uint32_t vertex) const { return mPoints.keys[vertex]; }
    std::uint32_t from(std::uint32_t h) const
    {
        const std::uint64_t pair = mPairs.keys[h / 2];
        return std::uint32_t(h & 1 ? pair : pair >> 32);
    }
    std::uint32_t to(std::uint32_t h) const { return from(h ^ 1); }

    /// Points get numbers, and edges over the same two points become one.
    void numberEdges()
    {
        mGains.reserve(mEdges.size());
        mNumberOf.resize(mEdges.size());
        for (std::size_t i = 0; i < mEdges.size(); ++i) {
            mAsking.step();
            if (i + kAhead < mEdges.size()) mPoints.expect(mEdges[i + kAhead].b); // the other is one of before mostly
            const GridEdge& e = mEdges[i];
            const std::uint32_t a = mPoints(e.a), b = mPoints(e.b);
            const bool along = a < b;
            const std::uint32_t n = mPairs(along ? std::uint64_t(a) << 32 | b : std::uint64_t(b) << 32 | a);
            if (n == mGains.size()) mGains.push_back({});
            mGains[n].subject += along ? e.subject : -e.subject;
            mGains[n].clip += along ? e.clip : -e.clip;
            mNumberOf[i] = n;
        }
    }

    /// For every point its outgoing half-edges, turning from the direction of x towards that of y.
    void buildFans()
    {
        mFanStart.assign(mPoints.keys.size() + 2, 0);
        for (const std::uint64_t pair : mPairs.keys)
            ++mFanStart[(pair >> 32) + 2], ++mFanStart[std::uint32_t(pair) + 2];
        for (std::size_t v = 2; v < mFanStart.size(); ++v) mFanStart[v] += mFanStart[v - 1];
        mFan.resize(mGains.size() * 2);
        mPlace.resize(mGains.size() * 2);
        for (std::uint32_t h = 0; h < mFan.size(); ++h) mFan[mFanStart[from(h) + 1]++] = h;
        for (std::uint32_t v = 0; v < mPoints.keys.size(); ++v) {
            mAsking.step();
            const auto first = mFan.begin() + mFanStart[v], last = mFan.begin() + mFanStart[v + 1];
            if (last - first > 2) {
                const GridPoint centre = point(v);
                std::sort(first, last, [&](std::uint32_t g, std::uint32_t h) {
                    const GridPoint p = point(to(g)), q = point(to(h));
                    const bool pBack = p.y < centre.y || (p.y == centre.y && p.x < centre.x);
                    const bool qBack = q.y < centre.y || (q.y == centre.y && q.x < centre.x);
                    return pBack != qBack ? qBack : turn(centre, p, q) > 0;
                });
            }
            for (auto at = first; at != last; ++at) mPlace[*at] = std::uint32_t(at - mFan.begin());
        }
    }

    std::uint32_t afterInFan(std::uint32_t h) const
    {
        const std::uint32_t v = from(h), next = mPlace[h] + 1;
        return mFan[next == mFanStart[v + 1] ? mFanStart[v] : next];
    }
    std::uint32_t beforeInFan(std::uint32_t h) const
    {
        const std::uint32_t v = from(h), at = mPlace[h];
        return mFan[(at == mFanStart[v] ? mFanStart[v + 1] : at) - 1];
    }

    /// The piece of the net that holds a point, and its leftmost (of those, lowest y) point.
    struct Part {
        std::uint32_t corner;
    };

    void spreadWindings()
    {
        mLeft.resize(mGains.size() * 2);
        const std::size_t points = mPoints.keys.size();
        std::vector<std::uint8_t> seen(points, 0);
        std::vector<std::uint32_t> todo;
        std::vector<Part> parts;
        const auto before = [&](std::uint32_t a, std::uint32_t b) {
            const GridPoint p = point(a), q = point(b);
            return p.x != q.x ? p.x < q.x : p.y < q.y;
        };
        for (std::uint32_t v = 0; v < points; ++v) {
            if (seen[v]) continue;
            Part part{v};
            seen[v] = 1;
            todo.push_back(v);
            while (!todo.empty()) {
                const std::uint32_t at = todo.back();
                todo.pop_back();
                if (before(at, part.corner)) part.corner = at;
                for (std::uint32_t i = mFanStart[at]; i < mFanStart[at + 1]; ++i)
                    if (const std::uint32_t other = to(mFan[i]); !seen[other]) seen[other] = 1, todo.push_back(other);
            }
            parts.push_back(part);
        }
        // What lies left of a part's leftmost point is known when the parts further left are done.
        std::sort(parts.begin(), parts.end(), [&](Part a, Part b) { return before(a.corner, b.corner); });
        std::fill(seen.begin(), seen.end(), std::uint8_t(0));
        for (const Part& part : parts) {
            spreadAround(part.corner, parts.size() > 1 ? windingLeftOf(part.corner) : Winding{});
            seen[part.corner] = 1;
            todo.push_back(part.corner);
            while (!todo.empty()) {
                const std::uint32_t at = todo.back();
                todo.pop_back();
                mAsking.step();
                for (std::uint32_t i = mFanStart[at]; i < mFanStart[at + 1]; ++i) {
                    const std::uint32_t h = mFan[i], other = to(h);
                    if (seen[other]) continue;
                    seen[other] = 1;
                    spread(other, h ^ 1, mLeft[h ^ 1]);
                    todo.push_back(other);
                }
            }
        }
    }

    Winding gain(std::uint32_t h) const
    {
        const Winding g = mGains[h / 2];
        return h & 1 ? Winding{-g.subject, -g.clip} : g;
    }

    /// The windings left of all half-edges from @p v, and of those into it, given that left of @p known.
    void spread(std::uint32_t v, std::uint32_t known, Winding left)
    {
        mLeft[known] = left;
        mLeft[known ^ 1] = {left.subject - gain(known).subject, left.clip - gain(known).clip};
        const std::uint32_t count = mFanStart[v + 1] - mFanStart[v];
        std::uint32_t h = known;
        for (std::uint32_t i = 1; i < count; ++i) {
            const Winding between = mLeft[h]; // left of this one is right of the next
            h = afterInFan(h);
            mLeft[h ^ 1] = between;
            mLeft[h] = {between.subject + gain(h).subject, between.clip + gain(h).clip};
        }
    }

    /// The same from the sector that faces left at a leftmost point: behind the last of those that point right.
    void spreadAround(std::uint32_t v, Winding outside)
    {
        // All directions lie from straight down (excluded) to straight up; the fan starts with those of y not below 0.
        std::uint32_t last = mFan[mFanStart[v + 1] - 1];
        for (std::uint32_t i = mFanStart[v]; i < mFanStart[v + 1]; ++i)
            if (point(to(mFan[i])).y >= point(v).y) last = mFan[i];
        // Two half-edges stand unsorted in their fan.
        if (mFanStart[v + 1] - mFanStart[v] == 2) {
            const std::uint32_t g = mFan[mFanStart[v]], h = mFan[mFanStart[v] + 1];
            last = turn(point(v), point(to(g)), point(to(h))) > 0 ? h : g;
        }
        spread(v, last, outside);
    }

    /// Of the edge nearest to the left of the point, its right side.
    Winding windingLeftOf(std::uint32_t v) const
    {
        const GridPoint p = point(v);
        std::uint32_t best = kNothing; // a half-edge that runs towards larger y
        const int row = mGrid.rowOf(p.y);
        for (int column = mGrid.columnOf(p.x); column >= 0; --column) {
            for (const std::uint32_t i : mGrid.at(column, row)) {
                std::uint32_t h = 2 * mNumberOf[i];
                if (point(from(h)).y > point(to(h)).y) h ^= 1;
                // Looked at a little above p, so that corners on its level are met once.
                if (!(point(from(h)).y <= p.y && p.y < point(to(h)).y)) continue;
                if (turn(point(from(h)), point(to(h)), p) >= 0) continue; // not to the right of the edge
                if (best == kNothing || isRightOf(h, best)) best = h;
            }
            if (best == kNothing) continue;
            const GridPoint a = point(from(best)), b = point(to(best));
            const double x = double(a.x) + double(b.x - a.x) * (double(p.y - a.y) / double(b.y - a.y));
            // An edge that meets this row further left may be listed here; others may come in between.
            if (x > double(mGrid.leftOf(column)) + 2) break;
        }
        return best == kNothing ? Winding{} : mLeft[best ^ 1];
    }

    /// Of two upward half-edges over one level that do not cross.
    bool isRightOf(std::uint32_t g, std::uint32_t h) const
    {
        const GridPoint ga = point(from(g)), gb = point(to(g)), ha = point(from(h)), hb = point(to(h));
        if (ga.y >= ha.y) {
            if (const WideInteger side = turn(ha, hb, ga); side != 0) return side < 0;
            return turn(ha, hb, gb) < 0;
        }
        if (const WideInteger side = turn(ga, gb, ha); side != 0) return side > 0;
        return turn(ga, gb, hb) > 0;
    }

    bool isIn(Winding w) const
    {
        const bool subject = mSubjectRule == WindingRule::EvenOdd ? w.subject & 1 : w.subject != 0;
        const bool clip = mClipRule == WindingRule::EvenOdd ? w.clip & 1 : w.clip != 0;
        switch (mOperation) {
        case GPC_DIFF:
            return subject && !clip;
        case GPC_INT:
            return subject && clip;
        case GPC_XOR:
            return subject != clip;
        case GPC_UNION:
            break;
        }
        return subject || clip;
    }

    /// The half-edge of an edge that has the outcome on its left and not on its right.
    std::uint32_t boundary(std::uint32_t edge) const
    {
        const bool left = isIn(mLeft[2 * edge]), right = isIn(mLeft[2 * edge + 1]);
        return left == right ? kNothing : left ? 2 * edge : 2 * edge + 1;
    }

    /// The first edge of the boundary met when the inside is swept from the arriving half-edge's left: loops that touch
    /// stay apart.
    std::uint32_t nextOfBoundary(std::uint32_t h) const
    {
        std::uint32_t out = beforeInFan(h ^ 1);
        while (boundary(out / 2) != out) out = beforeInFan(out);
        return out;
    }

    static void dropStraight(GridLoop& loop)
    {
        std::size_t kept = 0;
        const std::size_t count = loop.size();
        const GridPoint second = loop[0];
        for (std::size_t i = 0; i < count; ++i) {
            const GridPoint before = kept ? loop[kept - 1] : loop[count - 1],
                            after = i + 1 < count ? loop[i + 1] : second;
            if (turn(before, loop[i], after) != 0) loop[kept++] = loop[i];
        }
        loop.resize(kept);
    }

    const std::vector<GridEdge>& mEdges;
    const EdgeGrid& mGrid;
    Asking& mAsking;
    const gpc_op mOperation;
    const WindingRule mSubjectRule, mClipRule;
    Numbering<GridPoint, PointHash> mPoints;
    Numbering<std::uint64_t, PairHash>
        mPairs;                           ///< of each edge its two points, the lower number first and in the high half
    std::vector<Winding> mGains;          ///< of each edge, from its right to its left
    std::vector<std::uint32_t> mNumberOf; ///< of each cut edge
    std::vector<std::uint32_t> mFanStart, mFan, mPlace;
    std::vector<Winding> mLeft; ///< of each half-edge
};

std::unique_ptr<LongWait> (*clipWait)() = nullptr;

void addEdges(const std::vector<GridLoop>& loops, bool ofClip, std::vector<GridEdge>& edges)
{
    for (const GridLoop& loop : loops) {
        if (loop.size() < 2) continue;
        GridPoint last = loop.back();
        for (const GridPoint p : loop) {
            if (p != last) edges.push_back({last, p, ofClip ? 0 : 1, ofClip ? 1 : 0});
            last = p;
        }
    }
}

} // namespace

void clipPlanar(gpc_op operation, const std::vector<GridLoop>& subject, WindingRule subjectRule,
                const std::vector<GridLoop>& clip, WindingRule clipRule, std::vector<GridLoop>& result)
{
    result.clear();
    std::vector<GridEdge> edges;
    std::size_t count = 0;
    for (const auto* loops : {&subject, &clip})
        for (const GridLoop& loop : *loops) count += loop.size();
    edges.reserve(count + count / 2);
    addEdges(subject, false, edges);
    addEdges(clip, true, edges);
    Asking asking(clipWait ? clipWait() : nullptr);
    EdgeGrid grid;
    cutAtCrossings(edges, grid, asking);
    if (!edges.empty()) Net(edges, grid, operation, subjectRule, clipRule, asking).collectLoops(result);
}

void setClipWait(std::unique_ptr<LongWait> (*wait)()) { clipWait = wait; }

} // namespace zp
