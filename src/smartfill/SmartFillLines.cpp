// SPDX-License-Identifier: GPL-3.0-or-later
/// Edges found around a hole, joined in pairs, and drawn.
#include "smartfill/SmartFillLines.h"
#include <algorithm>
#include <array>
#include <cmath>
#include <utility>
#include <vector>

namespace zp
{

namespace
{

// Chosen on holes of 120 x 90 in photos; stricter finds fewer lines, looser ones draws what is none.
constexpr int kDistance = 6;           ///< from the hole's box to where edges are looked for
constexpr int kReach = 5;              ///< of the window an edge's direction is measured in
constexpr double kWindowSpread = 12;   ///< twice the square of the window's sigma
constexpr double kLeastStrength = 24;  ///< of an edge, in grey levels
constexpr double kLeastCoherence = .8; ///< 1: all gradients in the window are parallel
constexpr double kLeastEntry = .4;     ///< cosine between an edge and the way straight into the hole
constexpr double kMostBend = .15;      ///< between an edge and the join, in radians
constexpr double kMostContrast = 30;   ///< between the colours of two edges on the same side, in levels
constexpr double kShortestJoin = 30;
constexpr int kPeak = 5;              ///< an edge is the strongest so far to both sides
constexpr double kHalfBand = 8;       ///< pixels drawn to each side of a join
constexpr double kStretch = 16;       ///< pixels beyond the hole that are taken, to and fro
constexpr double kLevelsARadian = 60; ///< how much contrast counts as much as a radian of bend

struct Vector {
    double x = 0, y = 0;
    friend double dot(Vector a, Vector b) { return a.x * b.x + a.y * b.y; }
    Vector turned() const { return {-y, x}; } ///< by a quarter
};

struct Edge {
    Vector at, into; ///< its direction, into the hole
    double strength = 0, coherence = 0;
    std::array<std::array<double, 3>, 2> sides{}; ///< mean red, green, blue on the turned side, and on the other
};

struct Join {
    const Edge *from, *to;
    double badness;
};

class LineFinder
{
public:
    explicit LineFinder(SmartFillPicture& picture) : mPicture(picture)
    {
        for (int y = 0; y < picture.height; ++y)
            for (int x = 0; x < picture.width; ++x)
                if (picture.mask[index(x, y)]) mHole.include(x, y);
    }
    int draw();

private:
    std::size_t index(int x, int y) const { return std::size_t(y) * std::size_t(mPicture.width) + std::size_t(x); }
    bool contains(int x, int y) const { return x >= 0 && y >= 0 && x < mPicture.width && y < mPicture.height; }
    bool isKnown(int x, int y) const { return contains(x, y) && !mPicture.mask[index(x, y)]; }
    double channel(int x, int y, int c) const { return double(mPicture.pixels[index(x, y)] >> (8 * (c + 1)) & 255); }
    double luma(int x, int y) const
    {
        return .299 * channel(x, y, 0) + .587 * channel(x, y, 1) + .114 * channel(x, y, 2);
    }

    bool allKnownAround(int x, int y) const;
    Edge edgeAt(Vector at, Vector inward) const;
    void measureSides(Edge& edge) const;
    std::vector<Edge> edgesAround() const;
    std::vector<Join> joinsOf(const std::vector<Edge>& edges) const;
    void drawJoin(const Join& join);

    SmartFillPicture& mPicture;
    PixelBox mHole;
    std::vector<std::pair<std::size_t, std::uint32_t>> mDrawn;
};

bool LineFinder::allKnownAround(int x, int y) const
{
    for (int dy = -1; dy <= 1; ++dy)
        for (int dx = -1; dx <= 1; ++dx)
            if (!isKnown(x + dx, y + dy)) return false;
    return true;
}

/// The direction along which the picture changes least around a point, from the gradients in its window.
Edge LineFinder::edgeAt(Vector at, Vector inward) const
{
    double xx = 0, yy = 0, xy = 0, weights = 0;
    for (int dy = -kReach; dy <= kReach; ++dy)
        for (int dx = -kReach; dx <= kReach; ++dx) {
            const int x = int(at.x) + dx, y = int(at.y) + dy;
            if (!allKnownAround(x, y)) continue;
            const auto difference = [&](int ax, int ay) { // of the two lines of three pixels beside the point
                const auto line = [&](int s) {
                    return luma(x + s * ax - ay, y + s * ay - ax) + 2 * luma(x + s * ax, y + s * ay) +
                           luma(x + s * ax + ay, y + s * ay + ax);
                };
                return (line(1) - line(-1)) / 8;
            };
            const double gx = difference(1, 0), gy = difference(0, 1);
            const double weight = std::exp(-double(dx * dx + dy * dy) / kWindowSpread);
            xx += weight * gx * gx, yy += weight * gy * gy, xy += weight * gx * gy, weights += weight;
        }
    Edge edge{at, {}, 0, 0, {}};
    const double trace = xx + yy, spread = std::hypot(xx - yy, 2 * xy);
    if (trace <= 0) return edge;
    const double gradient = .5 * std::atan2(2 * xy, xx - yy);
    edge.into = {-std::sin(gradient), std::cos(gradient)};
    if (dot(edge.into, inward) < 0) edge.into = {-edge.into.x, -edge.into.y};
    edge.coherence = dot(edge.into, inward) < kLeastEntry ? 0 : spread / trace;
    edge.strength = 2 * std::sqrt((trace + spread) / 2 / weights);
    return edge;
}

void LineFinder::measureSides(Edge& edge) const
{
    const Vector across = edge.into.turned();
    for (std::size_t side = 0; side < 2; ++side) {
        int count = 0;
        for (int along = -3; along <= 3; ++along)
            for (int away = 2; away <= 5; ++away) {
                const double s = side ? -away : away;
                const int x = int(std::lround(edge.at.x + edge.into.x * along + across.x * s)),
                          y = int(std::lround(edge.at.y + edge.into.y * along + across.y * s));
                if (!isKnown(x, y)) continue;
                ++count;
                for (int c = 0; c < 3; ++c) edge.sides[side][std::size_t(c)] += channel(x, y, c);
            }
        for (double& sum : edge.sides[side]) sum /= std::max(1, count);
    }
}

std::vector<Edge> LineFinder::edgesAround() const
{
    std::vector<Edge> all;
    const auto look = [&](int x, int y, Vector inward) { all.push_back(edgeAt({double(x), double(y)}, inward)); };
    for (int x = mHole.x0; x < mHole.x1; ++x) look(x, mHole.y0 - kDistance, {0, 1});
    for (int y = mHole.y0; y < mHole.y1; ++y) look(mHole.x1 - 1 + kDistance, y, {-1, 0});
    for (int x = mHole.x1; x-- > mHole.x0;) look(x, mHole.y1 - 1 + kDistance, {0, -1});
    for (int y = mHole.y1; y-- > mHole.y0;) look(mHole.x0 - kDistance, y, {1, 0});
    std::vector<Edge> edges;
    const int count = int(all.size());
    for (int i = 0; i < count; ++i) {
        Edge edge = all[std::size_t(i)];
        if (edge.strength < kLeastStrength || edge.coherence < kLeastCoherence) continue;
        bool isPeak = true;
        for (int k = -kPeak; k <= kPeak; ++k) {
            const int j = ((i + k) % count + count) % count;
            const double other = all[std::size_t(j)].strength;
            isPeak = isPeak && (other < edge.strength || (other == edge.strength && j >= i));
        }
        if (!isPeak) continue;
        measureSides(edge);
        edges.push_back(edge);
    }
    return edges;
}

/// Pairs that agree, the best first.
std::vector<Join> LineFinder::joinsOf(const std::vector<Edge>& edges) const
{
    const auto bend = [](Vector a, Vector b) { return std::acos(std::clamp(dot(a, b), -1.0, 1.0)); };
    std::vector<Join> joins;
    for (std::size_t a = 0; a < edges.size(); ++a)
        for (std::size_t b = a + 1; b < edges.size(); ++b) {
            const Edge &from = edges[a], &to = edges[b];
            const Vector way{to.at.x - from.at.x, to.at.y - from.at.y};
            const double length = std::hypot(way.x, way.y);
            if (length < kShortestJoin) continue;
            const Vector unit{way.x / length, way.y / length};
            const double first = bend(unit, from.into), last = bend({-unit.x, -unit.y}, to.into);
            if (first > kMostBend || last > kMostBend) continue;
            double contrast = 0; // what is on the left of the way in at one end is on its right at the other
            for (std::size_t side = 0; side < 2; ++side)
                for (std::size_t c = 0; c < 3; ++c)
                    contrast = std::max(contrast, std::abs(from.sides[side][c] - to.sides[1 - side][c]));
            if (contrast <= kMostContrast) joins.push_back({&from, &to, first + last + contrast / kLevelsARadian});
        }
    std::stable_sort(joins.begin(), joins.end(), [](const Join& a, const Join& b) { return a.badness < b.badness; });
    return joins;
}

/// A band along the cubic that leaves both ends in their edges' directions.
void LineFinder::drawJoin(const Join& join)
{
    const Edge &from = *join.from, &to = *join.to;
    const double length = std::hypot(to.at.x - from.at.x, to.at.y - from.at.y);
    const Vector unit{(to.at.x - from.at.x) / length, (to.at.y - from.at.y) / length}, across = unit.turned();
    const double rise = dot(from.into, across) / dot(from.into, unit), fall = dot(to.into, across) / dot(to.into, unit);
    for (int y = mHole.y0; y < mHole.y1; ++y)
        for (int x = mHole.x0; x < mHole.x1; ++x) {
            if (!mPicture.mask[index(x, y)]) continue;
            const Vector away{x - from.at.x, y - from.at.y};
            const double t = dot(away, unit) / length;
            if (t < 0 || t > 1) continue;
            const double beside = dot(away, across) - length * t * (1 - t) * (rise * (1 - t) - fall * t);
            if (std::abs(beside) > kHalfBand) continue;
            // From the nearer end, to and fro along a stretch beyond the hole.
            const bool isFirstHalf = t < .5;
            const Edge& end = isFirstHalf ? from : to;
            const double phase = std::fmod((isFirstHalf ? t : 1 - t) * length, 2 * kStretch);
            const double back = phase < kStretch ? phase : 2 * kStretch - phase, side = isFirstHalf ? beside : -beside;
            const Vector beyond = end.into.turned();
            const int sx = int(std::lround(end.at.x - end.into.x * back + beyond.x * side)),
                      sy = int(std::lround(end.at.y - end.into.y * back + beyond.y * side));
            if (isKnown(sx, sy)) mDrawn.push_back({index(x, y), mPicture.pixels[index(sx, sy)]});
        }
}

int LineFinder::draw()
{
    if (mHole.isEmpty()) return 0;
    const std::vector<Edge> edges = edgesAround();
    std::vector<const Edge*> used;
    int count = 0;
    for (const Join& join : joinsOf(edges)) {
        if (std::ranges::count(used, join.from) || std::ranges::count(used, join.to)) continue;
        used.insert(used.end(), {join.from, join.to});
        drawJoin(join);
        ++count;
    }
    if (mDrawn.empty()) return 0;
    if (mPicture.sources.empty()) mPicture.sources.assign(mPicture.mask.size(), 255);
    for (const auto& [pixel, word] : mDrawn) {
        mPicture.pixels[pixel] = word;
        mPicture.mask[pixel] = 0;
        mPicture.sources[pixel] = 0;
    }
    return count;
}

} // namespace

int keepLines(SmartFillPicture& picture) { return LineFinder(picture).draw(); }

} // namespace zp
